// The character attribute panel of the level selection, through the real loop on the scripted back-end: skill
// points from the progress file, spending and refunding by Return and by the release of the mouse, the pips, the
// number on the screen and the file written when the screen is left.
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

int Number(const char* key)
{
    return (int)ProbeNumber(key);
}

} // namespace

// Return on an item: the cursor picks it by hovering at step - 6, leaves at step - 3, Return at step.
std::string ReturnOn(Spot s, int step)
{
    return CursorTo(s, step - 6) + CursorTo(kNowhere, step - 3) + Key("Return", step);
}

std::string ShownNumber()
{
    std::string text;
    for (int i = 0; LiveOfKind(TYPE_TEXT_GLYPH, i); i++)
        text += GlyphDigit(LiveOfKind(TYPE_TEXT_GLYPH, i));
    return text;
}

TEST(Attributes, FirstRunTheFileIsNewThereAreNoPointsAndNoButtonDoesAnything)
{
    ScreenStart(GS_LS, kScreen + ReleaseOn(kBattInc, 20) + ReleaseOn(kHpInc, 30) + ReleaseOn(kBattDec, 40) +
                           ReleaseOn(kHpDec, 50) + ReturnOn(kBattInc, 60) + ReturnOn(kBattDec, 70) +
                           ReturnOn(kHpInc, 80) + ReturnOn(kHpDec, 90));
    ScreenStepsTo(1);
    EXPECT_EQ(ReadStatesFile(), "000000\n0\n0") << "made by the second read at entry";
    EXPECT_EQ(Number("sSkillPointsTotal"), 0);
    EXPECT_EQ(ShownNumber(), "0");
    ScreenStepsTo(95);
    EXPECT_EQ(Number("sSkillPoints"), 0);
    EXPECT_EQ(gAttrBattery, 0);
    EXPECT_EQ(gAttrHealth, 0);
    ScreenFinish();
}

TEST(Attributes, OneFinishedLevelGivesOnePointToSpendAndTakeBack)
{
    ScreenStart(GS_LS, kScreen + ReleaseOn(kBattInc, 20) + ReleaseOn(kHpInc, 30) + ReleaseOn(kBattDec, 40));
    WriteStatesFile("100000\n0\n0");
    ScreenStepsTo(1);
    EXPECT_EQ(Number("sSkillPointsTotal"), 1);
    EXPECT_EQ(ShownNumber(), "1");
    ScreenStepsTo(21);
    EXPECT_EQ(gAttrBattery, 1);
    EXPECT_EQ(Number("sSkillPoints"), 0);
    EXPECT_EQ(ShownNumber(), "0");
    ScreenStepsTo(31);
    EXPECT_EQ(gAttrHealth, 0) << "no point left";
    ScreenStepsTo(41);
    EXPECT_EQ(gAttrBattery, 0);
    EXPECT_EQ(Number("sSkillPoints"), 1);
    ScreenFinish();
}

TEST(Attributes, AFullBatteryTakesNoMoreEvenWithAPointLeft)
{
    ScreenStart(GS_LS, kScreen + ReleaseOn(kBattInc, 20) + ReturnOn(kBattInc, 30));
    WriteStatesFile("111100\n3\n0");
    ScreenStepsTo(31);
    EXPECT_EQ(gAttrBattery, 3);
    EXPECT_EQ(Number("sSkillPoints"), 1);
    ScreenFinish();
}

TEST(Attributes, AttributesAboveTheTotalMakeANegativeNumberShownWithoutItsMinus)
{
    ScreenStart(GS_LS, kScreen + ReleaseOn(kBattInc, 20) + ReleaseOn(kHpInc, 30) + ReleaseOn(kHpDec, 40));
    WriteStatesFile("100000\n1\n1");
    ScreenStepsTo(1);
    EXPECT_EQ(Number("sSkillPoints"), -1);
    EXPECT_EQ(ShownNumber(), "1") << "the font has no minus";
    ScreenStepsTo(31);
    EXPECT_EQ(gAttrBattery, 1) << "ups refused";
    EXPECT_EQ(gAttrHealth, 1);
    ScreenStepsTo(41);
    EXPECT_EQ(gAttrHealth, 0) << "downs work";
    EXPECT_EQ(Number("sSkillPoints"), 0);
    ScreenFinish();
}

TEST(Attributes, TheKeyboardBatteryDownTestsHitPointsAndCanGoBelowZero)
{
    ScreenStart(GS_LS, kScreen + ReturnOn(kBattDec, 20) + ReleaseOn(kBattDec, 30) + ReturnOn(kBack, 40));
    WriteStatesFile("100000\n0\n1");
    ScreenStepsTo(20);
    EXPECT_EQ(gAttrBattery, -1);
    EXPECT_EQ(Number("sSkillPoints"), 1);
    EXPECT_EQ(Number("sSkillPoints") + gAttrBattery + gAttrHealth, Number("sSkillPointsTotal"));
    ScreenStepsTo(31);
    EXPECT_EQ(gAttrBattery, -1) << "the mouse tests the battery itself";
    ScreenStepsTo(40);
    EXPECT_EQ(gGameStateCurr, GS_MENU);
    EXPECT_EQ(ReadStatesFile(), "100000\n/\n1") << "-1 is stored as '/'";
    ScreenFinish();
}

TEST(Attributes, TheKeyboardCannotLowerTheBatteryWithoutHitPoints)
{
    ScreenStart(GS_LS, kScreen + ReturnOn(kBattDec, 20));
    WriteStatesFile("110000\n1\n0");
    ScreenStepsTo(20);
    EXPECT_EQ(gAttrBattery, 1);
    ScreenFinish();
}

TEST(Attributes, PipsAreDrawnByCount)
{
    ScreenStart(GS_LS, kScreen + ReleaseOn(kBattInc, 20) + ReleaseOn(kHpInc, 30) + ReleaseOn(kHpInc, 40));
    WriteStatesFile("111000\n0\n0");
    ScreenshotAtStep(45, "level-selection-attributes.png");
    ScreenStepsTo(45);
    EXPECT_EQ(gAttrBattery, 1);
    EXPECT_EQ(gAttrHealth, 2);
    EXPECT_EQ(CountLive(TYPE_STAT_BAR_BATT), 3) << "nothing made or destroyed";
    EXPECT_EQ(CountLive(TYPE_STAT_BAR_HP), 3);
    ScreenFinish();
}

TEST(Attributes, PressOnAButtonMoveOffAndReleaseDoesNothingWhilePressElsewhereAndReleaseOnItApplies)
{
    ScreenStart(GS_LS, kScreen + CursorTo(kBattInc, 15) + "key LButton 20-24\n" + CursorTo(kNowhere, 22) +
                           "key LButton 40-44\n" + CursorTo(kBattInc, 42));
    WriteStatesFile("110000\n0\n0");
    ScreenStepsTo(30);
    EXPECT_EQ(gAttrBattery, 0);
    ScreenStepsTo(50);
    EXPECT_EQ(gAttrBattery, 1);
    ScreenFinish();
}

TEST(Attributes, AReturnAndAReleaseInTheSameFrameBothApply)
{
    ScreenStart(GS_LS, kScreen + CursorTo(kHpInc, 10) + CursorTo(kNowhere, 13) + CursorTo(kBattInc, 17) +
                           "key LButton 19\nkey Return 20\n");
    WriteStatesFile("110000\n0\n0");
    ScreenStepsTo(16);
    EXPECT_EQ(Number("sLSSelection"), 8);
    ScreenStepsTo(19);
    EXPECT_EQ(gAttrHealth, 0);
    ScreenStepsTo(20);
    EXPECT_EQ(Number("sLSSelection"), 6) << "the hover moved it onto the battery button";
    ScreenFinish();
}

TEST(Attributes, SpentPointsReachTheNextLevelAndTheFileWhenTheScreenIsLeft)
{
    ScreenStart(GS_LS, kScreen + ReleaseOn(kBattInc, 20) + ReleaseOn(kHpInc, 30) + ReturnOn(kLevel[0], 40));
    WriteStatesFile("110000\n0\n0");
    ScreenStepsTo(40);
    ASSERT_EQ(gGameStateCurr, GS_LEVEL_0);
    EXPECT_EQ(ReadStatesFile(), "110000\n1\n1");
    ScreenSteps(1);
    EXPECT_EQ(ProbeNumber("sHitPoints"), 4) << "three hit points and one bought";
    EXPECT_EQ(ProbeNumber("sBatteryLife"), 190) << "180 seconds and ten bought";
    EXPECT_EQ(CountLive(TYPE_HEART), 4);
    ScreenFinish();
}

TEST(Attributes, ABatteryLoweredBelowZeroGivesTheLevelLessBattery)
{
    ScreenStart(GS_LS, kScreen + ReturnOn(kBattDec, 20) + ReturnOn(kLevel[0], 30));
    WriteStatesFile("100000\n0\n1");
    ScreenStepsTo(30);
    ASSERT_EQ(gGameStateCurr, GS_LEVEL_0);
    EXPECT_EQ(gAttrBattery, -1);
    ScreenSteps(1);
    EXPECT_EQ(ProbeNumber("sBatteryLife"), 170);
    EXPECT_EQ(ProbeNumber("sHitPoints"), 4);
    ScreenFinish();
}
