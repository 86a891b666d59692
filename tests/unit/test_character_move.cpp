// The character's movement with the input module: the ground and air rules with A and D together, the wall
// block, Space in the air, the freeze, the facing, the flip timers and the arrows' sweep.
#include "FakeKeys.h"
#include "KRInput.h"
#include "character.h"
#include "levelvars.h"
#include "playcommon.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

const f32 kDt = 1.0f / 60.0f;
const f32 kG = 250.1f * kDt;

class Move : public FakeKeys
{
protected:
    void SetUp() override
    {
        FakeKeys::SetUp();
        std::memset(&gPlay, 0, sizeof(gPlay));
        std::memset(&mC, 0, sizeof(mC));
        mC.flag = FLAG_ACTIVE;
        mC.scale = 50.0f;
        mL = LevelVars();
    }

    void Frame(std::initializer_list<unsigned char> down) { KeysFrame(down); }

    GameObjInst mC;
    LevelVars mL;
};

TEST_F(Move, WithAAndDBothHeldOnTheGroundTheSpeedIsPlusOneHundredAndFifty)
{
    gPlay.sOnGround = 1;
    for (int i = 0; i < 5; i++)
    {
        Frame({'A', 'D'});
        CharacterMove(&mC, kDt, 0);
        EXPECT_FLOAT_EQ(mC.velCurr.x, 150.0f) << "frame " << i;
    }
}

TEST_F(Move, WithAAndDBothHeldInTheAirTheyCancel)
{
    mC.velCurr = {40.0f, 0.0f};
    Frame({'A', 'D'});
    CharacterMove(&mC, kDt, 0);
    // Only the friction and the unit vector's tiny x act.
    EXPECT_NEAR(mC.velCurr.x, 40.0f * 0.95f, 1e-3f);
    EXPECT_NEAR(mC.velCurr.y, -2.0f - kG, 1e-3f) << "two units of extra gravity in the air";
}

TEST_F(Move, OnTheGroundAKeyAssignsTheSpeedAndFrictionStopsTheCharacterAfterwards)
{
    gPlay.sOnGround = 1;
    Frame({'A'});
    CharacterMove(&mC, kDt, 0);
    EXPECT_FLOAT_EQ(mC.velCurr.x, -150.0f);
    EXPECT_FLOAT_EQ(mC.velCurr.y, -kG) << "pressed into the floor";
    Frame({});
    CharacterMove(&mC, kDt, 0);
    EXPECT_FLOAT_EQ(mC.velCurr.x, -150.0f * 0.85f);
}

TEST_F(Move, WhileWallBlockedNeitherKeyMovesOnTheGroundOrInTheAir)
{
    gPlay.sWallBlocked = 1;
    gPlay.sOnGround = 1;
    Frame({'A'});
    CharacterMove(&mC, kDt, 0);
    EXPECT_FLOAT_EQ(mC.velCurr.x, 0.0f);
    Frame({'D'});
    CharacterMove(&mC, kDt, 0);
    EXPECT_FLOAT_EQ(mC.velCurr.x, 0.0f);

    gPlay.sOnGround = 0;
    mC.velCurr = {0.0f, 0.0f};
    Frame({'D'});
    CharacterMove(&mC, kDt, 0);
    EXPECT_NEAR(mC.velCurr.x, 0.0f, 1e-5f);
}

TEST_F(Move, WithGravityInvertedTheGroundPressesUpAndTheAirPullsUp)
{
    gPlay.sGravityInverted = 1;
    gPlay.sOnGround = 1;
    Frame({});
    CharacterMove(&mC, kDt, 0);
    EXPECT_FLOAT_EQ(mC.velCurr.y, kG);
    gPlay.sOnGround = 0;
    mC.velCurr = {0.0f, 0.0f};
    CharacterMove(&mC, kDt, 0);
    EXPECT_NEAR(mC.velCurr.y, 2.0f + kG, 1e-3f);
}

TEST_F(Move, SpaceInTheAirDoesNothingAndIsNotKeptForTheLanding)
{
    mC.velCurr = {0.0f, -50.0f};
    Frame({' '});
    CharacterMove(&mC, kDt, 0);
    EXPECT_NEAR(mC.velCurr.y, -50.0f - 2.0f - kG, 1e-3f) << "no jump in the air";
    EXPECT_FALSE(gPlay.sJumping);
    // Landed the next frame with Space still held: it is no longer triggered, so no jump.
    gPlay.sOnGround = 1;
    mC.velCurr = {0.0f, 0.0f};
    Frame({' '});
    CharacterMove(&mC, kDt, 0);
    EXPECT_FLOAT_EQ(mC.velCurr.y, -kG);
    EXPECT_TRUE(gPlay.sOnGround);
}

TEST_F(Move, WhenFrozenOnTheGroundNeitherFrictionNorGravityApply)
{
    gPlay.sOnGround = 1;
    gPlay.sJumping = 1;
    mC.velCurr = {80.0f, 3.0f};
    Frame({'A'});
    CharacterMove(&mC, kDt, 1);
    EXPECT_FLOAT_EQ(mC.velCurr.x, 80.0f);
    EXPECT_FLOAT_EQ(mC.velCurr.y, 3.0f);
    EXPECT_TRUE(gPlay.sJumping) << "nothing at all happens";
}

TEST_F(Move, APressOfAFlipsTheFacingEvenWhileWallBlocked)
{
    gPlay.sWallBlocked = 1;
    u8 facingLeft = 0;
    Frame({'A'});
    CharacterFacing(&facingLeft);
    EXPECT_TRUE(facingLeft);
    Frame({'A'});
    CharacterFacing(&facingLeft);
    EXPECT_TRUE(facingLeft) << "holding changes nothing";
    Frame({'A', 'D'});
    CharacterFacing(&facingLeft);
    EXPECT_FALSE(facingLeft) << "D pressed while A is held: A is not triggered, so D clears";
}

TEST_F(Move, DClearsTheFacingOnlyWhenANotTriggered)
{
    u8 facingLeft = 1;
    Frame({'D'});
    CharacterFacing(&facingLeft);
    EXPECT_FALSE(facingLeft);
    Frame({});
    Frame({'A', 'D'});
    CharacterFacing(&facingLeft);
    EXPECT_TRUE(facingLeft) << "A and D pressed together: A wins";
}

TEST_F(Move, TheFreezeLastsOneSecondAndHoldsTheCharacterAtRestAndTheCooldownTwo)
{
    mL.sFlipFrozen = 1;
    mL.sFlipFreezeRunning = 1;
    mL.sFlipCooldown = 1;
    mL.sPlatformsHeld = 1;
    int frozenFrames = 0, coolingFrames = 0;
    for (int i = 0; i < 200; i++)
    {
        mC.velCurr = {30.0f, -30.0f};
        const bool wasRunning = mL.sFlipFreezeRunning;
        FlipTimersRun(&mL, &mC, kDt);
        if (wasRunning)
        {
            EXPECT_FLOAT_EQ(mC.velCurr.x, 0.0f);
            EXPECT_FLOAT_EQ(mC.velCurr.y, 0.0f);
        }
        else
            EXPECT_FLOAT_EQ(mC.velCurr.x, 30.0f);
        frozenFrames += mL.sFlipFrozen ? 1 : 0;
        coolingFrames += mL.sFlipCooldown ? 1 : 0;
    }
    EXPECT_NEAR(frozenFrames, 59, 1);
    EXPECT_NEAR(coolingFrames, 120, 1);
    EXPECT_FALSE(mL.sPlatformsHeld);
    EXPECT_TRUE(mL.sPlatformsSwitch) << "the platforms get their speeds back";
}

TEST_F(Move, TheArrowsSweepTwentyAFrameAndTheNextSweepStartsAtTwenty)
{
    GameObjInst up = {}, down = {};
    mL.sArrowUp = &up;
    mL.sArrowDown = &down;
    mL.sArrowSweep = 1;
    int frames = 0;
    while (mL.sArrowSweep && frames < 200)
    {
        FlipArrowsRun(&mL, 10.0f, 20.0f);
        frames++;
    }
    EXPECT_EQ(frames, 67);
    EXPECT_FLOAT_EQ(mL.sArrowOffset, 20.0f);
    FlipArrowsRun(&mL, 10.0f, 20.0f);
    EXPECT_FLOAT_EQ(up.posCurr.x, -90.0f);
    EXPECT_FLOAT_EQ(up.posCurr.y, 20.0f - 500.0f + 20.0f);
    EXPECT_FLOAT_EQ(down.posCurr.x, 110.0f);
    EXPECT_FLOAT_EQ(down.posCurr.y, 20.0f + 500.0f - 20.0f);
}

} // namespace
