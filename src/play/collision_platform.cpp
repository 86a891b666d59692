// collision_platform.cpp -- the character against one horizontal platform, in normal and in inverted gravity.
//
// Each case is tested in its order; a case that "goes on" lets the next ones be tried, the others return. The
// latches sSideA and sSideB stop a second side case of the same call; sLedgeLock turns the side cases off after
// a jump against a platform's side until the character falls fast or stands on top again.
#include "collision.h"

#include "KRInput.h"
#include "playcommon.h"
#include "playkeys.h"

namespace {

// The exact edge equalities that cases 9 to 11 are made to exclude; the full set cannot hold for a real box.
bool ImpossibleEquality(const GameObjBox& c, const GameObjBox& p)
{
    return c.maxX == p.minX && c.maxX == p.maxX && c.minX == p.minX && c.minX == p.maxX;
}

bool FlushEdge(const GameObjBox& c, const GameObjBox& p)
{
    return c.maxX == p.minX || c.maxX == p.maxX || c.minX == p.minX || c.minX == p.maxX;
}

// The x comparisons of the left side cases: the character's right edge is inside the platform, its left edge out.
bool FromLeftX(const GameObjBox& c, const GameObjBox& p)
{
    return c.maxX > p.minX && p.maxX > c.maxX && p.maxX > c.minX && p.minX > c.minX;
}

// Those of the right side cases: the character's left edge is inside the platform, its right edge out.
bool FromRightX(const GameObjBox& c, const GameObjBox& p)
{
    return c.maxX > p.maxX && c.maxX > p.minX && c.minX > p.minX && p.maxX > c.minX;
}

void WallJump(GameObjInst* pC)
{
    pC->velCurr.y = gPlay.sGravityInverted ? -200.0f : 200.0f;
    gPlay.sLedgeLock = 1;
    gPlay.sJumping = 1;
    CollisionRefreshX(pC);
}

bool SpacePressed()
{
    return KRInputCheckTriggered(PLAY_KEY_SPACE) != 0;
}

// A push out of the side: x speed 0, off the ground.
void SidePush(GameObjInst* pC, f32 dx)
{
    pC->posCurr.x += dx;
    pC->velCurr.x = 0.0f;
    gPlay.sOnGround = 0;
}

} // namespace

void CollisionPlatformNormal(GameObjInst* pC, const GameObjInst* pPlatform, f32 m)
{
    const GameObjBox& C = pC->boundingBox;
    const GameObjBox& P = pPlatform->boundingBox;
    const f32 q = 0.25f * m;
    const f32 r = 0.3f * m;

    gPlay.sSideA = 0;
    gPlay.sSideB = 0;
    if (pC->velCurr.y < -10.0f || gPlay.sTopContact)
        gPlay.sLedgeLock = 0;

    // 1. On top; goes on. A moving platform presses the character down into itself to keep it glued.
    if (P.maxY > C.minY && C.minY > P.minY && C.maxY > P.maxY && C.maxY > P.minY && CollisionXInside(C, P))
    {
        pC->posCurr.y += P.maxY - C.minY;
        pC->velCurr.y = 0.0f;
        if (pPlatform->pObject->type == TYPE_PLATFORM_MOVING)
            pC->velCurr.y = -250.1f;
        CollisionRefreshY(pC);
        gPlay.sTopContact = 1;
        gPlay.sOnGround = 1;
        gPlay.sJumping = 0;
    }

    if (gPlay.sLedgeLock)
        return;
    gPlay.sTopContact = 0;

    // 2. Head against the underside.
    if (C.maxY > P.minY && P.minY > C.minY && P.maxY > C.minY && P.maxY > C.maxY && CollisionXInside(C, P))
    {
        pC->posCurr.y -= C.maxY - P.minY;
        pC->velCurr.y = 0.0f;
        gPlay.sOnGround = 0;
        CollisionRefreshY(pC);
        return;
    }
    // 3. Left side, low.
    if (C.maxY > P.minY + q && P.maxY - q > C.maxY && P.maxY > C.minY && P.minY > C.minY && FromLeftX(C, P) &&
        !gPlay.sSideA)
    {
        SidePush(pC, -(C.maxX - P.minX));
        gPlay.sSideA = 1;
        CollisionRefreshX(pC);
        return;
    }
    // 4. Left side, at the top of the character.
    if (C.maxY > P.maxY - q && C.maxY > P.minY && P.maxY > C.minY && P.minY + q > C.minY && FromLeftX(C, P))
    {
        SidePush(pC, -(C.maxX - P.minX + 1.0f));
        if (gPlay.sJumping)
            gPlay.sLedgeLock = 1;
        if (SpacePressed())
            return WallJump(pC);
        CollisionRefreshX(pC);
        return;
    }
    // 5. Left side, high.
    if (C.maxY > P.maxY && C.maxY > P.minY && P.maxY - q > C.minY && C.minY > P.minY + q && FromLeftX(C, P) &&
        !gPlay.sSideB)
    {
        SidePush(pC, -(C.maxX - P.minX));
        gPlay.sSideB = 1;
        CollisionRefreshX(pC);
        return;
    }
    // 6. Right side, high.
    if (C.maxY > P.maxY && C.maxY > P.minY && P.maxY - q > C.minY && C.minY > P.minY + q && C.maxX > P.maxX &&
        C.minX > P.minX && P.maxX > C.minX && !gPlay.sSideB)
    {
        SidePush(pC, P.maxX - C.minX);
        gPlay.sSideB = 1;
        if (SpacePressed())
            return WallJump(pC);
        CollisionRefreshX(pC);
        return;
    }
    // 7. Right side, at the top of the character.
    if (C.maxY > P.maxY - q && C.maxY > P.minY && P.maxY > C.minY && P.minY + q > C.minY && FromRightX(C, P))
    {
        SidePush(pC, P.maxX - C.minX);
        if (SpacePressed())
            return WallJump(pC);
        CollisionRefreshX(pC);
        return;
    }
    // 8. Right side, low: pushed one unit clear, and sOnGround is left as it was.
    if (P.maxY - r > C.maxY && C.maxY > P.minY + r && P.maxY > C.minY && P.minY > C.minY && FromRightX(C, P) &&
        !gPlay.sSideA)
    {
        pC->posCurr.x += P.maxX - C.minX + 1.0f;
        pC->velCurr.x = 0.0f;
        gPlay.sSideA = 1;
        CollisionRefreshX(pC);
        return;
    }
    // 9. Landing past the edge; goes on.
    if (!ImpossibleEquality(C, P) && C.minY > P.maxY - 0.99f * m)
    {
        pC->posCurr.y += P.maxY - C.minY;
        pC->velCurr.y = 0.0f;
        gPlay.sOnGround = 1;
        gPlay.sJumping = 0;
        CollisionRefreshY(pC);
    }
    // 10. Landing flush with an edge; goes on. The x extents are refreshed here, not the y extents.
    if (FlushEdge(C, P) && C.minY > P.maxY - q)
    {
        pC->posCurr.y += P.maxY - C.minY;
        pC->velCurr.y = 0.0f;
        gPlay.sOnGround = 1;
        gPlay.sJumping = 0;
        CollisionRefreshX(pC);
    }
    // 11. A fast fall sunk into the underside is pulled down through the platform.
    if (!ImpossibleEquality(C, P) && C.maxY > P.minY + 0.5f * m && !gPlay.sOnGround && pC->velCurr.y < -200.0f)
    {
        pC->posCurr.y -= C.maxY - P.minY;
        pC->velCurr.y = 0.0f;
        gPlay.sOnGround = 0;
        gPlay.sJumping = 0;
        CollisionRefreshY(pC);
    }
}

void CollisionPlatformInverted(GameObjInst* pC, const GameObjInst* pPlatform, f32 m)
{
    const GameObjBox& C = pC->boundingBox;
    const GameObjBox& P = pPlatform->boundingBox;
    const f32 q = 0.25f * m;
    const f32 r = 0.3f * m;

    gPlay.sSideA = 0;
    gPlay.sSideB = 0;
    if (pC->velCurr.y > 10.0f || gPlay.sTopContact)
        gPlay.sLedgeLock = 0;

    // 1. Standing on the underside; goes on. sJumping is not cleared here.
    if (C.maxY > P.minY && P.minY > C.minY && P.maxY > C.minY && P.maxY > C.maxY && CollisionXInside(C, P))
    {
        pC->posCurr.y -= C.maxY - P.minY;
        pC->velCurr.y = 0.0f;
        gPlay.sOnGround = 1;
        gPlay.sTopContact = 1;
        CollisionRefreshY(pC);
    }

    if (gPlay.sLedgeLock)
        return;
    gPlay.sTopContact = 0;

    // 2. Head against the top.
    if (P.maxY > C.minY && C.minY > P.minY && C.maxY > P.maxY && C.maxY > P.minY && CollisionXInside(C, P))
    {
        pC->posCurr.y += P.maxY - C.minY;
        pC->velCurr.y = 0.0f;
        gPlay.sOnGround = 0;
        CollisionRefreshY(pC);
        return;
    }
    // 3. Left side, low, latched by sSideB.
    if (C.maxY > P.minY + q && P.maxY - q > C.maxY && P.maxY > C.minY && P.minY > C.minY && FromLeftX(C, P) &&
        !gPlay.sSideB)
    {
        SidePush(pC, -(C.maxX - P.minX));
        gPlay.sSideB = 1;
        CollisionRefreshX(pC);
        return;
    }
    // 4. Left side at the top of the character: only the push, flush, and nothing else.
    if (C.maxY > P.maxY - q && C.maxY > P.minY && P.maxY > C.minY && P.minY + q > C.minY && FromLeftX(C, P))
    {
        pC->posCurr.x -= C.maxX - P.minX;
        pC->velCurr.x = 0.0f;
        CollisionRefreshX(pC);
        return;
    }
    // 5. Left side, high, latched by sSideA.
    if (C.maxY > P.maxY && C.maxY > P.minY && P.maxY - q > C.minY && C.minY > P.minY + q && FromLeftX(C, P) &&
        !gPlay.sSideA)
    {
        SidePush(pC, -(C.maxX - P.minX));
        gPlay.sSideA = 1;
        CollisionRefreshX(pC);
        return;
    }
    // 6. Right side, high, with 0.3 of the margin for both tolerances.
    if (C.maxY > P.maxY && C.maxY > P.minY && P.maxY - r > C.minY && C.minY > P.minY + r && C.maxX > P.maxX &&
        C.minX > P.minX && P.maxX > C.minX && !gPlay.sSideA)
    {
        SidePush(pC, P.maxX - C.minX);
        gPlay.sSideA = 1;
        CollisionRefreshX(pC);
        return;
    }
    // 7. Right side at the top of the character, with the jump off it.
    if (C.maxY > P.maxY - q && C.maxY > P.minY && P.maxY > C.minY && P.minY + q > C.minY && FromRightX(C, P))
    {
        SidePush(pC, P.maxX - C.minX);
        if (gPlay.sJumping)
            gPlay.sLedgeLock = 1;
        if (SpacePressed())
        {
            pC->velCurr.y = gPlay.sGravityInverted ? -200.0f : 200.0f;
            gPlay.sJumping = 1;
            gPlay.sLedgeLock = 1;
        }
        CollisionRefreshX(pC);
        return;
    }
    // 8. Right side, low, flush, latched by sSideB.
    if (P.maxY - r > C.maxY && C.maxY > P.minY + r && P.maxY > C.minY && P.minY > C.minY && FromRightX(C, P) &&
        !gPlay.sSideB)
    {
        pC->posCurr.x += P.maxX - C.minX;
        pC->velCurr.x = 0.0f;
        gPlay.sSideB = 1;
        CollisionRefreshX(pC);
        return;
    }
    // 9. Landing on the underside past the edge; goes on.
    if (!ImpossibleEquality(C, P) && C.maxY > P.minY - 0.99f * m && P.minY - 0.99f * m > C.minY)
    {
        pC->posCurr.y += P.minY - C.maxY;
        pC->velCurr.y = 0.0f;
        gPlay.sOnGround = 1;
        gPlay.sJumping = 0;
        CollisionRefreshY(pC);
    }
    // 10. Flush with an edge; goes on. Here the y extents are refreshed.
    if (FlushEdge(C, P) && C.minY > P.maxY - q)
    {
        pC->posCurr.y += P.minY - C.maxY;
        pC->velCurr.y = 0.0f;
        gPlay.sOnGround = 1;
        gPlay.sJumping = 0;
        CollisionRefreshY(pC);
    }
    // 11. A fast rise sunk into the top.
    if (!ImpossibleEquality(C, P) && C.minY > P.maxY - q && !gPlay.sOnGround && pC->velCurr.y > 200.0f)
    {
        pC->posCurr.y -= C.minY - P.maxY;
        pC->velCurr.y = 0.0f;
        gPlay.sOnGround = 0;
        gPlay.sJumping = 0;
        CollisionRefreshY(pC);
    }
}
