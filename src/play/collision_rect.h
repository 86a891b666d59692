// collision_rect.h -- the one overlap test of the whole game: solids, pickups, hazards and buttons alike.
#pragma once

#include "KRVec2.h"
#include "gameobj.h"

// Whether two closed boxes overlap now, touching included. pVelA is taken and not used; pVelB and gFrameDelta
// feed a time arithmetic that changes one answer only: with pVelB->x exactly 0 and A.maxX equal to B.minX the
// boxes do not meet, while A.minX equal to B.maxX they do. Nothing is predicted.
bool CollisionIntersection_RectRect(const GameObjBox* pBoxA, const KRVec2* pVelA, const GameObjBox* pBoxB,
                                    const KRVec2* pVelB);
