// Spikes, hit points, invincibility and its blink, the damage flash, the zoom power-up, the exit, and how a level is
// won and lost; pictures of the win and lose screens are saved for looking.
#include "KRGraphics.h"
#include "KRPlatformScripted.h"
#include "LevelScenes.h"
#include "TestEnv.h"

#include "gameobjkinds.h"
#include "gamestatelist.h"
#include "gamestatemgr.h"
#include "playcommon.h"
#include "progress.h"
#include "stateprobe.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

// A landing from the hop of a hit at ten frames a second sinks through a platform: spikes run at thirty.
const char* const kThirtyFps = "frametime 0.0333333\n";

// A spike standing on the floor right under the character's feet: touched whenever the character stands.
std::string OnASpike()
{
    return FloorLevel({{6, 0, -18}});
}

bool Touching(const GameObjInst* pA, const GameObjInst* pB)
{
    return pA->boundingBox.minX <= pB->boundingBox.maxX && pB->boundingBox.minX <= pA->boundingBox.maxX &&
           pA->boundingBox.minY <= pB->boundingBox.maxY && pB->boundingBox.minY <= pA->boundingBox.maxY;
}

// Kinds the zoom leaves alone: the view-fixed HUD and the damage flash.
bool Unzoomed(u32 kind)
{
    return kind == TYPE_HEART || kind == TYPE_SIDEBAR || kind == TYPE_SIDEBAR_BG || kind == TYPE_BATTERY_BAR ||
           kind == TYPE_COMPASS || kind == TYPE_INVERT_UP || kind == TYPE_INVERT_DOWN || kind == TYPE_HUD_DESIGN ||
           kind == TYPE_DAMAGE_FLASH;
}

// Runs until the level is lost, at most limit frames.
void RunUntilLost(LevelRun& run, int limit)
{
    while (run.Level() && !run.Vars().sLost && run.Frame() < limit)
        run.Step();
}

} // namespace

TEST(LevelHazards, SpikeTouchedDuringInvincibilityDoesNothingAndHitsTheFrameTheThreeSecondsEnd)
{
    LevelRun run(GS_LEVEL_1, OnASpike(), kThirtyFps);
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    ASSERT_EQ(run.Vars().sHitPoints, 2) << "standing on it at the start";
    EXPECT_TRUE(run.Vars().sInvincible);
    GameObjInst* pSpike = run.OfKind(TYPE_SPIKE_UP)[0];
    int touchedWhileInvincible = 0;
    int hitFrame = -1;
    while (run.Frame() < 100)
    {
        run.Step();
        if (run.Vars().sHitPoints == 1)
        {
            hitFrame = run.Frame();
            break;
        }
        EXPECT_TRUE(run.Vars().sInvincible) << "frame " << run.Frame();
        if (Touching(run.Player(), pSpike))
            touchedWhileInvincible++;
    }
    EXPECT_GT(touchedWhileInvincible, 5) << "the hop lands it back on the spike";
    ASSERT_GT(hitFrame, 0) << "no second hit";
    EXPECT_GE(hitFrame, 90);
    EXPECT_LE(hitFrame, 93) << "3 s of 30 frames a second after the first hit";
    EXPECT_TRUE(run.Vars().sInvincible) << "cleared and set again in one frame";
    EXPECT_LT(run.Vars().sInvincibleTimer, 0.04f);
}

TEST(LevelHazards, SpikeTouchedInTheFrameOfAFlipAndDuringItsFreezeDoesNothing)
{
    LevelRun run(GS_LEVEL_1, FloorLevel({{6, 200, -18}}), "frametime 0.1\nkey LButton 3\n");
    run.Steps(3);
    ASSERT_NE(run.Level(), nullptr);
    // The spike slides under the character just before the click.
    run.OfKind(TYPE_SPIKE_UP)[0]->posCurr = run.Player()->posCurr;
    run.Step();
    ASSERT_TRUE(run.Vars().sFlipFrozen);
    EXPECT_EQ(run.Vars().sHitPoints, 3) << "the flip came first in the frame";
    while (run.Vars().sFlipFrozen)
    {
        run.Step();
        if (run.Vars().sFlipFrozen)
        {
            EXPECT_EQ(run.Vars().sHitPoints, 3) << "frame " << run.Frame();
        }
        ASSERT_LT(run.Frame(), 20);
    }
    EXPECT_EQ(run.Vars().sHitPoints, 2) << "the freeze over, the spike still under it hits in that frame";
}

TEST(LevelHazards, HitAtTheLastHitPointLosesInTheSameFrameAndLeavesForLevelSelectionThreeSecondsLater)
{
    LevelRun run(GS_LEVEL_1, OnASpike(), kThirtyFps);
    run.Step();
    while (run.Level() && run.Vars().sHitPoints > 1 && run.Frame() < 200)
        run.Step();
    ASSERT_EQ(run.Vars().sHitPoints, 1);
    EXPECT_FALSE(run.Vars().sLost);
    while (run.Vars().sHitPoints == 1 && run.Frame() < 200)
    {
        run.Step();
        if (run.Vars().sHitPoints == 1)
        {
            EXPECT_FALSE(run.Vars().sLost);
        }
    }
    EXPECT_EQ(run.Vars().sHitPoints, 0);
    EXPECT_TRUE(run.Vars().sLost) << "the end test of the frame of the hit";
    EXPECT_TRUE(run.Vars().sIsGhost);
    const int lostFrame = run.Frame();
    while (run.Level() && run.Frame() < lostFrame + 100)
    {
        EXPECT_EQ(gGameStateNext, GS_LEVEL_1);
        run.Step();
    }
    EXPECT_EQ(run.Level(), nullptr);
    EXPECT_EQ(gGameStateCurr, GS_LS);
    EXPECT_GE(run.Frame() - lostFrame, 90);
    EXPECT_LE(run.Frame() - lostFrame, 92);
}

TEST(LevelHazards, InvincibleCharacterIsHiddenForTheFirstFifthOfEachFourTenthsOfASecond)
{
    LevelRun run(GS_LEVEL_1, FloorLevel({{6, 300, -18}}), kThirtyFps);
    run.Steps(10);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_FALSE(run.Vars().sBlinkHidden);
    // One touch: the spike slides under the character for one frame and away again.
    GameObjInst* pSpike = run.OfKind(TYPE_SPIKE_UP)[0];
    const KRVec2 away = pSpike->posCurr;
    pSpike->posCurr = run.Player()->posCurr;
    run.Step();
    ASSERT_TRUE(run.Vars().sInvincible);
    pSpike->posCurr = away;
    std::string pattern;
    for (int i = 0; i < 100; i++)
    {
        run.Step();
        pattern += run.Vars().sBlinkHidden ? 'h' : (run.Vars().sInvincible ? 's' : '-');
        if (run.Vars().sInvincible && run.Vars().sBlinkTimer > 0.0f)
        {
            EXPECT_EQ(run.Vars().sBlinkHidden != 0, run.Vars().sBlinkTimer < 0.2f) << pattern;
        }
    }
    EXPECT_NE(pattern.find("sssss"), std::string::npos) << pattern;
    EXPECT_NE(pattern.find("hhhhh"), std::string::npos) << pattern;
    EXPECT_EQ(pattern.find("hhhhhhhh"), std::string::npos) << "0.2 s is six frames: " << pattern;
    EXPECT_EQ(pattern.back(), '-') << "shown once the 3 s are over: " << pattern;
}

TEST(LevelHazards, DamageFlashRisesToAFifthAndFallsBackByAHundredthEachFrame)
{
    LevelRun run(GS_LEVEL_1, OnASpike(), "frametime 0.05\n");
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    ASSERT_TRUE(run.Vars().sDamageFlash);
    ASSERT_EQ(run.OfKind(TYPE_DAMAGE_FLASH).size(), 1u);
    float highest = 0.0f;
    int frames = 0;
    float last = run.Vars().sDamageAlpha;
    while (run.Vars().sDamageFlash && frames < 60)
    {
        run.Step();
        frames++;
        // Up or down by a hundredth; the frame of the turn adds and takes it back.
        EXPECT_LE(std::abs(run.Vars().sDamageAlpha - last), 0.0101f) << "frame " << frames;
        last = run.Vars().sDamageAlpha;
        highest = std::max(highest, last);
    }
    EXPECT_FALSE(run.Vars().sDamageFlash);
    EXPECT_NEAR(highest, 0.2f, 0.011f);
    EXPECT_GE(frames, 38);
    EXPECT_LE(frames, 44);
    EXPECT_NEAR(run.Vars().sDamageAlpha, 0.0f, 1e-4f);
    // On the camera, with the pause objects.
    f32 camX, camY;
    KRGfxGetCamPosition(&camX, &camY);
    EXPECT_NEAR(run.Vars().sDamageFlashObj->posCurr.x, camX, 0.01f);
}

TEST(LevelHazards, FirstLevelShowsNoGhostAndNoDamageFlash)
{
    LevelRun run(GS_LEVEL_0, OnASpike(), kThirtyFps);
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_TRUE(run.OfKind(TYPE_DAMAGE_FLASH).empty());
    EXPECT_EQ(run.Vars().sHitPoints, 2);
    while (run.Level() && !run.Vars().sLost && run.Frame() < 200)
    {
        EXPECT_FALSE(run.Vars().sDamageFlash);
        EXPECT_EQ(run.Vars().sDamageAlpha, 0.0f);
        run.Step();
    }
    ASSERT_TRUE(run.Vars().sLost);
    run.Steps(5);
    EXPECT_FALSE(run.Vars().sIsGhost);
    EXPECT_GT(run.Vars().sLoseAlpha, 0.0f) << "the lose screen fades in as in the other levels";
}

TEST(LevelHazards, TwoZoomPowerUpsTouchedInOneFrameAreBothTakenForOneZoom)
{
    LevelRun run(GS_LEVEL_1, FloorLevel({{12, 0, -5}, {12, 0, -5}}), "frametime 0.1\n");
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_TRUE(run.OfKind(TYPE_ZOOM_POWERUP).empty()) << "both destroyed";
    ASSERT_TRUE(run.Vars().sZoomActive);
    std::string probe;
    GameStateProbeGet()(&probe);
    EXPECT_NE(probe.find(" touched=12,12 "), std::string::npos) << "the tester sees both taken: " << probe;
    // One pulse: the scale moves by one step per zoomed object per frame, no faster for the second power-up.
    int zoomed = 0;
    for (GameObjInst& inst : run.Level()->pool.sGameObjInstList)
        if ((inst.flag & FLAG_ACTIVE) && !Unzoomed(inst.pObject->type))
            zoomed++;
    const float before = run.Vars().sZoomScale;
    run.Step();
    probe.clear();
    GameStateProbeGet()(&probe);
    EXPECT_NE(probe.find(" touched=- "), std::string::npos) << probe;
    EXPECT_NEAR(before - run.Vars().sZoomScale, zoomed * 1.5e-5f, zoomed * 1.5e-5f * 0.02f);
    EXPECT_FALSE(run.Vars().sZoomReturning);
}

TEST(LevelHazards, ExitTouchedThenLeftStaysWonAndIsMarkedOncePerWin)
{
    LevelRun run(GS_LEVEL_1, FloorLevel({{10, 80, 0}}), "frametime 0.05\nkey D 2-14\nkey A 15-30\nkey D 31-50\n");
    WriteFreshProgress(run);
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    while (!run.Vars().sWon && run.Frame() < 15)
        run.Step();
    ASSERT_TRUE(run.Vars().sWon) << "walked into the exit";
    EXPECT_EQ(ProgressText(run), "010000\n0\n0") << "the second level's flag, at the touch";
    GameObjInst* pExit = run.OfKind(TYPE_EXIT_PORTAL)[0];
    // Clear the flag behind the level's back: a second touch in the same win must not write it again.
    WriteFreshProgress(run);
    run.Steps(31 - run.Frame());
    ASSERT_FALSE(Touching(run.Player(), pExit)) << "walked away from it";
    EXPECT_TRUE(run.Vars().sWon);
    int touchedAgain = 0;
    while (run.Frame() < 55)
    {
        run.Step();
        ASSERT_NE(run.Level(), nullptr) << "still in the 3 s";
        EXPECT_TRUE(run.Vars().sWon);
        touchedAgain += Touching(run.Player(), pExit);
    }
    EXPECT_GT(touchedAgain, 0) << "walked back into it";
    EXPECT_EQ(ProgressText(run), "000000\n0\n0");
}

TEST(LevelHazards, TouchingTheExitWinsAndLeavesForTheNextLevelThreeSecondsLaterWithTheFlagSaved)
{
    LevelRun run(GS_LEVEL_2, FloorLevel({{10, 0, 0}}), "frametime 0.1\n");
    WriteFreshProgress(run);
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    ASSERT_TRUE(run.Vars().sWon);
    EXPECT_EQ(ProgressText(run), "001000\n0\n0") << "marked at the touch, before the 3 s";
    const int wonFrame = run.Frame();
    while (run.Level() && run.Frame() < wonFrame + 40)
    {
        EXPECT_EQ(gGameStateNext, GS_LEVEL_2);
        run.Step();
    }
    EXPECT_EQ(run.Level(), nullptr);
    EXPECT_EQ(gGameStatePrev, GS_LEVEL_2);
    EXPECT_EQ(gGameStateCurr, GS_LEVEL_3) << "the next level";
    EXPECT_GE(run.Frame() - wonFrame, 30);
    EXPECT_LE(run.Frame() - wonFrame, 32);
    EXPECT_EQ(ProgressText(run), "001000\n0\n0");
}

TEST(LevelHazards, WinScreenIsSavedForLooking)
{
    // The exit under the character, the screen fading in by a hundredth a frame for 90 frames.
    LevelRun run(GS_LEVEL_1, FloorLevel({{10, 0, 0}}), "screen 800 600\n");
    ShootAtSteps({{90, "level-won.png"}});
    WriteFreshProgress(run);
    run.Steps(91);
    StopShooting();
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_TRUE(run.Vars().sWon);
    EXPECT_NEAR(run.Vars().sWinAlpha, 0.91f, 0.02f);
    EXPECT_FALSE(ReadFileText(ShotPath("level-won.png")).empty());
}

TEST(LevelHazards, LoseScreenIsSavedForLooking)
{
    // Three hits take six seconds: the picture is of the small screen, to keep the run short.
    LevelRun run(GS_LEVEL_1, OnASpike(), kThirtyFps);
    run.Step();
    RunUntilLost(run, 200);
    ASSERT_TRUE(run.Vars().sLost);
    // The ghost and the lose screen at about 0.8, a little before the level leaves.
    ShootAtSteps({{run.Frame() + 80, "level-lost.png"}}, 320, 240);
    run.Steps(81);
    StopShooting();
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_TRUE(run.Vars().sIsGhost);
    EXPECT_FALSE(ReadFileText(ShotPath("level-lost.png")).empty());
}

class LevelSpikeKinds : public ::testing::TestWithParam<int>
{
};

TEST_P(LevelSpikeKinds, EachOfTheFourSpikeKindsUnderTheFeetCostsAHitPointAndStartsTheHop)
{
    LevelRun run(GS_LEVEL_1, FloorLevel({{GetParam(), 0, -18}}), kThirtyFps);
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_EQ(run.Vars().sHitPoints, 2);
    EXPECT_TRUE(run.Vars().sInvincible);
    EXPECT_TRUE(run.Vars().sDamageFlash);
    run.Step();
    EXPECT_GT(run.Player()->velCurr.y, 150.0f) << "the forced hop";
}

INSTANTIATE_TEST_SUITE_P(UpDownAndRows, LevelSpikeKinds,
                         ::testing::Values((int)TYPE_SPIKE_UP, (int)TYPE_SPIKE_DOWN, (int)TYPE_SPIKE_ROW_UP,
                                           (int)TYPE_SPIKE_ROW_DOWN),
                         [](const ::testing::TestParamInfo<int>& info) { return "Kind" + std::to_string(info.param); });

struct ExitMark
{
    int state;
    const char* flags;
};

class LevelExitMarks : public ::testing::TestWithParam<ExitMark>
{
};

TEST_P(LevelExitMarks, TouchingTheExitMarksTheLevelsOwnFlag)
{
    LevelRun run(GetParam().state, FloorLevel({{10, 0, 0}}), "frametime 0.05\n");
    WriteFreshProgress(run);
    run.Steps(2);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_TRUE(run.Vars().sWon);
    EXPECT_EQ(ProgressText(run), std::string(GetParam().flags) + "\n0\n0");
}

// The fourth and fifth levels share a flag, the sixth marks the fifth flag, and the sixth flag is never marked.
INSTANTIATE_TEST_SUITE_P(SevenLevels, LevelExitMarks,
                         ::testing::Values(ExitMark{GS_LEVEL_0, "100000"}, ExitMark{GS_LEVEL_3, "000100"},
                                           ExitMark{GS_LEVEL_4, "000100"}, ExitMark{GS_LEVEL_5, "000010"},
                                           ExitMark{GS_LEVEL_USER, "000000"}),
                         [](const ::testing::TestParamInfo<ExitMark>& info) {
                             return info.param.state == GS_LEVEL_USER ? std::string("UserLevel")
                                                                      : "Level" + std::to_string(info.param.state - 1);
                         });

TEST(LevelHazards, UserLevelWonLeavesForLevelSelectionWithoutAMark)
{
    LevelRun run(GS_LEVEL_USER, FloorLevel({{10, 0, 0}}), "frametime 0.1\n");
    WriteFreshProgress(run);
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    ASSERT_TRUE(run.Vars().sWon);
    while (run.Level() && run.Frame() < 40)
        run.Step();
    EXPECT_EQ(gGameStateCurr, GS_LS);
    EXPECT_EQ(ProgressText(run), "000000\n0\n0");
}

TEST(LevelHazards, DyingOnTheExitCountsTheEndTimerTwiceAFrameAndTheWinsNextStateStands)
{
    // A single hit point: the hit point attribute is not guarded, and -2 leaves one.
    gAttrHealth = -2;
    LevelRun run(GS_LEVEL_1, FloorLevel({{6, 0, -18}, {10, 0, 0}}), "frametime 0.1\n");
    run.Step();
    gAttrHealth = 0;
    ASSERT_NE(run.Level(), nullptr);
    ASSERT_TRUE(run.Vars().sLost);
    ASSERT_TRUE(run.Vars().sWon);
    const int endFrame = run.Frame();
    while (run.Level() && run.Frame() < endFrame + 40)
        run.Step();
    EXPECT_GE(run.Frame() - endFrame, 14);
    EXPECT_LE(run.Frame() - endFrame, 16) << "1.5 s: two tenths a frame";
    EXPECT_EQ(gGameStateCurr, GS_LEVEL_2) << "the win's next state, written later in the frame";
}

TEST(LevelHazards, ZoomPowerUpLiftsTheDarknessOutsideTheCone)
{
    // The pointer at the right: the lower left of the view lies outside the cone, black until the zoom.
    LevelRun run(GS_LEVEL_1, FloorLevel({{12, 300, 250}}), CursorLine(700, 280, 0) + "frametime 0.0333333\n");
    SamplePixelEachStep(60, 520);
    run.Steps(4);
    ASSERT_NE(run.Level(), nullptr);
    const int dark = SampledBrightness(3);
    EXPECT_LT(dark, 5) << "under the darkness";
    run.OfKind(TYPE_ZOOM_POWERUP)[0]->posCurr = run.Player()->posCurr;
    run.Steps(2);
    ASSERT_TRUE(run.Vars().sZoomActive);
    EXPECT_GT(SampledBrightness(run.Frame() - 1), dark + 40) << "the wall shows without the darkness";
    StopShooting();
}

TEST(LevelHazards, ZoomPulseShrinksTheWorldToHalfAndBackStopsNearPoint98AndTheNextStartsFromThere)
{
    // Two hundred platforms far out of sight: the pulse is stepped once per world object, so they make it short.
    std::string level = FloorLevel({{12, 0, -5}, {12, 300, 250}});
    for (int i = 0; i < 200; i++)
        level += LevelText({{3, 5000 + 100 * (i % 20), 3000 + 100 * (i / 20)}});
    LevelRun run(GS_LEVEL_1, level, "frametime 0.0333333\n");
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    ASSERT_TRUE(run.Vars().sZoomActive);
    float lowest = run.Vars().sZoomScale;
    bool returned = false;
    while (run.Vars().sZoomActive && run.Frame() < 1000)
    {
        run.Step();
        lowest = std::min(lowest, run.Vars().sZoomScale);
        returned = returned || run.Vars().sZoomReturning;
    }
    ASSERT_FALSE(run.Vars().sZoomActive) << "the pulse ends";
    EXPECT_TRUE(returned);
    EXPECT_NEAR(lowest, 0.52f, 0.002f) << "it turns back within 0.02 of a half";
    const float end = run.Vars().sZoomScale;
    EXPECT_GE(end, 0.98f);
    EXPECT_LT(end, 0.99f) << "stops near 0.98, short of 1";
    run.Steps(3);
    EXPECT_EQ(run.Vars().sZoomScale, end) << "not reset";
    run.OfKind(TYPE_ZOOM_POWERUP)[0]->posCurr = run.Player()->posCurr;
    run.Step();
    ASSERT_TRUE(run.Vars().sZoomActive);
    EXPECT_LT(run.Vars().sZoomScale, end);
    EXPECT_GT(run.Vars().sZoomScale, end - 0.01f) << "the second pulse starts where the first stopped";
}
