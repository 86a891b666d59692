// The character in a running level: the jump and its sound, the flip's nudge, freeze and turned-over world, the
// easing of the character's angle, the facing during the freeze, and a flip in the frame of a hit.
#include "KRGraphics.h"
#include "LevelRun.h"

#include "fmodsound.h"
#include "gameobjkinds.h"
#include "gamestatelist.h"
#include "playcommon.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

// A floor from -250 to 250 (top -30), and the character above its middle.
std::string Floor(std::vector<LevelObject> more = {})
{
    std::vector<LevelObject> objects = PlatformRow(-200, 5, -40);
    objects.push_back({8, 0, 0});
    objects.insert(objects.end(), more.begin(), more.end());
    return LevelText(objects);
}

// The floor and a ceiling whose underside is at 90.
std::string Room()
{
    return Floor(PlatformRow(-200, 5, 100));
}

} // namespace

TEST(CharacterMove, SpaceOnTheGroundJumpsAtTwoHundredWithItsSound)
{
    LevelRun run(GS_LEVEL_2, Floor());
    run.Steps(20);
    ASSERT_TRUE(gPlay.sOnGround);
    run.Hold(' ');
    run.Step();
    EXPECT_FLOAT_EQ(run.Player()->velCurr.y, 200.0f);
    EXPECT_TRUE(gPlay.sJumping);
    EXPECT_FALSE(gPlay.sOnGround);
    EXPECT_NE(gEffectJump.fileName, nullptr) << "the jump sound was played";
    float top = -100.0f;
    for (int i = 0; i < 120; i++)
    {
        run.Step();
        top = std::max(top, run.Player()->posCurr.y);
    }
    EXPECT_GT(top, 40.0f);
    EXPECT_NEAR(run.Player()->posCurr.y, -5.0f, 0.5f) << "back on the floor";
    EXPECT_TRUE(gPlay.sOnGround);
}

TEST(CharacterMove, TheFlipNudgesForOneFrameThenFreezesForASecond)
{
    LevelRun run(GS_LEVEL_2, Room());
    run.Steps(20);
    const float y = run.Player()->posCurr.y;
    run.Hold(1);
    run.Step();
    LevelVars& v = run.Vars();
    EXPECT_TRUE(gPlay.sGravityInverted);
    EXPECT_TRUE(v.sFlipFrozen);
    EXPECT_TRUE(v.sFlipCooldown);
    EXPECT_TRUE(v.sArrowSweep);
    EXPECT_TRUE(gPlay.sRockImpactArmed);
    EXPECT_FLOAT_EQ(run.Player()->velCurr.y, 4.0f) << "the nudge";
    run.Step();
    EXPECT_FLOAT_EQ(run.Player()->velCurr.y, 0.0f);
    int frozen = 1;
    while (v.sFlipFrozen && frozen < 100)
    {
        run.Step();
        frozen++;
        ASSERT_NEAR(run.Player()->posCurr.y, y, 0.2f) << "held still";
    }
    EXPECT_NEAR(frozen, 60, 1);
    EXPECT_TRUE(v.sFlipCooldown) << "a second more of cooldown";
    run.Hold(1);
    run.Step();
    EXPECT_TRUE(gPlay.sGravityInverted) << "no flip during the cooldown";
    run.Steps(62);
    EXPECT_FALSE(v.sFlipCooldown);
}

TEST(CharacterMove, TheFlipTurnsTheWorldOverAndTheCharacterEndsOnTheCeiling)
{
    LevelRun run(GS_LEVEL_2, Room());
    run.Steps(20);
    run.Hold(1);
    run.Steps(150);
    ASSERT_NE(run.Level(), nullptr);
    GameObjInst* pC = run.Player();
    EXPECT_TRUE(gPlay.sGravityInverted);
    EXPECT_TRUE(gPlay.sOnGround);
    EXPECT_NEAR(pC->boundingBox.maxY, 90.0f, 0.5f) << "head down under the ceiling";
    // The character's angle eased from pi by 0.1 a frame and stays near 0.04.
    EXPECT_NEAR(pC->dirCurr, 0.0416f, 0.002f);
    // The world drawn turned over: at -(y + 90), rotated by pi.
    GameObjInst* pFloor = run.OfKind(TYPE_PLATFORM).front();
    EXPECT_NEAR(pFloor->transform.m[1][2], -(-40.0f + 90.0f), 1e-3f);
    EXPECT_LT(pFloor->transform.m[0][0], 0.0f);
    EXPECT_NEAR(pC->transform.m[1][2], -(pC->posCurr.y + 90.0f), 1e-3f);
    // The HUD is fixed to the view and not turned.
    GameObjInst* pHeart = run.OfKind(TYPE_HEART).front();
    EXPECT_GT(pHeart->transform.m[0][0], 0.0f);
}

TEST(CharacterMove, APressOfAFlipsTheFacingDuringTheFreeze)
{
    LevelRun run(GS_LEVEL_2, Floor());
    run.Steps(20);
    run.Hold(1);
    run.Steps(5);
    ASSERT_TRUE(run.Vars().sFlipFrozen);
    EXPECT_FALSE(run.Vars().sFacingLeft);
    run.Hold('A');
    run.Step();
    EXPECT_TRUE(run.Vars().sFacingLeft);
    EXPECT_TRUE(run.Vars().sFlipFrozen);
    run.Hold('D');
    run.Step();
    EXPECT_FALSE(run.Vars().sFacingLeft);
}

// A spike under the floor that the test throws up into the standing character: it arrives in the next frame.
GameObjInst* ThrowSpike(LevelRun& run)
{
    GameObjInst* pSpike = run.OfKind(TYPE_SPIKE_UP).front();
    pSpike->velCurr.y = 1200.0f;
    return pSpike;
}

TEST(CharacterMove, WithoutAFlipASpikeTakesAHitPoint)
{
    LevelRun run(GS_LEVEL_2, Floor({{6, 0, -60}}));
    run.Steps(20);
    ASSERT_EQ(run.Vars().sHitPoints, 3);
    GameObjInst* pSpike = ThrowSpike(run);
    run.Step();
    pSpike->velCurr.y = 0.0f;
    EXPECT_EQ(run.Vars().sHitPoints, 2);
}

TEST(CharacterMove, AFlipInTheFrameOfAHitStillCountsAndTheHitIsIgnoredDuringTheFreeze)
{
    LevelRun run(GS_LEVEL_2, Floor({{6, 0, -60}}));
    run.Steps(20);
    GameObjInst* pSpike = ThrowSpike(run);
    run.Hold(1);
    run.Step();
    pSpike->velCurr.y = 0.0f;
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_TRUE(gPlay.sGravityInverted) << "the flip counts";
    EXPECT_EQ(run.Vars().sHitPoints, 3) << "the hit does not";
    run.Steps(50);
    EXPECT_TRUE(run.Vars().sFlipFrozen);
    EXPECT_EQ(run.Vars().sHitPoints, 3) << "touching the spike all through the freeze";
}

TEST(CharacterMove, WhileWallBlockedTheKeysDoNotWalkButSpaceStillJumps)
{
    // The flag as a wall leaves it for the next frame's movement, here set by the test on a standing character.
    LevelRun run(GS_LEVEL_2, Floor());
    run.Steps(20);
    ASSERT_TRUE(gPlay.sOnGround);
    gPlay.sWallBlocked = 1;
    run.Hold('D');
    run.Step();
    EXPECT_FLOAT_EQ(run.Player()->velCurr.x, 0.0f) << "D ignored";
    gPlay.sWallBlocked = 1;
    run.Hold('D');
    run.Hold(' ');
    run.Step();
    EXPECT_FLOAT_EQ(run.Player()->velCurr.y, 200.0f) << "the jump";
    EXPECT_NEAR(run.Player()->velCurr.x, 0.0f, 1e-4f) << "without the D's push";
}
