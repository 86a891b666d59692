// A level's visit from Load to Unload and its restarts: the creation order, the pause that stops the world, what
// the variable reset keeps in which level, the common flags that outlive a level, two characters in one file,
// the integration of free slots, and two wishes for the next state in one frame.
#include "KRGraphics.h"
#include "LevelRun.h"
#include "TestEnv.h"

#include "gameobjkinds.h"
#include "gamestatelist.h"
#include "gamestatemgr.h"
#include "playcommon.h"
#include "progress.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

const float kDt = 1.0f / 60.0f;

// A floor from -200 to 200 with its top at -30, and the character above its middle.
std::string LifecycleFloor(std::vector<LevelObject> more = {})
{
    std::vector<LevelObject> objects = PlatformRow(-200, 5, -40);
    objects.push_back({8, 0, 0});
    objects.insert(objects.end(), more.begin(), more.end());
    return LevelText(objects);
}

int LiveCount(LevelRun& run)
{
    int live = 0;
    for (const GameObjInst& inst : run.Level()->pool.sGameObjInstList)
        live += (inst.flag & FLAG_ACTIVE) ? 1 : 0;
    return live;
}

} // namespace

TEST(LevelLifecycle, InitCreatesTheBackgroundTheFileTheViewObjectsAndTheCursorInDrawingOrder)
{
    LevelRun run(GS_LEVEL_2, LevelText({{3, 0, -40}, {2, 100, 0}, {8, 0, 0}}));
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    const GameObjInst* slots = run.Level()->pool.sGameObjInstList;
    const u32 expected[] = {TYPE_BACKGROUND, TYPE_PLATFORM, TYPE_WALL, TYPE_CHARACTER, TYPE_HAND, TYPE_DARKNESS,
                            TYPE_PAUSE_DIM, TYPE_BATTERY_FADE, TYPE_BLINK_SCREEN, TYPE_INVERT_UP, TYPE_INVERT_DOWN,
                            TYPE_DAMAGE_FLASH, TYPE_SIDEBAR_BG, TYPE_BATTERY_BAR, TYPE_SIDEBAR, TYPE_HEART,
                            TYPE_HEART, TYPE_HEART, TYPE_HUD_DESIGN, TYPE_COMPASS, TYPE_WIN_SCREEN,
                            TYPE_LOSE_SCREEN, TYPE_RESUME_BTN, TYPE_LEVELS_BTN, TYPE_OPTION_BTN, TYPE_HELP_BTN,
                            TYPE_EXIT_BTN};
    for (u32 i = 0; i < sizeof(expected) / sizeof(expected[0]); i++)
    {
        ASSERT_TRUE(slots[i].flag & FLAG_ACTIVE) << "slot " << i;
        EXPECT_EQ(slots[i].pObject->type, expected[i]) << "slot " << i;
    }
    int last = 0;
    for (int i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
        if (slots[i].flag & FLAG_ACTIVE)
            last = i;
    EXPECT_EQ(slots[last].pObject->type, (u32)TYPE_CURSOR) << "the cursor is made last";
    EXPECT_EQ(run.Player(), &slots[3]);
    EXPECT_FLOAT_EQ(slots[0].posCurr.x, 80.0f);
    EXPECT_FLOAT_EQ(slots[0].posCurr.y, 200.0f);
}

TEST(LevelLifecycle, WhilePausedPositionsTimersBatteryHeartsAndTheCooldownStandStill)
{
    LevelRun run(GS_LEVEL_2, LifecycleFloor());
    run.Steps(20);
    run.Hold('D', 200);
    run.Step();
    run.Hold(1); // a flip: the freeze and the cooldown start
    run.Steps(5);
    run.Hold(27);
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    LevelVars& v = run.Vars();
    ASSERT_TRUE(v.sPaused);
    ASSERT_TRUE(v.sFlipCooldown);
    const KRVec2 pos = run.Player()->posCurr;
    const LevelVars before = v;
    run.Steps(60);
    EXPECT_EQ(run.Player()->posCurr.x, pos.x);
    EXPECT_EQ(run.Player()->posCurr.y, pos.y);
    EXPECT_EQ(v.sFlipCooldownTime, before.sFlipCooldownTime);
    EXPECT_EQ(v.sFlipFreezeTime, before.sFlipFreezeTime);
    EXPECT_EQ(v.sBatteryUsed, before.sBatteryUsed);
    EXPECT_EQ(v.sBatterySecond, before.sBatterySecond);
    EXPECT_EQ(v.sBarOffset, before.sBarOffset);
    EXPECT_EQ(v.sInvincibleTimer, before.sInvincibleTimer);
    EXPECT_EQ(v.sHitPoints, before.sHitPoints);
    EXPECT_EQ(v.sHeartsShown, before.sHeartsShown);
    EXPECT_EQ(v.sArrowOffset, before.sArrowOffset);

    // Unpaused, the clocks go on.
    run.Hold(27);
    run.Steps(2);
    EXPECT_FALSE(v.sPaused);
    EXPECT_GT(v.sBatteryUsed, before.sBatteryUsed);
    EXPECT_GT(v.sFlipCooldownTime, before.sFlipCooldownTime);
}

TEST(LevelLifecycle, WhilePausedThePauseObjectsKeepFollowingTheCamera)
{
    LevelRun run(GS_LEVEL_2, LifecycleFloor());
    run.Steps(10);
    run.Hold(27);
    run.Step();
    ASSERT_TRUE(run.Vars().sPaused);
    f32 camX, camY;
    KRGfxGetCamPosition(&camX, &camY);
    KRGfxSetCamPosition(camX + 37.0f, camY - 11.0f);
    run.Step();
    const GameObjInst* pResume = run.Vars().sBtnResume;
    EXPECT_FLOAT_EQ(pResume->posCurr.x, camX + 37.0f + 100.0f);
    EXPECT_FLOAT_EQ(pResume->posCurr.y, camY - 11.0f + 150.0f);
    EXPECT_FLOAT_EQ(run.Vars().sBtnNo->posCurr.x, camX + 37.0f + 75.0f);
}

TEST(LevelLifecycle, TheUserLevelKeepsItsEndTimerOverARestartAndThenLeavesAtOnce)
{
    LevelRun run(GS_LEVEL_USER, LifecycleFloor());
    run.Steps(10);
    run.Vars().sEndTimer = 3.5f;
    run.Hold('0');
    run.Steps(2);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_FLOAT_EQ(run.Vars().sEndTimer, 3.5f) << "not part of the user level's reset";
    // A loss: the end timer is already past 3, so the level is left in the same frame.
    run.Vars().sHitPoints = 0;
    run.Step();
    EXPECT_EQ(gGameStateCurr, GS_LS);
}

TEST(LevelLifecycle, TheOtherLevelsResetTheEndTimerAndWaitThreeSecondsAfterALoss)
{
    LevelRun run(GS_LEVEL_2, LifecycleFloor());
    run.Steps(10);
    run.Vars().sEndTimer = 3.5f;
    run.Hold('0');
    run.Steps(2);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_FLOAT_EQ(run.Vars().sEndTimer, 0.0f);
    run.Vars().sHitPoints = 0;
    run.Steps(60);
    ASSERT_NE(run.Level(), nullptr) << "still in the level a second after the loss";
    EXPECT_TRUE(run.Vars().sLost);
    EXPECT_NEAR(run.Vars().sEndTimer, 1.0f, 0.05f);
}

TEST(LevelLifecycle, ARestartInTheSecondLevelKeepsTheInvincibilityUntilItsResetTimerRunsOut)
{
    LevelRun run(GS_LEVEL_2, LifecycleFloor());
    run.Steps(10);
    run.Vars().sInvincible = 1;
    run.Vars().sInvincibleTimer = 0.5f;
    run.Vars().sBlinkTimer = 0.3f; // inside the blink's cycle of 0.4
    run.Hold('0');
    run.Steps(2);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_TRUE(run.Vars().sInvincible) << "not reset here";
    EXPECT_GT(run.Vars().sBlinkTimer, 0.3f) << "kept, and running on";
    EXPECT_NEAR(run.Vars().sInvincibleTimer, kDt, 1e-4f) << "the timer is reset";
    run.Steps(185);
    EXPECT_FALSE(run.Vars().sInvincible) << "cleared some 3 seconds after the restart";
}

TEST(LevelLifecycle, ARestartInTheFirstLevelResetsTheInvincibilityAndTheBlink)
{
    LevelRun run(GS_LEVEL_0, LifecycleFloor());
    run.Steps(10);
    run.Vars().sInvincible = 1;
    run.Vars().sInvincibleTimer = 0.5f;
    run.Vars().sBlinkTimer = 0.3f; // inside the blink's cycle of 0.4
    gGameStateNext = GS_RESTART;
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_FALSE(run.Vars().sInvincible);
    EXPECT_LT(run.Vars().sBlinkTimer, 0.1f);
}

TEST(LevelLifecycle, TheGroundFlagCarriesOverFromOneLevelToTheNextAndGravityIsReset)
{
    // The second level's file holds only a character in the air: nothing there touches the flag in its first
    // frame, so the ground rules of the flag left by the first level decide its first vertical speed.
    LevelRun run(GS_LEVEL_1, LifecycleFloor());
    run.Steps(10);
    ASSERT_TRUE(gPlay.sOnGround);
    run.Hold(1);
    run.Step();
    ASSERT_TRUE(gPlay.sGravityInverted);
    const std::string next = run.mGameDir + "/Level3.txt";
    unlink(next.c_str());
    WriteFileText(next, LevelText({{8, 0, 300}}));
    gPlay.sOnGround = 1;
    gGameStateNext = GS_LEVEL_2;
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    ASSERT_EQ(run.Level()->pConfig->state, GS_LEVEL_2);
    EXPECT_FALSE(gPlay.sGravityInverted) << "every Init clears it";
    EXPECT_TRUE(gPlay.sOnGround) << "no Init touches it";
    EXPECT_FLOAT_EQ(run.Player()->velCurr.y, -250.1f * kDt) << "the ground rule pressed it down";
}

TEST(LevelLifecycle, AFileWithTwoCharactersLeavesTheFirstStandingUndrivenAndUntouchable)
{
    // The first character hangs in the air at the height of the second's body, in its way.
    LevelRun run(GS_LEVEL_2, LifecycleFloor({{8, -100, 10}, {8, 100, 0}}));
    run.Steps(20);
    ASSERT_NE(run.Level(), nullptr);
    std::vector<GameObjInst*> characters = run.OfKind(TYPE_CHARACTER);
    ASSERT_EQ(characters.size(), 3u);
    EXPECT_EQ(run.Player(), characters[2]) << "the last one read drives";
    run.Hold('A', 120);
    run.Steps(120);
    EXPECT_FLOAT_EQ(characters[1]->posCurr.x, -100.0f);
    EXPECT_FLOAT_EQ(characters[1]->posCurr.y, 10.0f) << "no gravity for it";
    EXPECT_FLOAT_EQ(characters[0]->posCurr.y, 0.0f);
    EXPECT_LT(run.Player()->posCurr.x, -150.0f) << "walked through the other one";
}

TEST(LevelLifecycle, ADestroyedInstanceWithAVelocityGoesOnMovingUnseen)
{
    LevelRun run(GS_LEVEL_2, LifecycleFloor({{3, 600, 300}}));
    run.Steps(5);
    std::vector<GameObjInst*> platforms = run.OfKind(TYPE_PLATFORM);
    GameObjInst* pGone = platforms.back();
    ASSERT_FLOAT_EQ(pGone->posCurr.x, 600.0f);
    pGone->velCurr = {60.0f, -30.0f};
    gameObjInstDestroy(pGone);
    run.Steps(30);
    EXPECT_NEAR(pGone->posCurr.x, 630.0f, 0.01f);
    EXPECT_NEAR(pGone->posCurr.y, 285.0f, 0.01f);
    EXPECT_EQ(run.OfKind(TYPE_PLATFORM).size(), 5u);
}

TEST(LevelLifecycle, ARestartRebuildsThePoolAndStartsTheBatteryAndHitPointsOverWithTheSameAttributes)
{
    gAttrBattery = 2;
    gAttrHealth = 1;
    LevelRun run(GS_LEVEL_3, LifecycleFloor({{3, 600, 300}}));
    run.Step();
    const int live = LiveCount(run);
    EXPECT_EQ(run.Vars().sHitPoints, 4);
    EXPECT_FLOAT_EQ(run.Vars().sBatteryLife, 200.0f);
    EXPECT_EQ(run.OfKind(TYPE_HEART).size(), 4u);
    run.Hold('D', 40);
    run.Steps(60);
    run.Vars().sHitPoints = 1;
    gameObjInstDestroy(run.OfKind(TYPE_PLATFORM).back());
    ASSERT_GT(run.Vars().sBatteryUsed, 0.9f);
    ASSERT_GT(run.Player()->posCurr.x, 50.0f);
    run.Hold('0');
    run.Step();
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_EQ(LiveCount(run), live);
    EXPECT_EQ(run.Vars().sHitPoints, 4);
    EXPECT_FLOAT_EQ(run.Vars().sBatteryLife, 200.0f);
    EXPECT_NEAR(run.Vars().sBatteryUsed, kDt, 1e-4f);
    EXPECT_NEAR(run.Player()->posCurr.x, 0.0f, 0.01f) << "from the file again";
    EXPECT_EQ(run.OfKind(TYPE_HEART).size(), 4u);
    gAttrBattery = 0;
    gAttrHealth = 0;
}

TEST(LevelLifecycle, KeyZeroDoesNothingInALevelWithoutTheRestart)
{
    LevelRun run(GS_LEVEL_1, LifecycleFloor());
    run.Steps(30);
    const float used = run.Vars().sBatteryUsed;
    run.Hold('0');
    run.Steps(3);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_EQ(gGameStateCurr, GS_LEVEL_1);
    EXPECT_GT(run.Vars().sBatteryUsed, used) << "no restart";
}

TEST(LevelLifecycle, KeyZeroAndALossLeavingInTheSameFrameTheLaterWriteWins)
{
    LevelRun run(GS_LEVEL_2, LifecycleFloor());
    run.Steps(10);
    run.Vars().sHitPoints = 0;
    run.Vars().sEndTimer = 3.5f;
    run.Hold('0');
    run.Step();
    EXPECT_EQ(gGameStateCurr, GS_LS) << "the end test writes after the restart key";
}
