// movers_ride.cpp -- the character carried by a moving platform, through its velocity.
#include "collision.h"
#include "movers.h"
#include "playcommon.h"

// speed x 0.15 + speed: the character goes a little faster than what carries it.
static f32 Carried(f32 speed)
{
    return speed * 0.15f + speed;
}

void PlatformRideNormal(GameObjInst* pC, const GameObjInst* pP, f32 m)
{
    const GameObjBox& C = pC->boundingBox;
    const GameObjBox& P = pP->boundingBox;
    const f32 q = 0.25f * m;
    const f32 r = 0.3f * m;

    // Standing on it: the platform's x speed overrules the walk on the next frame.
    if (P.maxY > C.minY && C.minY > P.minY && C.maxY > P.maxY && C.maxY > P.minY && CollisionXInside(C, P))
    {
        if (pP->velCurr.y > 0.0f)
            pC->velCurr.y -= pP->velCurr.y;
        pC->velCurr.x = Carried(pP->velCurr.x);
        return;
    }
    if (C.maxY > P.maxY && C.maxY > P.minY && P.maxY - q > C.minY && C.minY > P.minY + q && C.maxX > P.minX &&
        P.maxX > C.maxX && P.maxX > C.minX && P.minX > C.minX)
    {
        pC->posCurr.x -= C.maxX - P.minX;
        pC->velCurr.x = 0.0f;
        gPlay.sOnGround = 0;
        CollisionRefreshX(pC);
        return;
    }
    if (C.maxY > P.maxY && C.maxY > P.minY && P.maxY - r > C.minY && C.minY > P.minY + r && C.maxX > P.maxX &&
        C.minX > P.minX && P.maxX > C.minX)
    {
        pC->posCurr.x += P.maxX - C.minX;
        pC->velCurr.x = 0.0f;
        gPlay.sOnGround = 0;
        CollisionRefreshX(pC);
    }
}

void PlatformRideInverted(GameObjInst* pC, const GameObjInst* pP)
{
    const GameObjBox& C = pC->boundingBox;
    const GameObjBox& P = pP->boundingBox;
    if (!CollisionInstances(pC, pP))
        return;
    if (C.maxY > P.minY && P.minY > C.minY && P.maxY > C.minY && P.maxY > C.maxY && CollisionXInside(C, P))
    {
        if (pP->velCurr.y < 0.0f)
            pC->velCurr.y -= pP->velCurr.y;
        if (pP->velCurr.y > 0.0f)
            pC->velCurr.y += pP->velCurr.y;
        pC->velCurr.x = Carried(pP->velCurr.x);
    }
}
