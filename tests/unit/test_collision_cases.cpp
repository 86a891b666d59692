// The collision routines case by case, on a hand-made pool with hand-made boxes: the platform cases and their
// tolerances, the touching edges, the moving platform's glue, the wall jumps, the walk of the walls and how far
// each gravity's wall routine pushes.
#include "HandPool.h"
#include "KRInput.h"
#include "KRPlatform.h"
#include "collision.h"
#include "gameloop.h"
#include "playcommon.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>

namespace {

class Solids : public HandPool
{
};

// ---- The platform routine, normal gravity ----

TEST_F(Solids, LandingOnePixelInsideACornerWithTheFeetWithinTheToleranceIsSetOnTop)
{
    // Left edge 1 inside the platform's right end, feet 1 below its top.
    GameObjInst* pP = Platform(0.0f, 0.0f);
    GameObjInst* pC = Character(49.0f + 50.0f / 6.0f, 34.0f, 20.0f, -100.0f);
    CollisionPlatformNormal(pC, pP, 10.0f);
    EXPECT_FLOAT_EQ(pC->posCurr.y, 35.0f) << "feet on the top";
    EXPECT_FLOAT_EQ(pC->velCurr.y, 0.0f);
    EXPECT_TRUE(gPlay.sOnGround);
    EXPECT_FLOAT_EQ(pC->posCurr.x, 49.0f + 50.0f / 6.0f) << "not pushed aside";
}

TEST_F(Solids, LandingOnePixelInsideACornerWithTheFeetDeeperThanTheToleranceIsPushedAside)
{
    // Feet 11 below the top: past the 9.9 of the landing, so a side case takes it.
    GameObjInst* pP = Platform(0.0f, 0.0f);
    const f32 x = 49.0f + 50.0f / 6.0f;
    GameObjInst* pC = Character(x, 24.0f, 20.0f, -100.0f);
    gPlay.sOnGround = 1;
    CollisionPlatformNormal(pC, pP, 10.0f);
    EXPECT_FLOAT_EQ(pC->posCurr.y, 24.0f) << "not lifted";
    EXPECT_NEAR(pC->boundingBox.minX, 50.0f, 1e-4f) << "pushed out of the right side";
    EXPECT_FLOAT_EQ(pC->velCurr.x, 0.0f);
    EXPECT_FALSE(gPlay.sOnGround);
    EXPECT_TRUE(gPlay.sSideB) << "the high right side case";
}

TEST_F(Solids, TheFeetExactlyAtTheToleranceAreNoLongerLanded)
{
    // 9.9 of the margin is the limit; a little past it the side case wins.
    GameObjInst* pP = Platform(0.0f, 0.0f);
    GameObjInst* pC = Character(49.0f + 50.0f / 6.0f, 25.0f + 10.0f - 9.95f, 0.0f, -100.0f);
    CollisionPlatformNormal(pC, pP, 10.0f);
    EXPECT_NEAR(pC->boundingBox.minX, 50.0f, 1e-4f);
}

TEST_F(Solids, RightEdgeOnAStillPlatformsLeftEdgeIsNoCollision)
{
    // The character's right edge exactly on the platform's left edge, its feet 5 below the platform's top.
    GameObjInst* pP = Platform(0.0f, 0.0f);
    GameObjInst* pC = Character(0.0f, 30.0f, 0.0f, -50.0f);
    pC->boundingBox = {-70.0f, 5.0f, -50.0f, 55.0f};
    CollisionPlayNormal(pC, mPool.get(), 10.0f, 1.0f / 60.0f);
    EXPECT_FLOAT_EQ(pC->posCurr.y, 30.0f) << "untouched: the boxes are said not to meet";
    EXPECT_FLOAT_EQ(pC->velCurr.y, -50.0f);
    (void)pP;
}

TEST_F(Solids, LeftEdgeOnAStillPlatformsRightEdgeIsACollision)
{
    GameObjInst* pP = Platform(0.0f, 0.0f);
    GameObjInst* pC = Character(0.0f, 30.0f, 0.0f, -50.0f);
    pC->boundingBox = {50.0f, 5.0f, 70.0f, 55.0f};
    CollisionPlayNormal(pC, mPool.get(), 10.0f, 1.0f / 60.0f);
    EXPECT_FLOAT_EQ(pC->posCurr.y, 35.0f) << "landed on the top past the edge";
    EXPECT_FLOAT_EQ(pC->velCurr.y, 0.0f);
    EXPECT_TRUE(gPlay.sOnGround);
    (void)pP;
}

TEST_F(Solids, SetOnAMovingPlatformByTheTopCaseTheCharacterCanKeepTheFullGravityInItsVerticalSpeed)
{
    // Under the ledge lock the routine stops after the top case: the character is carried at 1.15 of the
    // platform's speed and pressed into it at -250.1, which the next frame's overlap resolves again.
    Platform(0.0f, 0.0f, TYPE_PLATFORM_MOVING, 100.0f, 0.0f);
    GameObjInst* pC = Character(0.0f, 34.0f, 0.0f, -4.0f);
    gPlay.sLedgeLock = 1;
    CollisionPlayNormal(pC, mPool.get(), 10.0f, 1.0f / 60.0f);
    EXPECT_FLOAT_EQ(pC->posCurr.y, 35.0f);
    EXPECT_FLOAT_EQ(pC->velCurr.y, -250.1f);
    EXPECT_FLOAT_EQ(pC->velCurr.x, 115.0f);
    EXPECT_TRUE(gPlay.sOnGround);
    EXPECT_TRUE(gPlay.sTopContact);
}

TEST_F(Solids, WithoutTheLockTheLandingCaseAfterTheTopCaseTakesTheGlueBack)
{
    Platform(0.0f, 0.0f, TYPE_PLATFORM_MOVING, 100.0f, 0.0f);
    GameObjInst* pC = Character(0.0f, 34.0f, 0.0f, -4.0f);
    CollisionPlayNormal(pC, mPool.get(), 10.0f, 1.0f / 60.0f);
    EXPECT_FLOAT_EQ(pC->posCurr.y, 35.0f);
    EXPECT_FLOAT_EQ(pC->velCurr.y, 0.0f);
    EXPECT_FLOAT_EQ(pC->velCurr.x, 115.0f);
    EXPECT_TRUE(gPlay.sOnGround);
    EXPECT_FALSE(gPlay.sTopContact) << "cleared when no lock stops the routine";
}

TEST_F(Solids, AStillPlatformLeavesTheVerticalSpeedAtZero)
{
    Platform(0.0f, 0.0f);
    GameObjInst* pC = Character(0.0f, 34.0f, 0.0f, -4.0f);
    gPlay.sLedgeLock = 1;
    CollisionPlayNormal(pC, mPool.get(), 10.0f, 1.0f / 60.0f);
    EXPECT_FLOAT_EQ(pC->velCurr.y, 0.0f);
    EXPECT_FLOAT_EQ(pC->velCurr.x, 0.0f) << "only a moving platform carries";
}

// Side cases against a platform at (0, 0), which spans -50 to 50 and -10 to 10.
struct SideCase
{
    const char* name;
    f32 x, y;      // the character's centre
    bool jumps;    // Space gives a wall jump here
    bool fromLeft;
};

const f32 kLeftX = -48.0f - 50.0f / 6.0f; // right edge 2 inside the platform's left end
const f32 kRightX = 48.0f + 50.0f / 6.0f; // left edge 2 inside its right end

TEST_F(Solids, AWallJumpOffAPlatformsSideIsOnlyInTheNamedCases)
{
    const SideCase cases[] = {
        {"left, low", kLeftX, -20.0f, false, true},          {"left, at the top", kLeftX, 0.0f, true, true},
        {"left, high", kLeftX, 25.0f, false, true},          {"right, high", kRightX, 25.0f, true, false},
        {"right, at the top", kRightX, 0.0f, true, false},   {"right, low", kRightX, -20.0f, false, false},
    };
    for (const SideCase& c : cases)
    {
        SetUp();
        GameObjInst* pP = Platform(0.0f, 0.0f);
        GameObjInst* pC = Character(c.x, c.y, 30.0f, -5.0f);
        PressSpace();
        CollisionPlatformNormal(pC, pP, 10.0f);
        EXPECT_FLOAT_EQ(pC->velCurr.x, 0.0f) << c.name;
        if (c.fromLeft)
            EXPECT_LE(pC->boundingBox.maxX, -50.0f + 1e-4f) << c.name << ": pushed out to the left";
        else
            EXPECT_GE(pC->boundingBox.minX, 50.0f - 1e-4f) << c.name << ": pushed out to the right";
        if (c.jumps)
        {
            EXPECT_FLOAT_EQ(pC->velCurr.y, 200.0f) << c.name;
            EXPECT_TRUE(gPlay.sJumping) << c.name;
            EXPECT_TRUE(gPlay.sLedgeLock) << c.name;
        }
        else
            EXPECT_FLOAT_EQ(pC->velCurr.y, -5.0f) << c.name << ": no jump";
    }
}

TEST_F(Solids, TheLowRightSideCasePushesOneUnitClearAndLeavesTheGround)
{
    GameObjInst* pP = Platform(0.0f, 0.0f);
    GameObjInst* pC = Character(kRightX, -20.0f);
    gPlay.sOnGround = 1;
    CollisionPlatformNormal(pC, pP, 10.0f);
    EXPECT_NEAR(pC->boundingBox.minX, 51.0f, 1e-4f);
    EXPECT_TRUE(gPlay.sOnGround) << "this case leaves the flag as it was";
}

TEST_F(Solids, AfterAJumpAgainstASideTheLedgeLockStopsTheSideCases)
{
    GameObjInst* pP = Platform(0.0f, 0.0f);
    GameObjInst* pC = Character(kLeftX, 0.0f, 0.0f, 50.0f);
    gPlay.sJumping = 1;
    CollisionPlatformNormal(pC, pP, 10.0f);
    EXPECT_TRUE(gPlay.sLedgeLock) << "a jumping character at the top of the side locks the ledge";
    // Moving up again into the side: the lock keeps the side cases off.
    pC->posCurr.x = kLeftX;
    CollisionRefreshX(pC);
    CollisionPlatformNormal(pC, pP, 10.0f);
    EXPECT_FLOAT_EQ(pC->posCurr.x, kLeftX) << "not pushed while locked";
    // Falling fast undoes it.
    pC->velCurr.y = -11.0f;
    CollisionPlatformNormal(pC, pP, 10.0f);
    EXPECT_LT(pC->posCurr.x, kLeftX);
}

TEST_F(Solids, AFastFallSunkIntoAPlatformIsPulledDownThroughIt)
{
    // Box from -20 to 30 through a platform from -10 to 10: neither the top nor the head case holds, the feet are
    // too deep to land; the fall case pulls it down under the platform.
    GameObjInst* pP = Platform(0.0f, 0.0f);
    GameObjInst* pC = Character(0.0f, 5.0f, 0.0f, -300.0f);
    CollisionPlatformNormal(pC, pP, 10.0f);
    EXPECT_FLOAT_EQ(pC->boundingBox.maxY, -10.0f);
    EXPECT_FLOAT_EQ(pC->velCurr.y, 0.0f);
    EXPECT_FALSE(gPlay.sOnGround);
}

// ---- The platform routine, inverted gravity ----

TEST_F(Solids, InvertedStandingOnAnUndersideSetsTheGroundAndKeepsTheJump)
{
    // Under the ledge lock the routine stops after this case, so nothing later clears the flag.
    gPlay.sGravityInverted = 1;
    gPlay.sJumping = 1;
    gPlay.sLedgeLock = 1;
    GameObjInst* pP = Platform(0.0f, 0.0f);
    GameObjInst* pC = Character(0.0f, -34.0f, 0.0f, 5.0f);
    CollisionPlatformInverted(pC, pP, 10.0f);
    EXPECT_FLOAT_EQ(pC->posCurr.y, -35.0f);
    EXPECT_FLOAT_EQ(pC->velCurr.y, 0.0f);
    EXPECT_TRUE(gPlay.sOnGround);
    EXPECT_TRUE(gPlay.sJumping) << "not cleared by this case";
}

TEST_F(Solids, InvertedLeftSideAtTheTopPushesFlushAndTouchesNothingElse)
{
    gPlay.sGravityInverted = 1;
    gPlay.sOnGround = 1;
    gPlay.sJumping = 1;
    GameObjInst* pP = Platform(0.0f, 0.0f);
    GameObjInst* pC = Character(kLeftX, 0.0f, 30.0f, 5.0f);
    PressSpace();
    CollisionPlatformInverted(pC, pP, 10.0f);
    EXPECT_NEAR(pC->boundingBox.maxX, -50.0f, 1e-4f) << "no unit of clearance";
    EXPECT_FLOAT_EQ(pC->velCurr.x, 0.0f);
    EXPECT_FLOAT_EQ(pC->velCurr.y, 5.0f) << "no jump";
    EXPECT_TRUE(gPlay.sOnGround);
    EXPECT_FALSE(gPlay.sLedgeLock);
}

TEST_F(Solids, InvertedRightSideAtTheTopGivesTheWallJumpDownward)
{
    gPlay.sGravityInverted = 1;
    GameObjInst* pP = Platform(0.0f, 0.0f);
    GameObjInst* pC = Character(kRightX, 0.0f, -30.0f, -5.0f);
    PressSpace();
    CollisionPlatformInverted(pC, pP, 10.0f);
    EXPECT_NEAR(pC->boundingBox.minX, 50.0f, 1e-4f);
    EXPECT_FLOAT_EQ(pC->velCurr.y, -200.0f);
    EXPECT_TRUE(gPlay.sJumping);
    EXPECT_TRUE(gPlay.sLedgeLock);
}

TEST_F(Solids, InvertedLowRightSideIsFlush)
{
    gPlay.sGravityInverted = 1;
    GameObjInst* pP = Platform(0.0f, 0.0f);
    GameObjInst* pC = Character(kRightX, -20.0f);
    CollisionPlatformInverted(pC, pP, 10.0f);
    EXPECT_NEAR(pC->boundingBox.minX, 50.0f, 1e-4f);
    EXPECT_TRUE(gPlay.sSideB);
}

TEST_F(Solids, InvertedLandingPastAnEdgeSetsTheHeadUnderTheUnderside)
{
    gPlay.sGravityInverted = 1;
    GameObjInst* pP = Platform(0.0f, 0.0f);
    // Right part past the platform's left end, top 1 above the underside.
    GameObjInst* pC = Character(-49.0f - 50.0f / 6.0f, -34.0f, 0.0f, 100.0f);
    CollisionPlatformInverted(pC, pP, 10.0f);
    EXPECT_FLOAT_EQ(pC->boundingBox.maxY, -10.0f);
    EXPECT_TRUE(gPlay.sOnGround);
}

// ---- The wall routines ----

TEST_F(Solids, AWallJumpOffAWallNeedsAVerticalSpeedOfExactlyZero)
{
    Wall(0.0f, 0.0f);
    GameObjInst* pC = Character(-16.0f, 0.0f, 50.0f, 0.0f);
    PressSpace();
    CollisionWallsNormal(pC, mPool.get(), 10.0f);
    EXPECT_TRUE(gPlay.sWallBlocked);
    EXPECT_FLOAT_EQ(pC->velCurr.y, 200.0f);
    EXPECT_FALSE(gPlay.sJumping) << "in normal gravity the jump off a wall leaves sJumping clear";

    SetUp();
    Wall(0.0f, 0.0f);
    pC = Character(-16.0f, 0.0f, 50.0f, -0.5f);
    PressSpace();
    CollisionWallsNormal(pC, mPool.get(), 10.0f);
    EXPECT_TRUE(gPlay.sWallBlocked);
    EXPECT_FLOAT_EQ(pC->velCurr.y, -0.5f) << "falling: no jump";
}

TEST_F(Solids, InvertedWallJumpGoesDownAndSetsTheJump)
{
    gPlay.sGravityInverted = 1;
    Wall(0.0f, 0.0f);
    GameObjInst* pC = Character(-16.0f, 0.0f, 50.0f, 0.0f);
    PressSpace();
    CollisionWallsInverted(pC, mPool.get(), 10.0f);
    EXPECT_FLOAT_EQ(pC->velCurr.y, -200.0f);
    EXPECT_TRUE(gPlay.sJumping);
}

TEST_F(Solids, TheNormalWallRoutinePushesOneUnitClearAndTheInvertedOneTenth)
{
    Wall(0.0f, 0.0f);
    GameObjInst* pC = Character(-16.0f, 0.0f, 50.0f, 0.0f);
    CollisionWallsNormal(pC, mPool.get(), 10.0f);
    EXPECT_NEAR(pC->boundingBox.maxX, -11.0f, 1e-4f);
    EXPECT_FLOAT_EQ(pC->velCurr.x, 0.0f);

    pC->posCurr.x = -16.0f;
    CollisionRefreshX(pC);
    gPlay.sGravityInverted = 1;
    CollisionWallsInverted(pC, mPool.get(), 10.0f);
    EXPECT_NEAR(pC->boundingBox.maxX, -10.1f, 1e-4f);

    pC->posCurr.x = 16.0f;
    CollisionRefreshX(pC);
    CollisionWallsInverted(pC, mPool.get(), 10.0f);
    EXPECT_NEAR(pC->boundingBox.minX, 10.1f, 1e-4f) << "from the right";
    gPlay.sGravityInverted = 0;
    pC->posCurr.x = 16.0f;
    CollisionRefreshX(pC);
    CollisionWallsNormal(pC, mPool.get(), 10.0f);
    EXPECT_NEAR(pC->boundingBox.minX, 11.0f, 1e-4f);
}

TEST_F(Solids, AWallWalkedAfterTheBlockingWallClearsNothing)
{
    Wall(0.0f, 0.0f);     // blocks
    Wall(500.0f, 0.0f);   // far away, walked after
    GameObjInst* pC = Character(-16.0f, 0.0f, 50.0f, -3.0f);
    CollisionWallsNormal(pC, mPool.get(), 10.0f);
    EXPECT_TRUE(gPlay.sWallBlocked) << "the walk ended at the block";
}

TEST_F(Solids, AWallWalkedBeforeTheBlockingWallClearsTheFlagThatTheBlockSetsAgain)
{
    Wall(500.0f, 0.0f);   // far away, walked first
    Wall(0.0f, 0.0f);     // blocks
    GameObjInst* pC = Character(-16.0f, 0.0f, 50.0f, -3.0f);
    gPlay.sWallBlocked = 1;
    CollisionWallsNormal(pC, mPool.get(), 10.0f);
    EXPECT_TRUE(gPlay.sWallBlocked);

    // With the character away from both, the last wall walked decides: clear.
    pC->posCurr.x = -200.0f;
    CollisionRefreshX(pC);
    CollisionWallsNormal(pC, mPool.get(), 10.0f);
    EXPECT_FALSE(gPlay.sWallBlocked);
}

TEST_F(Solids, StandingOnAWallsTopLandsAndThenTheSideTestsAreStillMade)
{
    Wall(0.0f, 0.0f);
    GameObjInst* pC = Character(0.0f, 74.0f, 0.0f, -20.0f);
    CollisionWallsNormal(pC, mPool.get(), 10.0f);
    EXPECT_FLOAT_EQ(pC->posCurr.y, 75.0f);
    EXPECT_TRUE(gPlay.sOnGround);
    EXPECT_FALSE(gPlay.sWallBlocked) << "feet above the wall's top: no side push";
}

TEST_F(Solids, InvertedStandingUnderAWallIsSkippedAtAYOfExactlyZero)
{
    // The leftover test on the character's y: a character whose centre is exactly at 0 is not set under the wall.
    gPlay.sGravityInverted = 1;
    Wall(0.0f, 74.0f);
    GameObjInst* pC = Character(0.0f, 0.0f, 0.0f, 20.0f);
    CollisionWallsInverted(pC, mPool.get(), 10.0f);
    EXPECT_FLOAT_EQ(pC->posCurr.y, 0.0f);
    EXPECT_FALSE(gPlay.sOnGround);

    pC->posCurr.y = 0.5f;
    CollisionRefreshY(pC);
    CollisionWallsInverted(pC, mPool.get(), 10.0f);
    EXPECT_FLOAT_EQ(pC->boundingBox.maxY, 24.0f);
    EXPECT_TRUE(gPlay.sOnGround);
}

} // namespace
