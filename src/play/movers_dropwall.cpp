// movers_dropwall.cpp -- the wall that falls with gravity: stacking, pushing the character, landing on platforms.
#include "collision.h"
#include "collision_rect.h"
#include "fmodsound.h"
#include "movers.h"
#include "playcommon.h"

#include "character.h"

namespace {

bool IsLiveDropWall(const GameObjInst* pInst)
{
    return (pInst->flag & FLAG_ACTIVE) && pInst->pObject->type == TYPE_DROP_WALL;
}

// Within the other box in x, by the four comparisons of the character's "x inside".
bool WithinX(const GameObjBox& a, const GameObjBox& b)
{
    return CollisionXInside(a, b);
}

void ApplyGravity(GameObjInst* pD, f32 dt)
{
    if (gPlay.sGravityInverted)
        pD->velCurr.y += CHARACTER_GRAVITY * dt;
    else
        pD->velCurr.y -= CHARACTER_GRAVITY * dt;
}

// The character's centre within 300 of the wall's box on each side.
bool CharacterNear(const GameObjBox& X, const GameObjInst* pC)
{
    const f32 x = pC->posCurr.x;
    const f32 y = pC->posCurr.y;
    return X.maxX + 300.0f > x && x > X.minX - 300.0f && X.maxY + 300.0f > y && y > X.minY - 300.0f;
}

// Once a flip at most, and only near the character: a landing far away uses up nothing.
void RockImpact(const GameObjBox& X, const GameObjInst* pC, bool gravityWanted)
{
    if (gPlay.sRockImpactArmed && CharacterNear(X, pC) && (gPlay.sGravityInverted != 0) == gravityWanted)
    {
        EffectPlayRock();
        gPlay.sRockImpactArmed = 0;
    }
}

void BlockCharacter(GameObjInst* pC)
{
    pC->velCurr.x = 0.0f;
    gPlay.sOnGround = 0;
    gPlay.sWallBlocked = 1;
    gPlay.sJumping = 0;
}

} // namespace

void DropWallsNormal(GameObjInst* pC, GameObjPool* pPool, f32 m, f32 dt)
{
    const f32 q = 0.25f * m;
    const GameObjBox& C = pC->boundingBox;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        GameObjInst* pD = &pPool->sGameObjInstList[i];
        if (!IsLiveDropWall(pD))
            continue;
        const GameObjBox& D = pD->boundingBox;
        ApplyGravity(pD, dt);
        for (u32 j = 0; j < GAME_OBJ_INST_NUM_MAX; j++)
        {
            GameObjInst* pE = &pPool->sGameObjInstList[j];
            if (!IsLiveDropWall(pE))
                continue;
            const GameObjBox& E = pE->boundingBox;
            // E is D itself once; the strict tests leave it alone.
            if (CollisionInstances(pE, pD) && D.maxY > E.minY && E.minY > D.minY && E.maxY > D.maxY &&
                E.maxY > D.minY && WithinX(E, D))
            {
                pE->posCurr.y += D.maxY - E.minY;
                pE->velCurr.y = pD->velCurr.y;
            }
        }
        if (CollisionInstances(pC, pD))
        {
            if (C.maxX > D.minX && D.minX > C.minX && D.maxY - q > C.minY)
            {
                pC->posCurr.x -= C.maxX - D.minX + 1.0f;
                BlockCharacter(pC);
                return;
            }
            if (D.maxX > C.minX && C.minX > D.minX && D.maxY - q > C.minY)
            {
                pC->posCurr.x += D.maxX - C.minX + 1.0f;
                BlockCharacter(pC);
                return;
            }
        }
        else
            gPlay.sWallBlocked = 0;
    }
}

void DropWallsInverted(GameObjInst* pC, GameObjPool* pPool, f32 m, f32 dt)
{
    const f32 q = 0.25f * m;
    const GameObjBox& C = pC->boundingBox;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        GameObjInst* pD = &pPool->sGameObjInstList[i];
        if (!IsLiveDropWall(pD))
            continue;
        const GameObjBox& D = pD->boundingBox;
        ApplyGravity(pD, dt);
        for (u32 j = 0; j < GAME_OBJ_INST_NUM_MAX; j++)
        {
            GameObjInst* pE = &pPool->sGameObjInstList[j];
            if (!IsLiveDropWall(pE))
                continue;
            const GameObjBox& E = pE->boundingBox;
            if (CollisionInstances(pE, pD) && E.maxY > D.minY && D.minY > E.minY && D.maxY > E.minY &&
                D.maxY > E.maxY && WithinX(E, D))
            {
                pE->posCurr.y -= E.maxY - D.minY;
                pE->velCurr.y = pD->velCurr.y;
            }
        }
        if (CollisionInstances(pC, pD))
        {
            // The left push is flush; the right push is taken on the wall's right edge alone.
            if (C.maxX > D.minX && D.minX > C.minX && D.maxY - q > C.minY)
            {
                pC->posCurr.x -= C.maxX - D.minX;
                BlockCharacter(pC);
                return;
            }
            if (D.maxX > C.minX && D.maxY - q > C.minY)
            {
                pC->posCurr.x += D.maxX - C.minX + 1.0f;
                BlockCharacter(pC);
                return;
            }
        }
        else
            gPlay.sWallBlocked = 0;
    }
}

void DropWallLandNormal(const GameObjInst* pP, GameObjInst* pX, const GameObjInst* pC)
{
    if (pX->pObject->type != TYPE_DROP_WALL)
        return;
    const GameObjBox& X = pX->boundingBox;
    const GameObjBox& P = pP->boundingBox;
    // The wall is tested against its own box, which always meets: the geometry below decides.
    if (!CollisionIntersection_RectRect(&X, &pX->velCurr, &X, &pP->velCurr))
        return;
    if (P.maxY > X.minY && X.minY > P.minY && X.maxY > P.maxY && X.maxY > P.minY && WithinX(X, P))
    {
        pX->posCurr.y += P.maxY - X.minY;
        pX->velCurr.y = 0.0f;
        RockImpact(X, pC, false);
        return;
    }
    if (X.maxY > P.minY && P.minY > X.minY && P.maxY > X.minY && P.maxY > X.maxY && WithinX(X, P))
    {
        pX->posCurr.y -= X.maxY - P.minY;
        pX->velCurr.y = 0.0f;
    }
}

void DropWallLandInverted(const GameObjInst* pP, GameObjInst* pX, const GameObjInst* pC)
{
    if (pX->pObject->type != TYPE_DROP_WALL)
        return;
    GameObjBox& X = pX->boundingBox;
    const GameObjBox& P = pP->boundingBox;
    if (!CollisionInstances(pX, pP))
        return;
    if (X.maxY > P.minY && P.minY > X.minY && P.maxY > X.minY && P.maxY > X.maxY && WithinX(X, P))
    {
        pX->posCurr.y -= X.maxY - P.minY;
        pX->velCurr.y = 0.0f;
        RockImpact(X, pC, true);
        // The box shrinks to the scale's half until the next frame's box step.
        X.minY = pX->posCurr.y - pX->scale / 2.0f;
        X.maxY = pX->posCurr.y + pX->scale / 2.0f;
    }
    if (P.maxY > X.minY && X.minY > P.minY && X.maxY > P.maxY && X.maxY > P.minY && WithinX(X, P))
    {
        pX->posCurr.y += P.maxY - X.minY;
        pX->velCurr.y = 0.0f;
        // Clearing the character's flag here is an oddity of this routine that stays.
        gPlay.sOnGround = 0;
        X.minY = pX->posCurr.y - pX->scale / 2.0f;
        X.maxY = pX->posCurr.y + pX->scale / 2.0f;
    }
}
