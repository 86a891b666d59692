// The level selection through the real loop on the scripted back-end: keyboard and mouse over the items, the
// torch, the level buttons with and without the fade, the name field and the load of the user level, and the
// progress file read at entry and written at exit.
#include "KRPlatformScripted.h"
#include "FrontEndScript.h"
#include "ScreenRun.h"
#include "TestEnv.h"
#include "frontkinds.h"
#include "gamestatemgr.h"
#include "progress.h"
#include "savefolder.h"
#include "userlevel.h"

#include <gtest/gtest.h>
#include <string>

namespace {

int SelectionNumber(const char* key)
{
    return (int)ProbeNumber(key);
}

} // namespace

// ---- The items, the keys and the mouse ----

TEST(LevelSelection, WithTheCursorRestingOnAButtonAAndDSeemDead)
{
    ScreenStart(GS_LS, kScreen + CursorTo(kLevel[1], 5) + Key("D", 20));
    ScreenStepsTo(19);
    EXPECT_EQ(SelectionNumber("sLSSelection"), 1);
    ScreenStepsTo(20);
    EXPECT_EQ(SelectionNumber("sLSSelection"), 1) << "the hover set it back in the same frame";
    const GameObjInst* pTorch = LiveOfKind(TYPE_LS_TORCH);
    EXPECT_FLOAT_EQ(pTorch->posCurr.x, kLevel[2].x - 85.0f) << "the torch went to the key's item for that frame";
    EXPECT_FLOAT_EQ(pTorch->posCurr.y, kLevel[2].y + 80.0f);
    ScreenStepsTo(21);
    EXPECT_FLOAT_EQ(pTorch->posCurr.x, kLevel[1].x - 85.0f);
    ScreenFinish();
}

TEST(LevelSelection, AAtTheFirstItemAndDAtTheLastDoNothingAndLeaveTheKeyboardFlag)
{
    ScreenStart(GS_LS, kScreen + Key("D", 10) + Key("A", 12) + Key("A", 14) + CursorTo(kBack, 20) +
                           CursorTo(kNowhere, 25) + Key("D", 30));
    ScreenStepsTo(12);
    EXPECT_EQ(SelectionNumber("sLSSelection"), 0);
    EXPECT_EQ(SelectionNumber("sLSKeyboard"), 1);
    ScreenStepsTo(14);
    EXPECT_EQ(SelectionNumber("sLSSelection"), 0);
    EXPECT_EQ(SelectionNumber("sLSKeyboard"), 1) << "A at item 0 left it set";
    ScreenStepsTo(29);
    EXPECT_EQ(SelectionNumber("sLSSelection"), 12);
    EXPECT_EQ(SelectionNumber("sLSKeyboard"), 0);
    ScreenStepsTo(30);
    EXPECT_EQ(SelectionNumber("sLSSelection"), 12);
    EXPECT_EQ(SelectionNumber("sLSKeyboard"), 0) << "D at item 12 left it clear";
    ScreenFinish();
}

TEST(LevelSelection, TheTorchFollowsTheKeysOrThePointer)
{
    ScreenStart(GS_LS, kScreen + Key("D", 10) + Key("D", 12) + Key("D", 14) + Key("D", 16) + Key("D", 18) +
                           Key("D", 20) + Key("D", 22) + CursorAt(100, 0, 30));
    ScreenshotAtStep(130, "level-selection.png");
    ScreenStepsTo(10);
    const GameObjInst* pTorch = LiveOfKind(TYPE_LS_TORCH);
    EXPECT_FLOAT_EQ(pTorch->posCurr.x, kLevel[1].x - 85.0f);
    EXPECT_EQ(SelectionNumber("sLSPeek"), 2);
    ScreenStepsTo(22);
    EXPECT_EQ(SelectionNumber("sLSSelection"), 7);
    EXPECT_FLOAT_EQ(pTorch->posCurr.x, kBattDec.x - 85.0f);
    EXPECT_FLOAT_EQ(pTorch->posCurr.y, kBattDec.y + 75.0f);
    EXPECT_EQ(SelectionNumber("sLSPeek"), 6) << "the preview stays with the last level passed";
    ScreenStepsTo(32);
    EXPECT_EQ(SelectionNumber("sLSKeyboard"), 0);
    EXPECT_FLOAT_EQ(pTorch->posCurr.x, 490.0f - 480.0f) << "(x - 480, 340 - y) of the window pixel";
    EXPECT_FLOAT_EQ(pTorch->posCurr.y, 340.0f - 253.0f);
    ScreenStepsTo(131);
    ScreenFinish();
}

TEST(LevelSelection, ReturnOnALevelSkipsTheFade)
{
    ScreenStart(GS_LS, kScreen + CursorTo(kLevel[2], 5) + CursorTo(kNowhere, 10) + Key("Return", 15));
    ScreenStepsTo(14);
    EXPECT_EQ(SelectionNumber("sLSSelection"), 2);
    ScreenStepsTo(15);
    EXPECT_EQ(gGameStateCurr, GS_LEVEL_2) << "at once";
    ScreenFinishBeforeNextVisit();
}

TEST(LevelSelection, AClickOnALevelFadesForAboutAHundredFrames)
{
    ScreenStart(GS_LS, kScreen + CursorTo(kLevel[4], 105) + Key("LButton", 110));
    ScreenStepsTo(109);
    EXPECT_EQ(SelectionNumber("sLSFadeAction"), 1) << "the fade-in is over";
    ScreenStepsTo(110);
    EXPECT_EQ(SelectionNumber("sLSFadeAction"), 9);
    int frames = ScreenStepsWhileIn(GS_LS, 300);
    EXPECT_GE(frames, 95);
    EXPECT_LE(frames, 105);
    EXPECT_EQ(gGameStateCurr, GS_LEVEL_4);
    ScreenFinishBeforeNextVisit();
}

TEST(LevelSelection, ClicksDuringAFadeOutStillWorkAndChangeTheAction)
{
    ScreenStart(GS_LS, kScreen + CursorTo(kLevel[0], 105) + Key("LButton", 110) + CursorTo(kField, 120) +
                           Key("LButton", 125) + CursorTo(kLevel[1], 130) + Key("LButton", 135));
    ScreenStepsTo(110);
    EXPECT_EQ(SelectionNumber("sLSFadeAction"), 3);
    ScreenStepsTo(126);
    EXPECT_EQ(SelectionNumber("sNameFocus"), 1) << "the field took the focus during the fade-out";
    EXPECT_EQ(SelectionNumber("sCaretShown"), 1);
    EXPECT_EQ(SelectionNumber("sLSFadeAction"), 3);
    ScreenStepsTo(135);
    EXPECT_EQ(SelectionNumber("sLSFadeAction"), 4) << "a later click changed where the fade leads";
    ScreenStepsWhileIn(GS_LS, 300);
    EXPECT_EQ(gGameStateCurr, GS_LEVEL_1);
    ScreenFinishBeforeNextVisit();
}

TEST(LevelSelection, TheSelectionAndThePreviewAreKeptForTheNextVisit)
{
    ScreenStart(GS_LS, kScreen + CursorTo(kLevel[3], 5) + CursorTo(kNowhere, 10));
    ScreenStepsTo(12);
    EXPECT_EQ(SelectionNumber("sLSSelection"), 3);
    EXPECT_EQ(SelectionNumber("sLSPeek"), 4);
    gGameStateNext = GS_MENU;
    ScreenSteps(3);
    gGameStateNext = GS_LS;
    ScreenSteps(3);
    ASSERT_EQ(gGameStateCurr, GS_LS);
    EXPECT_EQ(SelectionNumber("sLSSelection"), 3);
    EXPECT_EQ(SelectionNumber("sLSPeek"), 4);
    ScreenFinish();
}

TEST(LevelSelection, TheEditorAndBackButtonsByReturnAndByClick)
{
    ScreenStart(GS_LS, kScreen + CursorTo(kBack, 5) + CursorTo(kNowhere, 10) + Key("Return", 15));
    ScreenStepsTo(15);
    EXPECT_EQ(gGameStateCurr, GS_MENU);
    ScreenFinishBeforeNextVisit();
}

TEST(LevelSelection, AClickOnTheEditorButtonFadesIntoTheEditor)
{
    ScreenStart(GS_LS, kScreen + CursorAt(250, -165, 5) + Key("LButton", 10));
    ScreenStepsTo(9);
    EXPECT_EQ(SelectionNumber("sLSSelection"), 10);
    ScreenStepsTo(10);
    EXPECT_EQ(SelectionNumber("sLSFadeAction"), 6);
    ScreenStepsWhileIn(GS_LS, 300);
    EXPECT_EQ(gGameStateCurr, GS_EDITOR);
    ScreenFinishBeforeNextVisit();
}

// ---- Into each level by Return ----

class LevelSelectionEntersLevel : public ::testing::TestWithParam<int>
{
};

TEST_P(LevelSelectionEntersLevel, ReturnOnTheLevelButtonEntersThatLevel)
{
    int level = GetParam();
    ScreenStart(GS_LS, kScreen + CursorTo(kLevel[level], 5) + CursorTo(kNowhere, 10) + Key("Return", 15));
    ScreenStepsTo(14);
    EXPECT_EQ(SelectionNumber("sLSSelection"), level);
    EXPECT_EQ(SelectionNumber("sLSPeek"), level + 1);
    ScreenStepsTo(15);
    EXPECT_EQ(gGameStateCurr, GS_LEVEL_0 + level);
    ScreenFinishBeforeNextVisit();
}

INSTANTIATE_TEST_SUITE_P(EachOfTheSix, LevelSelectionEntersLevel, ::testing::Range(0, 6));
