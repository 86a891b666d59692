// The pause menu: Esc and its refusals, every button by the pointer and by the keys, the exit's question, the help
// and options pages, half-volume music, and the pictures of the menu, its pages and the question.
#include "KRGraphics.h"
#include "KRSystem.h"
#include "LevelScenes.h"
#include "TestEnv.h"

#include "fmodsound.h"
#include "fmodsound_internal.h"
#include "gameobjkinds.h"
#include "gamestatelist.h"
#include "gamestatemgr.h"
#include "level_steps.h"
#include "playcommon.h"

#include <gtest/gtest.h>

namespace {

// Places of the view, in pixels from its top left, over each button of the menu (the camera at the middle).
struct ViewPoint
{
    int x, y;
};
const ViewPoint kResume = {500, 150};
const ViewPoint kOptions = {500, 225};
const ViewPoint kLevels = {500, 300};
const ViewPoint kHelp = {500, 375};
const ViewPoint kExit = {500, 450};
const ViewPoint kBack = {715, 60};
const ViewPoint kFullScreen = {475, 225};
const ViewPoint kVolumeUp = {300, 450};
const ViewPoint kVolumeDown = {400, 450};
const ViewPoint kYes = {325, 400};
const ViewPoint kNo = {475, 400};
const ViewPoint kAway = {100, 550};

// On LevelRun's small screen.
std::string At(ViewPoint p, int step)
{
    return CursorLine(p.x, p.y, step);
}

// On a screen of 800 by 600, where view and screen pixels are one.
std::string At800(ViewPoint p, int step)
{
    return "cursor " + std::to_string(p.x) + " " + std::to_string(p.y) + " " + std::to_string(step) + "\n";
}

std::string Key(const char* name, int step)
{
    return std::string("key ") + name + " " + std::to_string(step) + "\n";
}

float Alpha(const LevelRun& run, const GameObjInst* pInst)
{
    float alpha = -1.0f;
    LevelRun& r = const_cast<LevelRun&>(run);
    EXPECT_TRUE(LevelPauseAlpha(r.Level(), pInst, &alpha));
    return alpha;
}

// Runs to the end of the given frame.
void RunTo(LevelRun& run, int frame)
{
    run.Steps(frame + 1 - run.Frame());
}

} // namespace

TEST(LevelPause, EscPausesEverythingButThePauseObjectsWhichFollowTheCamera)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(), At(kAway, 0) + Key("Escape", 5) + "key A 5-12\n");
    RunTo(run, 4);
    ASSERT_NE(run.Level(), nullptr);
    const KRVec2 before = run.Player()->posCurr;
    RunTo(run, 12);
    LevelVars& v = run.Vars();
    ASSERT_TRUE(v.sPaused);
    EXPECT_EQ(run.Player()->posCurr.x, before.x) << "held A moves nothing";
    EXPECT_EQ(run.Player()->posCurr.y, before.y);
    f32 cx, cy;
    KRGfxGetCamPosition(&cx, &cy);
    const struct
    {
        GameObjInst* pInst;
        float dx, dy;
    } places[] = {{v.sBtnResume, 100, 150}, {v.sBtnOptions, 100, 75},  {v.sBtnLevels, 100, 0},
                  {v.sBtnHelp, 100, -75},   {v.sBtnExit, 100, -150},   {v.sPauseTitle, -100, 0},
                  {v.sHelpPage, 0, 0},      {v.sBackBtn, 315, 240},    {v.sOptionPage, 0, 0},
                  {v.sBtnFullScreen, 75, 75}, {v.sBtnVolumeUp, -100, -150}, {v.sBtnVolumeDown, 0, -150},
                  {v.sConfirmBox, 0, 0},    {v.sBtnYes, -75, -100},    {v.sBtnNo, 75, -100},
                  {v.sDamageFlashObj, 0, 0}};
    for (const auto& p : places)
    {
        EXPECT_FLOAT_EQ(p.pInst->posCurr.x, cx + p.dx) << "kind " << p.pInst->pObject->type;
        EXPECT_FLOAT_EQ(p.pInst->posCurr.y, cy + p.dy) << "kind " << p.pInst->pObject->type;
    }
    EXPECT_NEAR(v.sCursor->posCurr.x, cx - 400.0f + kAway.x, 2.5f) << "the pointer's own place, no offset";
    EXPECT_NEAR(v.sCursor->posCurr.y, cy + 300.0f - kAway.y, 2.5f);
    EXPECT_EQ(Alpha(run, run.OfKind(TYPE_PAUSE_DIM)[0]), 0.5f);
    EXPECT_EQ(Alpha(run, v.sCursor), 1.0f);
    EXPECT_EQ(Alpha(run, v.sPauseTitle), 1.0f);
    EXPECT_EQ(Alpha(run, v.sBtnResume), 1.0f) << "the selected button is hot";
    EXPECT_EQ(Alpha(run, v.sBtnExit), 0.3f) << "the others dim";
    EXPECT_EQ(Alpha(run, v.sHelpPage), 0.0f);
    EXPECT_EQ(Alpha(run, v.sBackBtn), 0.0f);
}

TEST(LevelPause, ResumeByPointerClosesTheMenuAndTheMusicPlaysAtHalfVolumeOnlyWhilePaused)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(), At(kResume, 0) + Key("Escape", 5) + Key("LButton", 10));
    RunTo(run, 4);
    ASSERT_NE(run.Level(), nullptr);
    const float full = SoundChannelGetVolume(MusicGetChannel());
    RunTo(run, 9);
    ASSERT_TRUE(run.Vars().sPaused);
    EXPECT_NEAR(SoundChannelGetVolume(MusicGetChannel()), full / 2.0f, 1.0f / 128);
    RunTo(run, 10);
    EXPECT_FALSE(run.Vars().sPaused);
    EXPECT_FALSE(gPlay.sGravityInverted) << "the click resumed and did not flip";
    RunTo(run, 11);
    EXPECT_NEAR(SoundChannelGetVolume(MusicGetChannel()), full, 1.0f / 128);
}

TEST(LevelPause, LevelsByPointerLeavesForLevelSelection)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(), At(kLevels, 0) + Key("Escape", 5) + Key("LButton", 10));
    RunTo(run, 9);
    ASSERT_NE(run.Level(), nullptr);
    ASSERT_TRUE(run.Vars().sPaused);
    run.Step();
    EXPECT_EQ(run.Level(), nullptr);
    EXPECT_EQ(gGameStateCurr, GS_LS);
}

TEST(LevelPause, ExitByPointerAsksFirstNoClosesTheQuestionAndYesLeavesForTheMenu)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(),
                 At(kExit, 0) + Key("Escape", 5) + Key("LButton", 10) + At(kNo, 12) + Key("LButton", 14) +
                     At(kExit, 16) + Key("LButton", 18) + At(kYes, 20) + Key("LButton", 22));
    RunTo(run, 10);
    ASSERT_NE(run.Level(), nullptr);
    LevelVars& v = run.Vars();
    EXPECT_TRUE(v.sPauseConfirm) << "asked";
    EXPECT_EQ(Alpha(run, v.sConfirmBox), 1.0f);
    EXPECT_EQ(Alpha(run, v.sBtnExit), 0.0f) << "the main buttons hide behind the question";
    EXPECT_EQ(Alpha(run, v.sPauseTitle), 0.0f);
    RunTo(run, 13);
    EXPECT_EQ(Alpha(run, v.sBtnNo), 1.0f) << "under the pointer";
    EXPECT_EQ(Alpha(run, v.sBtnYes), 0.3f);
    RunTo(run, 14);
    EXPECT_FALSE(v.sPauseConfirm) << "No closes the question";
    EXPECT_TRUE(v.sPaused);
    RunTo(run, 21);
    EXPECT_TRUE(v.sPauseConfirm);
    run.Step();
    EXPECT_EQ(run.Level(), nullptr);
    EXPECT_EQ(gGameStateCurr, GS_MENU);
}

TEST(LevelPause, EscIsRefusedWhileTheHelpPageIsUpAndBackClosesIt)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(),
                 At(kHelp, 0) + Key("Escape", 5) + Key("LButton", 8) + Key("Escape", 11) + At(kBack, 13) +
                     Key("LButton", 15) + Key("Escape", 18));
    RunTo(run, 8);
    ASSERT_NE(run.Level(), nullptr);
    LevelVars& v = run.Vars();
    ASSERT_TRUE(v.sPauseHelp);
    EXPECT_EQ(Alpha(run, v.sHelpPage), 1.0f);
    EXPECT_EQ(Alpha(run, v.sBtnHelp), 1.0f) << "the main buttons stay visible behind the page";
    RunTo(run, 11);
    EXPECT_TRUE(v.sPaused) << "Esc does nothing under the help page";
    EXPECT_TRUE(v.sPauseHelp);
    RunTo(run, 14);
    EXPECT_EQ(Alpha(run, v.sBackBtn), 1.0f) << "under the pointer";
    RunTo(run, 15);
    EXPECT_FALSE(v.sPauseHelp);
    EXPECT_TRUE(v.sPaused);
    RunTo(run, 18);
    EXPECT_FALSE(v.sPaused) << "and Esc works again";
}

TEST(LevelPause, OptionsPageTogglesFullScreenStepsTheVolumeRefusesEscAndClosesByBack)
{
    // The options run on an 800 by 600 screen, where leaving full screen keeps the pointer's scale.
    const ViewPoint besideFullScreen = {kFullScreen.x + 50, kFullScreen.y};
    LevelRun run(GS_LEVEL_1, FloorLevel(),
                 "screen 800 600\n" + At800(kOptions, 0) + Key("Escape", 3) + Key("LButton", 5) +
                     At800(besideFullScreen, 6) + Key("LButton", 7) + At800(kFullScreen, 8) + Key("LButton", 9) +
                     At800(kVolumeUp, 10) + Key("LButton", 11) + Key("Escape", 12) + At800(kVolumeDown, 13) +
                     Key("LButton", 14) + Key("LButton", 16) + At800(kBack, 17) + Key("LButton", 18));
    RunTo(run, 5);
    ASSERT_NE(run.Level(), nullptr);
    LevelVars& v = run.Vars();
    ASSERT_TRUE(v.sPauseOptions);
    EXPECT_EQ(Alpha(run, v.sOptionPage), 1.0f);
    const unsigned char fullBefore = gKRFullScreen;
    const float volume = gMusic.GetVolume();
    RunTo(run, 7);
    EXPECT_EQ(gKRFullScreen, fullBefore)
        << "inside the picture but outside its box: the box takes the back button's smaller scale";
    RunTo(run, 9);
    EXPECT_NE(gKRFullScreen, fullBefore);
    RunTo(run, 11);
    EXPECT_NEAR(gMusic.GetVolume(), volume + 0.1f, 1e-5f);
    RunTo(run, 12);
    EXPECT_TRUE(v.sPaused) << "Esc does nothing under the options page";
    RunTo(run, 16);
    EXPECT_NEAR(gMusic.GetVolume(), volume - 0.1f, 1e-5f) << "two steps down";
    EXPECT_EQ(Alpha(run, v.sBtnVolumeDown), 1.0f);
    EXPECT_EQ(Alpha(run, v.sBtnVolumeUp), 0.3f);
    RunTo(run, 18);
    EXPECT_FALSE(v.sPauseOptions);
    EXPECT_TRUE(v.sPaused);
}

TEST(LevelPause, KeysMoveTheSelectionAndEnterResumesOpensOptionsAndLeavesForLevelSelection)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(),
                 At(kAway, 0) + Key("Escape", 3) + Key("Return", 5) + Key("Escape", 8) + Key("D", 10) +
                     Key("Return", 12) + Key("S", 14) + Key("Return", 16));
    RunTo(run, 4);
    ASSERT_NE(run.Level(), nullptr);
    LevelVars& v = run.Vars();
    EXPECT_TRUE(v.sPaused);
    EXPECT_EQ(v.sPauseSelected, 0);
    RunTo(run, 5);
    EXPECT_FALSE(v.sPaused) << "Enter on the first button resumes";
    RunTo(run, 10);
    EXPECT_EQ(v.sPauseSelected, 1);
    EXPECT_EQ(Alpha(run, v.sBtnOptions), 1.0f);
    RunTo(run, 12);
    EXPECT_TRUE(v.sPauseOptions);
    RunTo(run, 14);
    EXPECT_EQ(v.sPauseSelected, 2) << "keys work on any page";
    run.Steps(2);
    EXPECT_EQ(run.Level(), nullptr);
    EXPECT_EQ(gGameStateCurr, GS_LS);
}

TEST(LevelPause, EnterOnExitLeavesForTheMenuWithoutTheQuestion)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(),
                 At(kAway, 0) + Key("Escape", 3) + Key("S", 5) + Key("S", 7) + Key("D", 9) + Key("S", 11) +
                     Key("S", 13) + Key("W", 15) + Key("D", 17) + Key("Return", 19));
    RunTo(run, 13);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_EQ(run.Vars().sPauseSelected, 4) << "four steps down";
    RunTo(run, 15);
    EXPECT_EQ(run.Vars().sPauseSelected, 3);
    RunTo(run, 18);
    EXPECT_EQ(run.Vars().sPauseSelected, 4) << "no further than the last";
    EXPECT_FALSE(run.Vars().sPauseConfirm);
    run.Step();
    EXPECT_EQ(run.Level(), nullptr);
    EXPECT_EQ(gGameStateCurr, GS_MENU);
}

class LevelPauseQuestion : public ::testing::TestWithParam<int>
{
};

TEST_P(LevelPauseQuestion, EscUnderTheQuestionResumesWithTheQuestionStillSetAndItIsBackAtTheNextPause)
{
    LevelRun run(GetParam(), FloorLevel(),
                 At(kExit, 0) + Key("Escape", 3) + Key("LButton", 6) + Key("Escape", 9) + Key("Escape", 12));
    RunTo(run, 6);
    ASSERT_NE(run.Level(), nullptr);
    LevelVars& v = run.Vars();
    ASSERT_TRUE(v.sPauseConfirm);
    RunTo(run, 9);
    EXPECT_FALSE(v.sPaused) << "play goes on";
    EXPECT_TRUE(v.sPauseConfirm);
    RunTo(run, 12);
    EXPECT_TRUE(v.sPaused);
    EXPECT_EQ(Alpha(run, v.sConfirmBox), 1.0f) << "the question is back at once";
    for (GameObjInst* pButton : {v.sBtnResume, v.sBtnOptions, v.sBtnLevels, v.sBtnHelp, v.sBtnExit})
        EXPECT_EQ(Alpha(run, pButton), 0.0f) << "kind " << pButton->pObject->type;
}

// Every level but the first; the user level too.
INSTANTIATE_TEST_SUITE_P(LevelsButTheFirst, LevelPauseQuestion, ::testing::Values((int)GS_LEVEL_1, (int)GS_LEVEL_USER),
                         [](const ::testing::TestParamInfo<int>& info) {
                             return info.param == GS_LEVEL_USER ? std::string("UserLevel") : std::string("Level1");
                         });

TEST(LevelPause, FirstLevelRefusesEscUnderTheQuestion)
{
    LevelRun run(GS_LEVEL_0, FloorLevel(),
                 At(kExit, 0) + Key("Escape", 3) + Key("LButton", 6) + Key("Escape", 9));
    RunTo(run, 9);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_TRUE(run.Vars().sPauseConfirm);
    EXPECT_TRUE(run.Vars().sPaused);
}

TEST(LevelPause, EnterOnResumeUnderTheHelpPageResumesWithThePageLeftOverTheGame)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(),
                 At(kAway, 0) + Key("Escape", 3) + Key("S", 5) + Key("S", 7) + Key("S", 9) + Key("Return", 11) +
                     Key("W", 13) + Key("W", 15) + Key("W", 17) + Key("Return", 19) + Key("Escape", 22));
    RunTo(run, 11);
    ASSERT_NE(run.Level(), nullptr);
    LevelVars& v = run.Vars();
    ASSERT_TRUE(v.sPauseHelp) << "Enter on the fourth button";
    RunTo(run, 19);
    EXPECT_FALSE(v.sPaused);
    EXPECT_TRUE(v.sPauseHelp);
    const float used = v.sBatteryUsed;
    RunTo(run, 24);
    EXPECT_FALSE(v.sPaused) << "Esc is refused while the help flag is up";
    EXPECT_GT(v.sBatteryUsed, used) << "the game runs behind the page";
    EXPECT_EQ(Alpha(run, v.sHelpPage), 1.0f) << "drawn over the game";
}

TEST(LevelPause, SelectionSurvivesARestart)
{
    LevelRun run(GS_LEVEL_2, FloorLevel(),
                 At(kAway, 0) + Key("Escape", 3) + Key("S", 5) + Key("S", 7) + Key("Escape", 9) + Key("0", 11));
    RunTo(run, 9);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_EQ(run.Vars().sPauseSelected, 2);
    EXPECT_FALSE(run.Vars().sPaused);
    RunTo(run, 11);
    EXPECT_EQ(gGameStatePrev, GS_LEVEL_2);
    run.Steps(2);
    ASSERT_NE(run.Level(), nullptr) << "the same level, started again";
    EXPECT_EQ(gGameStateCurr, GS_LEVEL_2);
    EXPECT_EQ(run.Vars().sPauseSelected, 2);
    EXPECT_FALSE(run.Vars().sPaused);
}

TEST(LevelPause, PointerOverAButtonWinsOverTheKeysInTheSameFrame)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(),
                 At(kAway, 0) + Key("Escape", 3) + Key("S", 5) + At(kExit, 7) + Key("S", 7) + Key("W", 9) +
                     At(kAway, 11) + Key("W", 13));
    RunTo(run, 5);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_EQ(run.Vars().sPauseSelected, 1);
    RunTo(run, 7);
    EXPECT_EQ(run.Vars().sPauseSelected, 4) << "the pointer on the last button";
    RunTo(run, 9);
    EXPECT_EQ(run.Vars().sPauseSelected, 4) << "W moved it to 3, the pointer put it back";
    RunTo(run, 13);
    EXPECT_EQ(run.Vars().sPauseSelected, 3) << "with the pointer away the keys work";
}

TEST(LevelPause, MenuHelpOptionsAndQuestionAreSavedForLooking)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(),
                 "screen 800 600\n" + At800(kOptions, 0) + Key("Escape", 3) + At800(kHelp, 6) + Key("LButton", 8) +
                     At800(kBack, 10) + Key("LButton", 12) + At800(kOptions, 13) + Key("LButton", 14) +
                     At800(kVolumeUp, 15) + At800(kBack, 17) + Key("LButton", 18) + At800(kExit, 19) +
                     Key("LButton", 20) + At800(kYes, 21));
    ShootAtSteps({{5, "pause-menu.png"}, {9, "pause-help.png"}, {16, "pause-options.png"}, {22, "pause-question.png"}});
    RunTo(run, 22);
    StopShooting();
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_TRUE(run.Vars().sPauseConfirm);
    for (const char* name : {"pause-menu.png", "pause-help.png", "pause-options.png", "pause-question.png"})
        EXPECT_FALSE(ReadFileText(ShotPath(name)).empty()) << name;
}

TEST(LevelPause, MenuStandsUprightOnTheCameraWithGravityInvertedAndIsSavedForLooking)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(),
                 "screen 800 600\n" + At800(kHelp, 0) + Key("LButton", 2) + Key("Escape", 6));
    ShootAtSteps({{8, "pause-menu-inverted.png"}});
    RunTo(run, 8);
    StopShooting();
    ASSERT_NE(run.Level(), nullptr);
    ASSERT_TRUE(gPlay.sGravityInverted);
    ASSERT_TRUE(run.Vars().sPaused);
    f32 cx, cy;
    KRGfxGetCamPosition(&cx, &cy);
    EXPECT_NEAR(cy, -run.Player()->posCurr.y, 0.01f) << "the turned camera";
    LevelVars& v = run.Vars();
    for (GameObjInst* pInst : {v.sBtnResume, v.sBtnHelp, v.sPauseTitle, v.sCursor})
    {
        EXPECT_FLOAT_EQ(pInst->transform.m[0][2], pInst->posCurr.x) << "kind " << pInst->pObject->type;
        EXPECT_FLOAT_EQ(pInst->transform.m[1][2], pInst->posCurr.y) << "drawn where it stands, not turned over";
        EXPECT_GT(pInst->transform.m[0][0], 0.0f) << "upright, kind " << pInst->pObject->type;
    }
    EXPECT_FLOAT_EQ(v.sBtnHelp->posCurr.y, cy - 75.0f);
    EXPECT_EQ(v.sPauseSelected, 3) << "the pointer is over help, on screen as with normal gravity";
    EXPECT_FALSE(ReadFileText(ShotPath("pause-menu-inverted.png")).empty());
}
