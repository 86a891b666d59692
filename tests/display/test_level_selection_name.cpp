// The level selection's name field and the load of the user level, through the real loop on the scripted
// back-end: focus and caret, typing and its limit, backspace, the load and its message.
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

int NameNumber(const char* key)
{
    return (int)ProbeNumber(key);
}

} // namespace

// Focus on the field by a click at step 10; the cursor stays on the field.
std::string FocusScript()
{
    return kScreen + CursorTo(kField, 5) + Key("LButton", 10);
}

TEST(LevelSelectionName, TypingAOrDInTheFieldAlsoMovesTheSelectionAndReturnActsOnIt)
{
    ScreenStart(GS_LS, FocusScript() + Key("D", 20) + Key("A", 22) + Key("D", 24) + Key("Return", 26));
    ScreenStepsTo(20);
    EXPECT_STREQ(gUserLevelName, "d");
    EXPECT_EQ(NameNumber("sLSSelection"), 1);
    ScreenStepsTo(24);
    EXPECT_STREQ(gUserLevelName, "dad");
    EXPECT_EQ(NameNumber("sLSSelection"), 1);
    ScreenStepsTo(26);
    EXPECT_EQ(gGameStateCurr, GS_LEVEL_1) << "Return acted on the selected item, not on the name";
    ScreenFinishBeforeNextVisit();
}

TEST(LevelSelectionName, TheTwentiethCharacterIsRefusedYetBackspaceWorks)
{
    std::string script = FocusScript();
    for (int i = 0; i < 20; i++)
        script += Key(std::string(1, (char)('0' + (i + 1) % 10)), 20 + 2 * i);
    script += Key("Backspace", 70);
    ScreenStart(GS_LS, script);
    ScreenStepsTo(20 + 2 * 18);
    EXPECT_EQ(std::string(gUserLevelName), "1234567890123456789");
    EXPECT_EQ(CountLive(TYPE_NAME_GLYPH), 19);
    ScreenStepsTo(20 + 2 * 19);
    EXPECT_EQ(std::string(gUserLevelName), "1234567890123456789") << "the 20th key";
    EXPECT_EQ(CountLive(TYPE_NAME_GLYPH), 19);
    EXPECT_EQ(NameNumber("sNameLength"), 19);
    ScreenStepsTo(70);
    EXPECT_EQ(std::string(gUserLevelName), "123456789012345678");
    EXPECT_EQ(CountLive(TYPE_NAME_GLYPH), 18);
    ScreenFinish();
}

TEST(LevelSelectionName, AClickElsewhereTakesTheCaretAndTheFieldBringsItBackAtTheEnd)
{
    std::string script = FocusScript();
    for (int i = 0; i < 19; i++)
        script += Key(std::string(1, (char)('1' + i % 9)), 20 + 2 * i);
    script += CursorTo(kNowhere, 60) + Key("LButton", 65) + CursorTo(kField, 70) + Key("LButton", 75);
    ScreenStart(GS_LS, script);
    ScreenStepsTo(58);
    ASSERT_NE(LiveOfKind(TYPE_CARET), nullptr);
    EXPECT_FLOAT_EQ(LiveOfKind(TYPE_CARET)->posCurr.x, 225.0f - 100.0f + 190.0f + 10.0f);
    ScreenStepsTo(66);
    EXPECT_EQ(LiveOfKind(TYPE_CARET), nullptr) << "the click elsewhere took the caret";
    EXPECT_EQ(CountLive(TYPE_NAME_GLYPH), 19) << "the glyphs stay";
    ScreenStepsTo(76);
    ASSERT_NE(LiveOfKind(TYPE_CARET), nullptr);
    EXPECT_FLOAT_EQ(LiveOfKind(TYPE_CARET)->posCurr.x, 325.0f) << "after the last glyph";
    ScreenFinish();
}

TEST(LevelSelectionName, ShiftCrossesPAndQInTheNameButNotOnTheScreen)
{
    ScreenStart(GS_LS, FocusScript() + "key Shift 19-23\n" + Key("P", 20) + Key("Q", 22));
    ScreenStepsTo(23);
    EXPECT_STREQ(gUserLevelName, "QP");
    const GameObjInst* pFirst = LiveOfKind(TYPE_NAME_GLYPH, 0);
    ASSERT_NE(pFirst, nullptr);
    EXPECT_NEAR(pFirst->texU * 26.0f, 'P' - 'A', 0.01f) << "the glyph of P";
    EXPECT_NEAR(pFirst->texV * 3.0f, 2.0f, 0.01f);
    ScreenFinish();
}

TEST(LevelSelectionName, AVisitLeftByReturnWithTheFocusLeavesNoDanglingCaret)
{
    ScreenStart(GS_LS, kScreen + CursorTo(kLevel[0], 5) + CursorTo(kField, 8) + Key("LButton", 10) +
                           Key("X", 12) + Key("Return", 14));
    ScreenStepsTo(14);
    ASSERT_EQ(gGameStateCurr, GS_LEVEL_0);
    gGameStateNext = GS_LS;
    ScreenSteps(2);
    ASSERT_EQ(gGameStateCurr, GS_LS);
    EXPECT_STREQ(gUserLevelName, "");
    EXPECT_EQ(CountLive(TYPE_CARET), 1) << "a new caret for the kept focus, none from the old visit";
    GameObjInst* pCaret = LiveOfKind(TYPE_CARET);
    ASSERT_NE(pCaret, nullptr);
    EXPECT_FLOAT_EQ(pCaret->posCurr.x, 225.0f - 100.0f + 10.0f) << "at the start of the empty field";
    ScreenFinish();
}

TEST(LevelSelectionName, ATypedNameThatExistsEntersTheUserLevel)
{
    ScreenStart(GS_LS, FocusScript() + Key("T", 20) + Key("O", 22) + Key("M", 24) + Key("B", 26) +
                           CursorTo(kLoad, 30) + Key("LButton", 35));
    SaveFolderCreate();
    WriteFileText(SaveFolderPath("tomb.txt"), "8\n0\n0\n3\n0\n-50\n");
    ScreenshotAtStep(33, "level-selection-name.png");
    ScreenStepsTo(26);
    EXPECT_STREQ(gUserLevelName, "tomb");
    ScreenStepsTo(35);
    EXPECT_EQ(NameNumber("sLSFadeAction"), 5);
    ScreenStepsWhileIn(GS_LS, 300);
    EXPECT_EQ(gGameStateCurr, GS_LEVEL_USER);
    ScreenFinishBeforeNextVisit();
}

TEST(LevelSelectionName, AMissingFileShowsTheMessageOnceForEachClickOnOneSpot)
{
    ScreenStart(GS_LS, FocusScript() + Key("N", 20) + Key("O", 22) + CursorTo(kLoad, 30) + Key("LButton", 35) +
                           Key("LButton", 37) + Key("LButton", 39) + ReleaseOn(kBattInc, 50));
    WriteStatesFile("100000\n0\n0");
    ScreenshotAtStep(40, "level-selection-missing-file.png");
    ScreenStepsTo(35);
    const int message = 19; // "File does not exist": every character is in the font
    EXPECT_EQ(CountLive(TYPE_TEXT_GLYPH), 1 + message);
    ScreenStepsTo(39);
    EXPECT_EQ(CountLive(TYPE_TEXT_GLYPH), 1 + 3 * message) << "three copies";
    EXPECT_EQ(gGameStateCurr, GS_LS);
    EXPECT_NE(NameNumber("sLSFadeAction"), 5);
    // The copies lie on one another: three glyphs on each place of the message.
    int onFirstPlace = 0;
    for (int i = 0; LiveOfKind(TYPE_TEXT_GLYPH, i); i++)
    {
        const GameObjInst* pGlyph = LiveOfKind(TYPE_TEXT_GLYPH, i);
        if (pGlyph->posCurr.x == 225.0f - 90.0f)
        {
            onFirstPlace++;
            EXPECT_FLOAT_EQ(pGlyph->posCurr.y, -215.0f + 25.0f);
        }
    }
    EXPECT_EQ(onFirstPlace, 3);
    ScreenStepsTo(51);
    EXPECT_EQ(gAttrBattery, 1);
    EXPECT_EQ(CountLive(TYPE_TEXT_GLYPH), 1) << "the number rewritten without keep took the messages away";
    ScreenFinish();
}
