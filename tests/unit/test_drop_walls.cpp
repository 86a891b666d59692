// The drop walls on a hand-made pool: their gravity in both directions, stacking, pushing the character, and
// landing on platforms, near and far.
#include "HandPool.h"
#include "KRInput.h"
#include "KRPlatform.h"
#include "collision.h"
#include "movers.h"
#include "gameloop.h"
#include "playcommon.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>

namespace {

class DropWalls : public HandPool
{
};

const f32 kDropDt = 1.0f / 60.0f;

TEST_F(DropWalls, ADropWallSinksUnderNormalGravityAndRisesUnderInverted)
{
    GameObjInst* pD = DropWall(300.0f, 0.0f);
    GameObjInst* pC = Character(-300.0f, 0.0f);
    DropWallsNormal(pC, mPool.get(), 10.0f, kDropDt);
    EXPECT_FLOAT_EQ(pD->velCurr.y, -250.1f * kDropDt);

    gPlay.sGravityInverted = 1;
    pD->velCurr.y = 0.0f;
    DropWallsInverted(pC, mPool.get(), 10.0f, kDropDt);
    EXPECT_FLOAT_EQ(pD->velCurr.y, 250.1f * kDropDt);
}

TEST_F(DropWalls, DuringAFreezeBackToNormalGravityTheInvertedRoutineStillPullsDown)
{
    // The inverted routine runs during every freeze; its gravity follows the flag, which already points down.
    GameObjInst* pD = DropWall(300.0f, 0.0f);
    GameObjInst* pC = Character(-300.0f, 0.0f);
    gPlay.sGravityInverted = 0;
    DropWallsInverted(pC, mPool.get(), 10.0f, kDropDt);
    EXPECT_FLOAT_EQ(pD->velCurr.y, -250.1f * kDropDt);
}

TEST_F(DropWalls, ADropWallOnTopOfAnotherIsSetOnItAndTakesItsSpeed)
{
    GameObjInst* pE = DropWall(0.0f, 99.0f); // walked first, 1 into the top of the lower one
    GameObjInst* pD = DropWall(0.0f, 0.0f, -30.0f);
    GameObjInst* pC = Character(-300.0f, 0.0f);
    DropWallsNormal(pC, mPool.get(), 10.0f, kDropDt);
    EXPECT_FLOAT_EQ(pE->posCurr.y, 100.0f);
    EXPECT_FLOAT_EQ(pE->velCurr.y, pD->velCurr.y);
    EXPECT_FLOAT_EQ(pD->posCurr.y, 0.0f) << "the lower one is not moved by the upper";
}

TEST_F(DropWalls, InvertedStackingSetsTheLowerOneUnderTheUpper)
{
    gPlay.sGravityInverted = 1;
    GameObjInst* pE = DropWall(0.0f, -99.0f);
    GameObjInst* pD = DropWall(0.0f, 0.0f, 30.0f);
    GameObjInst* pC = Character(-300.0f, 0.0f);
    DropWallsInverted(pC, mPool.get(), 10.0f, kDropDt);
    EXPECT_FLOAT_EQ(pE->posCurr.y, -100.0f);
    EXPECT_FLOAT_EQ(pE->velCurr.y, pD->velCurr.y);
}

TEST_F(DropWalls, ADropWallPushesTheCharacterOneUnitClearAndEndsTheRoutine)
{
    DropWall(0.0f, 0.0f);
    GameObjInst* pLater = DropWall(600.0f, 0.0f);
    GameObjInst* pC = Character(-16.0f, 0.0f, 80.0f, 0.0f);
    gPlay.sOnGround = 1;
    gPlay.sJumping = 1;
    DropWallsNormal(pC, mPool.get(), 10.0f, kDropDt);
    EXPECT_NEAR(pC->posCurr.x + 50.0f / 6.0f, -11.0f, 1e-4f);
    EXPECT_FLOAT_EQ(pC->velCurr.x, 0.0f);
    EXPECT_FALSE(gPlay.sOnGround);
    EXPECT_TRUE(gPlay.sWallBlocked);
    EXPECT_FALSE(gPlay.sJumping);
    EXPECT_FLOAT_EQ(pLater->velCurr.y, 0.0f) << "the walls after the push wait for the next frame";
}

TEST_F(DropWalls, InvertedTheLeftPushIsFlush)
{
    gPlay.sGravityInverted = 1;
    DropWall(0.0f, 0.0f);
    GameObjInst* pC = Character(-16.0f, 0.0f, 80.0f, 0.0f);
    DropWallsInverted(pC, mPool.get(), 10.0f, kDropDt);
    EXPECT_NEAR(pC->posCurr.x + 50.0f / 6.0f, -10.0f, 1e-4f);
    EXPECT_TRUE(gPlay.sWallBlocked);
}

TEST_F(DropWalls, InvertedTheRightPushNeedsOnlyTheWallsRightEdge)
{
    // The character's left edge exactly on the wall's left edge: the normal routine has no case for it, the
    // inverted one pushes it out to the right.
    GameObjInst* pD = DropWall(0.0f, 0.0f);
    GameObjInst* pC = Character(0.0f, 0.0f);
    pC->boundingBox.minX = -10.0f;
    pC->boundingBox.maxX = -10.0f + 50.0f / 3.0f;
    DropWallsNormal(pC, mPool.get(), 10.0f, kDropDt);
    EXPECT_FLOAT_EQ(pC->posCurr.x, 0.0f);
    EXPECT_FALSE(gPlay.sWallBlocked);

    gPlay.sGravityInverted = 1;
    pD->velCurr.y = 0.0f;
    DropWallsInverted(pC, mPool.get(), 10.0f, kDropDt);
    EXPECT_FLOAT_EQ(pC->posCurr.x, 21.0f);
    EXPECT_TRUE(gPlay.sWallBlocked);
}

TEST_F(DropWalls, ALandingOnAPlatformStopsTheWallOnItsTop)
{
    GameObjInst* pP = Make(TYPE_PLATFORM, 1.0f, 0.0f, 0.0f);
    pP->boundingBox = {-50.0f, -10.0f, 50.0f, 10.0f};
    GameObjInst* pX = DropWall(0.0f, 59.0f, -40.0f);
    GameObjInst* pC = Character(-2000.0f, 0.0f);
    gPlay.sRockImpactArmed = 1;
    DropWallLandNormal(pP, pX, pC);
    EXPECT_FLOAT_EQ(pX->posCurr.y, 60.0f);
    EXPECT_FLOAT_EQ(pX->velCurr.y, 0.0f);
    EXPECT_TRUE(gPlay.sRockImpactArmed) << "a landing far from the character uses up nothing";
}

TEST_F(DropWalls, ALandingUnderAPlatformStopsTheWallBelowIt)
{
    GameObjInst* pP = Make(TYPE_PLATFORM, 1.0f, 0.0f, 0.0f);
    pP->boundingBox = {-50.0f, -10.0f, 50.0f, 10.0f};
    GameObjInst* pX = DropWall(0.0f, -59.0f, 40.0f);
    GameObjInst* pC = Character(-2000.0f, 0.0f);
    DropWallLandNormal(pP, pX, pC);
    EXPECT_FLOAT_EQ(pX->posCurr.y, -60.0f);
    EXPECT_FLOAT_EQ(pX->velCurr.y, 0.0f);
}

TEST_F(DropWalls, TheLandingIsANoOpForAFarWallAndForOtherKinds)
{
    GameObjInst* pP = Make(TYPE_PLATFORM, 1.0f, 0.0f, 0.0f);
    pP->boundingBox = {-50.0f, -10.0f, 50.0f, 10.0f};
    GameObjInst* pFar = DropWall(700.0f, 59.0f, -40.0f);
    GameObjInst* pOther = Make(TYPE_WALL, 1.0f, 0.0f, 59.0f, 0.0f, -40.0f);
    pOther->boundingBox = {-10.0f, 9.0f, 10.0f, 109.0f};
    GameObjInst* pC = Character(-2000.0f, 0.0f);
    DropWallLandNormal(pP, pFar, pC);
    DropWallLandNormal(pP, pOther, pC);
    gPlay.sGravityInverted = 1;
    DropWallLandInverted(pP, pFar, pC);
    EXPECT_FLOAT_EQ(pFar->posCurr.y, 59.0f);
    EXPECT_FLOAT_EQ(pFar->velCurr.y, -40.0f);
    EXPECT_FLOAT_EQ(pOther->posCurr.y, 59.0f);
    EXPECT_FLOAT_EQ(pOther->velCurr.y, -40.0f);
}

TEST_F(DropWalls, InvertedALandingUnderAPlatformShrinksTheBoxUntilTheNextFrame)
{
    gPlay.sGravityInverted = 1;
    GameObjInst* pP = Make(TYPE_PLATFORM, 1.0f, 0.0f, 0.0f);
    pP->boundingBox = {-50.0f, -10.0f, 50.0f, 10.0f};
    GameObjInst* pX = DropWall(0.0f, -59.0f, 40.0f);
    GameObjInst* pC = Character(-2000.0f, 0.0f);
    DropWallLandInverted(pP, pX, pC);
    EXPECT_FLOAT_EQ(pX->posCurr.y, -60.0f);
    EXPECT_FLOAT_EQ(pX->velCurr.y, 0.0f);
    EXPECT_FLOAT_EQ(pX->boundingBox.minY, -60.5f);
    EXPECT_FLOAT_EQ(pX->boundingBox.maxY, -59.5f);
}

TEST_F(DropWalls, InvertedALandingOnTopClearsTheCharactersGround)
{
    gPlay.sGravityInverted = 1;
    gPlay.sOnGround = 1;
    GameObjInst* pP = Make(TYPE_PLATFORM, 1.0f, 0.0f, 0.0f);
    pP->boundingBox = {-50.0f, -10.0f, 50.0f, 10.0f};
    GameObjInst* pX = DropWall(0.0f, 59.0f, -40.0f);
    GameObjInst* pC = Character(-2000.0f, 0.0f);
    DropWallLandInverted(pP, pX, pC);
    EXPECT_FLOAT_EQ(pX->posCurr.y, 60.0f);
    EXPECT_FALSE(gPlay.sOnGround);
}

TEST_F(DropWalls, TheDriverLandsEveryDropWallOnEveryPlatformWhateverTheirSlots)
{
    // Drop walls before, between and after the platforms in the pool, each sunk 1 into a platform's top.
    GameObjInst* pFirst = DropWall(-200.0f, 59.0f, -30.0f);
    GameObjInst* pP1 = Make(TYPE_PLATFORM, 1.0f, -200.0f, 0.0f);
    pP1->boundingBox = {-250.0f, -10.0f, -150.0f, 10.0f};
    GameObjInst* pMiddle = DropWall(200.0f, 59.0f, -30.0f);
    GameObjInst* pP2 = Make(TYPE_PLATFORM_LONG, 1.0f, 200.0f, 0.0f);
    pP2->boundingBox = {125.0f, -10.0f, 275.0f, 10.0f};
    GameObjInst* pLast = DropWall(-180.0f, 59.0f, -30.0f);
    GameObjInst* pC = Character(-2000.0f, 0.0f);
    CollisionPlayNormal(pC, mPool.get(), 10.0f, kDropDt);
    EXPECT_FLOAT_EQ(pFirst->posCurr.y, 60.0f);
    EXPECT_FLOAT_EQ(pMiddle->posCurr.y, 60.0f);
    EXPECT_FLOAT_EQ(pLast->posCurr.y, 60.0f);
    // The landing zeroed the speed; the drop-wall step after it gave each one frame of gravity.
    EXPECT_FLOAT_EQ(pFirst->velCurr.y, -250.1f * kDropDt);
    EXPECT_FLOAT_EQ(pLast->velCurr.y, -250.1f * kDropDt);
}

} // namespace
