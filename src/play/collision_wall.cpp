// collision_wall.cpp -- the character against the walls of kind TYPE_WALL, walked in slot order.
//
// The normal routine pushes one unit clear of a wall, the inverted routine 0.1. A push ends the walk, so with
// several walls sWallBlocked is decided by the last wall walked, or by the one that ended the walk.
#include "collision.h"

#include "KRInput.h"
#include "playcommon.h"
#include "playkeys.h"

namespace {

// The character's centre is strictly inside the wall in x.
bool CentreInside(const GameObjInst* pC, const GameObjBox& W)
{
    return pC->posCurr.x > W.minX && W.maxX > pC->posCurr.x;
}

// Near enough in x for the top and head cases.
bool CentreNear(const GameObjInst* pC, const GameObjBox& W)
{
    return pC->posCurr.x + 5.0f > W.minX && W.maxX > pC->posCurr.x - 5.0f;
}

// Ends the walk after a side push. A jump off a wall needs a vertical speed of exactly 0; in normal gravity it
// leaves sJumping clear.
void Finish(GameObjInst* pC)
{
    pC->velCurr.x = 0.0f;
    gPlay.sOnGround = 0;
    gPlay.sWallBlocked = 1;
    gPlay.sJumping = 0;
    CollisionRefreshX(pC);
    if (KRInputCheckTriggered(PLAY_KEY_SPACE) && pC->velCurr.y == 0.0f)
    {
        if (gPlay.sGravityInverted)
        {
            pC->velCurr.y = -200.0f;
            gPlay.sJumping = 1;
        }
        else
            pC->velCurr.y = 200.0f;
    }
}

bool IsLiveWall(const GameObjInst* pInst)
{
    return (pInst->flag & FLAG_ACTIVE) && pInst->pObject->type == TYPE_WALL;
}

} // namespace

void CollisionWallsNormal(GameObjInst* pC, GameObjPool* pPool, f32 m)
{
    const GameObjBox& C = pC->boundingBox;
    const f32 q = 0.25f * m;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        const GameObjInst* pW = &pPool->sGameObjInstList[i];
        if (!IsLiveWall(pW))
            continue;
        const GameObjBox& W = pW->boundingBox;
        if (!CollisionInstances(pC, pW))
        {
            gPlay.sWallBlocked = 0;
            continue;
        }
        // On top; the head test follows.
        if (W.maxY > C.minY && C.minY > W.minY && C.maxY > W.maxY && C.maxY > W.minY && CentreNear(pC, W))
        {
            pC->posCurr.y += W.maxY - C.minY;
            pC->velCurr.y = 0.0f;
            CollisionRefreshY(pC);
            gPlay.sOnGround = 1;
            gPlay.sJumping = 0;
        }
        // Head.
        if (C.maxY > W.minY && W.minY > C.minY && W.maxY > C.minY && W.maxY > C.maxY && CentreNear(pC, W))
        {
            pC->posCurr.y -= C.maxY - W.minY;
            pC->velCurr.y = 0.0f;
            gPlay.sOnGround = 0;
            CollisionRefreshY(pC);
        }
        // From the left, then from the right.
        if (C.maxX > W.minX && W.minX > C.minX && W.maxY - q > C.minY && !CentreInside(pC, W))
        {
            pC->posCurr.x -= C.maxX - W.minX + 1.0f;
            Finish(pC);
            return;
        }
        if (W.maxX > C.minX && W.maxY - q > C.minY && !CentreInside(pC, W))
        {
            pC->posCurr.x += W.maxX - C.minX + 1.0f;
            Finish(pC);
            return;
        }
    }
}

void CollisionWallsInverted(GameObjInst* pC, GameObjPool* pPool, f32 m)
{
    const GameObjBox& C = pC->boundingBox;
    const f32 q = 0.25f * m;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        const GameObjInst* pW = &pPool->sGameObjInstList[i];
        if (!IsLiveWall(pW))
            continue;
        const GameObjBox& W = pW->boundingBox;
        if (!CollisionInstances(pC, pW))
        {
            gPlay.sWallBlocked = 0;
            continue;
        }
        // Standing on the wall's lower end. The test of y against exactly 0 is a leftover the game keeps.
        if (C.maxY > W.minY && W.minY > C.minY && W.maxY > C.minY && W.maxY > C.maxY && CentreNear(pC, W) &&
            pC->posCurr.y != 0.0f)
        {
            pC->posCurr.y -= C.maxY - W.minY;
            pC->velCurr.y = 0.0f;
            gPlay.sOnGround = 1;
            CollisionRefreshY(pC);
            continue;
        }
        // Head against the upper end.
        if (W.maxY > C.minY && C.minY > W.minY && C.maxY > W.maxY && C.maxY > W.minY && CentreNear(pC, W))
        {
            pC->posCurr.y += W.maxY - C.minY;
            pC->velCurr.y = 0.0f;
            gPlay.sOnGround = 0;
            CollisionRefreshY(pC);
            continue;
        }
        const bool yNear = C.maxY > W.minY - q && C.minY > W.minY - q;
        if (C.maxX > W.minX && W.minX > C.minX && yNear && !CentreInside(pC, W))
        {
            pC->posCurr.x -= C.maxX - W.minX + 0.1f;
            Finish(pC);
            return;
        }
        if (W.maxX > C.minX && C.maxX > W.maxX && yNear && !CentreInside(pC, W))
        {
            pC->posCurr.x += W.maxX - C.minX + 0.1f;
            Finish(pC);
            return;
        }
    }
}
