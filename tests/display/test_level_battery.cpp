// The torch's battery: the bar's once-a-second step, the low state at four fifths of the life, the low blink, the
// fade to black and the loss, and the pickups with their two branches. The clock runs with large frame times; the
// character then falls through its floor, and a test that needs it standing again puts it back.
#include "GameRun.h"
#include "KRPlatformScripted.h"
#include "LevelScenes.h"
#include "TestEnv.h"

#include "gameobjkinds.h"
#include "gamestatelist.h"
#include "gamestatemgr.h"
#include "playcommon.h"
#include "progress.h"

#include <gtest/gtest.h>

namespace {

const float kBarFull = 690.0f;
const float kBarWidth = 114.0f;

// Back on the floor of FloorLevel, at rest, at a normal frame time. The first frame after the change still runs
// with the time of the frame before.
void PutBackOnTheFloor(LevelRun& run)
{
    KRScriptSetDefaultFrameTime(0.1);
    run.Step();
    run.Player()->posCurr = {0.0f, 0.0f};
    run.Player()->velCurr = {0.0f, 0.0f};
    run.Steps(3);
}

// The first battery pickup of the pool moved onto the standing character: the next frame's contact pass takes it.
void PickUp(LevelRun& run, int index = 0)
{
    std::vector<GameObjInst*> pickups = run.OfKind(TYPE_BATTERYP);
    ASSERT_GT((int)pickups.size(), index);
    pickups[index]->posCurr = run.Player()->posCurr;
    run.Step();
}

std::string WithPickups(int count)
{
    std::string text = FloorLevel();
    for (int i = 0; i < count; i++)
        text += LevelText({{32, 300, 200 + 60 * i}});
    return text;
}

} // namespace

TEST(LevelBattery, BarStepsOnceForEachFullSecondAndLifeIsOneEightyPlusTenPerAttributePoint)
{
    gAttrBattery = 2;
    LevelRun run(GS_LEVEL_1, FloorLevel(), "frametime 0.3\n");
    run.Steps(2);
    gAttrBattery = 0;
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_FLOAT_EQ(run.Vars().sBatteryLife, 200.0f);
    EXPECT_FLOAT_EQ(run.Vars().sBatteryLowTime, 160.0f);
    const float step = kBarWidth / 200.0f;
    int steps = 0;
    for (int i = 0; i < 16; i++)
    {
        const float before = run.Vars().sBarOffset;
        const float second = run.Vars().sBatterySecond;
        run.Step();
        if (second + 0.3f > 1.0f)
        {
            steps++;
            EXPECT_FLOAT_EQ(run.Vars().sBatteryBarStep, step) << "frame " << run.Frame();
            EXPECT_FLOAT_EQ(run.Vars().sBarOffset, before - step) << "frame " << run.Frame();
        }
        else
        {
            EXPECT_EQ(run.Vars().sBatteryBarStep, 0.0f) << "frame " << run.Frame();
            EXPECT_EQ(run.Vars().sBarOffset, before) << "frame " << run.Frame();
        }
    }
    EXPECT_EQ(steps, 4) << "every fourth frame of 0.3 s passes a full second";
}

TEST(LevelBattery, LowStateBeginsWhenFourFifthsOfTheLifeAreUsedAndTheOverlayThenDarkens)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(), "frametime 2\n");
    run.Steps(2);
    ASSERT_NE(run.Level(), nullptr);
    while (run.Vars().sBatteryUsed <= 144.0f)
    {
        EXPECT_FALSE(run.Vars().sBatteryLow) << run.Vars().sBatteryUsed;
        EXPECT_FALSE(run.Vars().sBatteryDying);
        EXPECT_EQ(run.Vars().sBatteryFadeAlpha, 0.0f);
        run.Step();
    }
    EXPECT_TRUE(run.Vars().sBatteryLow);
    EXPECT_TRUE(run.Vars().sBatteryDying);
    // From here each frame longer than 0.1 s darkens the overlay by one step of the last fifth.
    const float alpha = run.Vars().sBatteryFadeAlpha;
    run.Step();
    EXPECT_NEAR(run.Vars().sBatteryFadeAlpha - alpha, 0.1f / (0.2f * 180.0f), 1e-6f);
}

TEST(LevelBattery, LowBatteryBlinksTwiceThenPausesAboutOneAndAHalfSeconds)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(), "frametime 2\n");
    run.Steps(2);
    ASSERT_NE(run.Level(), nullptr);
    while (!run.Vars().sBatteryLow)
        run.Step();
    KRScriptSetDefaultFrameTime(1.0 / 60.0);
    std::string pattern;
    for (int i = 0; i < 130; i++)
    {
        run.Step();
        pattern += run.Vars().sBatteryBlink ? '#' : '.';
    }
    // Flashes of a frame or two, a short gap between the two of a group, and a long dark pause between groups.
    std::vector<int> on, off;
    for (size_t i = 0; i < pattern.size();)
    {
        size_t j = i;
        while (j < pattern.size() && pattern[j] == pattern[i])
            j++;
        if (i > 0 && j < pattern.size())
            (pattern[i] == '#' ? on : off).push_back((int)(j - i));
        i = j;
    }
    ASSERT_GE(on.size(), 2u) << pattern;
    for (int length : on)
        EXPECT_LE(length, 2) << pattern;
    int longPauses = 0, shortGaps = 0;
    for (int length : off)
    {
        if (length >= 80 && length <= 100)
            longPauses++;
        else if (length <= 10)
            shortGaps++;
        else
            ADD_FAILURE() << "a gap of " << length << " frames: " << pattern;
    }
    EXPECT_GE(longPauses, 1) << pattern;
    EXPECT_GE(shortGaps, 1) << pattern;
    EXPECT_EQ(run.OfKind(TYPE_BLINK_SCREEN).size(), 1u) << "the flash has its black screen in this level";
}

TEST(LevelBattery, DeadBatteryLosesTheLevelAndLeavesForLevelSelectionThreeSecondsLater)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(), "frametime 2\n");
    run.Steps(2);
    ASSERT_NE(run.Level(), nullptr);
    while (run.Vars().sBatteryFadeAlpha < 1.0f)
    {
        ASSERT_FALSE(run.Vars().sLost) << "alpha " << run.Vars().sBatteryFadeAlpha;
        run.Step();
        ASSERT_LT(run.Frame(), 600);
    }
    EXPECT_GE(run.Frame(), 72 + 360) << "144 s to the low state, then 360 steps of the fade";
    EXPECT_EQ(run.Vars().sHitPoints, 3) << "nothing but the battery";
    run.Step();
    EXPECT_TRUE(run.Vars().sLost) << "the next end test sees the black overlay";
    EXPECT_TRUE(run.Vars().sIsGhost);
    EXPECT_FLOAT_EQ(run.Vars().sEndTimer, 2.0f);
    EXPECT_EQ(gGameStateNext, GS_LEVEL_1);
    run.Step();
    EXPECT_EQ(run.Level(), nullptr) << "the end timer passed 3 s in this frame";
    EXPECT_EQ(gGameStateCurr, GS_LS);
}

TEST(LevelBattery, PickupAtAFifthOfTheLifeOrLessRestoresTheBarFully)
{
    LevelRun run(GS_LEVEL_1, WithPickups(1), "frametime 1.01\n");
    run.Steps(30);
    ASSERT_NE(run.Level(), nullptr);
    PutBackOnTheFloor(run);
    ASSERT_LT(run.Vars().sBatteryUsed, 36.0f);
    ASSERT_LT(run.Vars().sBarOffset, kBarFull - 15.0f) << "the bar has gone down";
    PickUp(run);
    EXPECT_TRUE(run.OfKind(TYPE_BATTERYP).empty()) << "the pickup is gone";
    EXPECT_FLOAT_EQ(run.Vars().sBarOffset, kBarFull);
    EXPECT_LE(run.Vars().sBatteryUsed, 0.1f) << "the used time starts again from zero";
}

TEST(LevelBattery, SeveralPickupsGiveBackOnlyWhatWasUsedAndNeverPushTheBarPastFull)
{
    LevelRun run(GS_LEVEL_1, WithPickups(4), "frametime 1.01\n");
    run.Steps(100);
    ASSERT_NE(run.Level(), nullptr);
    PutBackOnTheFloor(run);
    ASSERT_GT(run.Vars().sBatteryUsed, 100.0f);
    const float barBefore = run.Vars().sBarOffset;
    const float usedBefore = run.Vars().sBatteryUsed;
    PickUp(run);
    EXPECT_NEAR(run.Vars().sBarOffset, barBefore + 0.2f * kBarWidth, 0.01f) << "a fifth of the bar back";
    EXPECT_NEAR(run.Vars().sBatteryUsed, usedBefore + 0.1f - 0.2f * 180.0f, 0.01f) << "a fifth of the life back";
    for (int i = 0; i < 3; i++)
    {
        PickUp(run);
        EXPECT_LE(run.Vars().sBarOffset, kBarFull) << "pickup " << i + 2;
    }
    EXPECT_FLOAT_EQ(run.Vars().sBarOffset, kBarFull);
    EXPECT_TRUE(run.OfKind(TYPE_BATTERYP).empty());
}

TEST(LevelBattery, BatteryStandsStillWhilePausedAndDrainsOnDuringAFlipsFreeze)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(), "frametime 0.1\nkey Escape 5\nkey Escape 15\nkey LButton 20\n");
    run.Steps(5);
    ASSERT_NE(run.Level(), nullptr);
    run.Step();
    ASSERT_TRUE(run.Vars().sPaused);
    const float used = run.Vars().sBatteryUsed;
    const float second = run.Vars().sBatterySecond;
    const float bar = run.Vars().sBarOffset;
    run.Steps(9);
    EXPECT_TRUE(run.Vars().sPaused);
    EXPECT_EQ(run.Vars().sBatteryUsed, used);
    EXPECT_EQ(run.Vars().sBatterySecond, second);
    EXPECT_EQ(run.Vars().sBarOffset, bar);
    run.Steps(6);
    EXPECT_FALSE(run.Vars().sPaused);
    EXPECT_GT(run.Vars().sBatteryUsed, used);
    run.Step();
    ASSERT_TRUE(run.Vars().sFlipFrozen);
    const float frozenUsed = run.Vars().sBatteryUsed;
    run.Steps(5);
    ASSERT_TRUE(run.Vars().sFlipFrozen);
    EXPECT_NEAR(run.Vars().sBatteryUsed - frozenUsed, 0.5f, 0.001f);
}

TEST(LevelBattery, PickupClearsTheDarkeningOverlayAndEndsTheLowState)
{
    LevelRun run(GS_LEVEL_1, WithPickups(1), "frametime 2\n");
    run.Steps(2);
    ASSERT_NE(run.Level(), nullptr);
    while (run.Vars().sBatteryFadeAlpha < 0.01f)
        run.Step();
    PutBackOnTheFloor(run);
    PickUp(run);
    EXPECT_EQ(run.Vars().sBatteryFadeAlpha, 0.0f);
    run.Step();
    EXPECT_FALSE(run.Vars().sBatteryLow) << "the tests are made every frame";
    EXPECT_FALSE(run.Vars().sBatteryDying);
}

TEST(LevelBattery, PickupInTheFirstLevelLeavesTheOverlayAsDarkAsItWas)
{
    LevelRun run(GS_LEVEL_0, WithPickups(1), "frametime 2\n");
    run.Steps(2);
    ASSERT_NE(run.Level(), nullptr);
    while (run.Vars().sBatteryFadeAlpha < 0.01f)
        run.Step();
    PutBackOnTheFloor(run);
    const float alpha = run.Vars().sBatteryFadeAlpha;
    // The level's own pickup comes after the file's: take the file's.
    PickUp(run, 0);
    EXPECT_EQ(run.OfKind(TYPE_BATTERYP).size(), 1u);
    EXPECT_GE(run.Vars().sBatteryFadeAlpha, alpha) << "not cleared; it may even darken one more step";
    EXPECT_LT(run.Vars().sBatteryUsed, 144.0f);
}

struct FlashCase
{
    int state;
    bool drawn;
};

class LevelBatteryFlash : public ::testing::TestWithParam<FlashCase>
{
};

// A lit place right of the character, with the pointer to the right: full light at the start, dimmed by the
// overlay once the battery dies, and black in the frames of a low-battery flash where the level draws it.
TEST_P(LevelBatteryFlash, DyingBatteryDimsTheLightAndFlashesItBlackWhereTheLevelDrawsTheFlash)
{
    LevelRun run(GetParam().state, FloorLevel(), CursorLine(700, 280, 0) + "frametime 0.1\n");
    SamplePixelEachStep(500, 280);
    run.Steps(3);
    ASSERT_NE(run.Level(), nullptr);
    const int lit = SampledBrightness(2);
    ASSERT_GT(lit, 60) << "the cone lights the wall";
    // The battery runs down in frames of two seconds that nobody looks at; the thirty sampled are drawn again.
    DrawNoFrame();
    KRScriptSetDefaultFrameTime(2.0);
    while (run.Vars().sBatteryFadeAlpha < 0.4f)
        run.Step();
    PutBackOnTheFloor(run);
    DrawEveryFrame();
    int flashed = 0, dimmed = 0;
    for (int i = 0; i < 30; i++)
    {
        run.Step();
        const int seen = SampledBrightness(run.Frame() - 1);
        const float alpha = run.Vars().sBatteryFadeAlpha;
        if (run.Vars().sBatteryBlink && GetParam().drawn)
        {
            EXPECT_LT(seen, 5) << "black during a flash, frame " << run.Frame();
            flashed++;
        }
        else
        {
            EXPECT_NEAR(seen, lit * (1.0f - alpha), 20.0f) << "dimmed by the overlay, frame " << run.Frame();
            dimmed++;
        }
    }
    EXPECT_GT(dimmed, 0);
    if (GetParam().drawn)
    {
        EXPECT_GT(flashed, 0);
    }
    StopShooting();
}

INSTANTIATE_TEST_SUITE_P(FirstSecondAndFifthLevels, LevelBatteryFlash,
                         ::testing::Values(FlashCase{GS_LEVEL_0, false}, FlashCase{GS_LEVEL_1, true},
                                           FlashCase{GS_LEVEL_4, false}),
                         [](const ::testing::TestParamInfo<FlashCase>& info) {
                             return "Level" + std::to_string(info.param.state - 1);
                         });
