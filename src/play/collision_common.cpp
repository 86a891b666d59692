// collision_common.cpp -- the refresh of the character's box and the small tests the routines share.
#include "collision.h"

#include "collision_rect.h"

void CollisionRefreshX(GameObjInst* pCharacter)
{
    pCharacter->boundingBox.minX = pCharacter->posCurr.x - pCharacter->scale / 6.0f;
    pCharacter->boundingBox.maxX = pCharacter->posCurr.x + pCharacter->scale / 6.0f;
}

void CollisionRefreshY(GameObjInst* pCharacter)
{
    pCharacter->boundingBox.minY = pCharacter->posCurr.y - pCharacter->scale / 2.0f;
    pCharacter->boundingBox.maxY = pCharacter->posCurr.y + pCharacter->scale / 2.0f;
}

bool CollisionInstances(const GameObjInst* pA, const GameObjInst* pB)
{
    return CollisionIntersection_RectRect(&pA->boundingBox, &pA->velCurr, &pB->boundingBox, &pB->velCurr);
}

bool CollisionXInside(const GameObjBox& c, const GameObjBox& p)
{
    return c.maxX >= p.minX && p.maxX >= c.maxX && c.minX >= p.minX && p.maxX >= c.minX;
}
