// collision.h -- pushing the character out of the solids, one set of routines for each direction of gravity.
//
// The resolution is told apart case by case, in a fixed order, with tolerances that are fractions of a margin of
// 10 units. The two sets look like mirror images and are not quite; the differences are part of the feel.
// C is the character's box, P a platform's, W a wall's; after a vertical push C's y extents are refreshed from
// the character's scale, after a horizontal push its x extents.
#pragma once

#include "gameobj.h"

// The drivers: the whole pass of a frame over the pool. Each returns sHitByMovingWall.
u8 CollisionPlayNormal(GameObjInst* pCharacter, GameObjPool* pPool, f32 margin, f32 dt);
u8 CollisionPlayInverted(GameObjInst* pCharacter, GameObjPool* pPool, f32 margin, f32 dt);

// The routines of the drivers, for the states that write their own pass with their own solids.
void CollisionPlatformNormal(GameObjInst* pCharacter, const GameObjInst* pPlatform, f32 margin);
void CollisionPlatformInverted(GameObjInst* pCharacter, const GameObjInst* pPlatform, f32 margin);
void CollisionWallsNormal(GameObjInst* pCharacter, GameObjPool* pPool, f32 margin);
void CollisionWallsInverted(GameObjInst* pCharacter, GameObjPool* pPool, f32 margin);

// The character's box from its position and scale: a third of its width, its whole height.
void CollisionRefreshX(GameObjInst* pCharacter);
void CollisionRefreshY(GameObjInst* pCharacter);

// Whether the first instance's box meets the second's, with the second's velocity, at the present moment.
bool CollisionInstances(const GameObjInst* pA, const GameObjInst* pB);

// The character's whole width lies on the box in x.
bool CollisionXInside(const GameObjBox& c, const GameObjBox& p);
