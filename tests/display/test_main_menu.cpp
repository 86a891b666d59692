// The main menu through the real loop on the scripted back-end: the walking character and the torch that picks
// a button, the mouse against the keyboard, the buttons' reaches, the Options page and the exit confirmation.
#include "KRPlatformScripted.h"
#include "KRSystem.h"
#include "FrontEndScript.h"
#include "ScreenRun.h"
#include "fmodsound.h"
#include "frontkinds.h"
#include "gamestatemgr.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>

namespace {

GameObjInst* Character()
{
    return LiveOfKind(TYPE_CHARACTER);
}

// Puts the standing character at x; it stays there, on the floor of the scene.
void PlaceCharacter(float x)
{
    Character()->posCurr.x = x;
    Character()->velCurr.x = 0.0f;
}

} // namespace

TEST(MainMenu, TheCharacterStandsOnTheSceneAndStartsInTheFirstStretchWithStartSelected)
{
    ScreenStart(GS_MENU, kScreen);
    ScreenSteps(60);
    EXPECT_EQ(ProbeNumber("sOnGround"), 1) << "the scene's floor holds the character";
    EXPECT_NEAR(Character()->posCurr.x, -288.0f, 0.01f);
    EXPECT_NEAR(Character()->posCurr.y, -75.0f, 0.5f);
    EXPECT_EQ(ProbeNumber("sMenuSelection"), 1);
    EXPECT_EQ(ProbeNumber("sMouseActive"), 0);
    EXPECT_STREQ(MusicGetTrack(), "ANCIENT RUINS - NewAge MSCNEW2_33.ogg");
    ScreenFinish();
}

TEST(MainMenu, WalkingLightsEachButtonItPassesAndTheLightStaysUntilTheMouseMoves)
{
    // Frames of 1/25 s keep the walk short. The mouse moves once at the start, so every button is dimmed by the
    // mouse rule first; a second later the keyboard has the say.
    ScreenStart(GS_MENU, kScreen + "frametime 0.04\n" + CursorAt(0, -200, 2) + "key D 40-100\n" +
                             CursorAt(10, -200, 110));
    ScreenStepsTo(5);
    EXPECT_EQ(ProbeNumber("sMouseActive"), 1);
    EXPECT_EQ(ProbeNumber("startAlpha"), 0.5);
    EXPECT_EQ(ProbeNumber("controlAlpha"), 0.5);
    EXPECT_EQ(ProbeNumber("exitAlpha"), 0.5);
    PlaceCharacter(-160.0f); // still in a stretch of start

    ScreenStepsTo(39);
    EXPECT_EQ(ProbeNumber("sMouseActive"), 0);
    EXPECT_EQ(ProbeNumber("sMenuSelection"), 1);
    EXPECT_EQ(ProbeNumber("startAlpha"), 1) << "the stretch lights its button";

    bool sawControl = false;
    while (KRScriptGetStep() <= 100)
    {
        ScreenSteps(1);
        if (ProbeNumber("sMenuSelection") == 2)
            sawControl = true;
    }
    EXPECT_GT(Character()->posCurr.x, 144.0f);
    EXPECT_TRUE(sawControl);
    EXPECT_EQ(ProbeNumber("sMenuSelection"), 3);
    EXPECT_EQ(ProbeNumber("startAlpha"), 1) << "the stretches never dim";
    EXPECT_EQ(ProbeNumber("controlAlpha"), 1);
    EXPECT_EQ(ProbeNumber("exitAlpha"), 1);

    ScreenStepsTo(111);
    EXPECT_EQ(ProbeNumber("sMouseActive"), 1);
    EXPECT_EQ(ProbeNumber("startAlpha"), 0.5) << "the mouse moved: buttons away from the cursor dim";
    EXPECT_EQ(ProbeNumber("exitAlpha"), 0.5);
    ScreenFinish();
}

TEST(MainMenu, TheWallsKeepTheCharacterBetweenTheEndsOfTheStretches)
{
    ScreenStart(GS_MENU, kScreen + "key A 5-70\nkey D 80-150\n");
    ScreenStepsTo(70);
    EXPECT_NEAR(Character()->posCurr.x, -370.667f, 1.5f) << "the left wall";
    EXPECT_EQ(ProbeNumber("sMenuSelection"), 1);
    PlaceCharacter(300.0f);
    ScreenStepsTo(150);
    EXPECT_NEAR(Character()->posCurr.x, 373.667f, 1.5f) << "the right wall";
    EXPECT_EQ(ProbeNumber("sMenuSelection"), 3);
    ScreenFinish();
}

TEST(MainMenu, BetweenTheirReachesTwoButtonsAnswerTheMouseWhileTheStretchesNeverOverlap)
{
    ScreenStart(GS_MENU, kScreen + CursorAt(-300, 150, 5) + CursorAt(0, 150, 20) + CursorAt(0, 150, 40) +
                             CursorAt(300, 150, 60));
    ScreenSteps(2);
    PlaceCharacter(-200.0f); // in the reach of start and of control
    ScreenStepsTo(10);
    EXPECT_EQ(ProbeNumber("startAlpha"), 1);
    ScreenStepsTo(25);
    EXPECT_EQ(ProbeNumber("controlAlpha"), 1);
    EXPECT_EQ(ProbeNumber("startAlpha"), 0.5);

    PlaceCharacter(150.0f); // in the reach of control and of exit
    ScreenStepsTo(45);
    EXPECT_EQ(ProbeNumber("controlAlpha"), 1);
    ScreenStepsTo(65);
    EXPECT_EQ(ProbeNumber("exitAlpha"), 1);
    EXPECT_EQ(ProbeNumber("controlAlpha"), 0.5);
    ScreenFinish();
}

TEST(MainMenu, TheCursorOnStartWithTheCharacterFarRightDimsTheButtonAndTheClickDoesNothing)
{
    ScreenStart(GS_MENU, kScreen + CursorAt(-300, 150, 5) + "key LButton 20\n");
    ScreenSteps(2);
    PlaceCharacter(100.0f);
    ScreenStepsTo(19);
    EXPECT_EQ(ProbeNumber("startAlpha"), 0.5);
    ScreenStepsTo(200);
    EXPECT_NE(ProbeNumber("sMenuFadeAction"), 2);
    EXPECT_EQ(gGameStateCurr, GS_MENU);
    EXPECT_EQ(ProbeNumber("sMenuFade"), 0) << "no fade-out began";
    ScreenFinish();
}

TEST(MainMenu, ReturnRightAfterClosingTheOptionsPageDoesNothingForHalfASecond)
{
    // Return on options opens the page; D four times reaches back; Return closes; Return again is deaf.
    ScreenStart(GS_MENU, kScreen + "key Return 10\nkey D 50\nkey D 52\nkey D 54\nkey D 56\nkey Return 60\n"
                                   "key Return 70\nkey Return 100\n");
    ScreenSteps(2);
    PlaceCharacter(0.0f);
    ScreenStepsTo(9);
    EXPECT_EQ(ProbeNumber("sMenuSelection"), 2);
    ScreenStepsTo(11);
    EXPECT_EQ(ProbeNumber("sOptionsOpen"), 1);
    EXPECT_EQ(ProbeNumber("sOptionsLock"), 1);
    ScreenStepsTo(56);
    EXPECT_EQ(ProbeNumber("sOptionsIndex"), 4);
    ScreenStepsTo(60);
    EXPECT_EQ(ProbeNumber("sOptionsOpen"), 0);
    EXPECT_EQ(ProbeNumber("sOptionsIndex"), 0);
    EXPECT_EQ(ProbeNumber("sOptionsLock"), 1);
    ScreenStepsTo(72);
    EXPECT_EQ(ProbeNumber("sOptionsOpen"), 0) << "Return within the half second after closing";
    EXPECT_NE(ProbeNumber("sMenuFadeAction"), 3);
    ScreenStepsTo(102);
    EXPECT_EQ(ProbeNumber("sOptionsOpen"), 1) << "Return once the lock is over";
    ScreenFinish();
}

TEST(MainMenu, ReturnOnExitEndsTheGameAfterTheFadeWithoutAQuestion)
{
    ScreenStart(GS_MENU, kScreen + "key Return 10\n");
    ScreenSteps(2);
    PlaceCharacter(300.0f);
    ScreenStepsTo(9);
    EXPECT_EQ(ProbeNumber("sMenuSelection"), 3);
    int frames = 0;
    for (; ScreenRunning() && frames < 200; frames++)
    {
        ScreenSteps(1);
        if (ScreenRunning() && gGameStateCurr == GS_MENU)
        {
            EXPECT_EQ(ProbeNumber("sConfirmOpen"), 0);
        }
    }
    EXPECT_FALSE(ScreenRunning()) << "the game ended";
    EXPECT_GT(frames, 5) << "after the fade to black";
}

TEST(MainMenu, AClickOnExitAsksFirstAndYesEndsTheGame)
{
    ScreenStart(GS_MENU, kScreen + CursorAt(300, 150, 5) + "key LButton 20\n" + CursorAt(-75, 0, 30) +
                             "key LButton 40\n");
    ScreenshotAtStep(35, "main-menu-confirmation.png");
    ScreenSteps(2);
    PlaceCharacter(300.0f);
    ScreenStepsTo(20);
    EXPECT_EQ(ProbeNumber("sConfirmOpen"), 1);
    ScreenStepsTo(39);
    EXPECT_TRUE(ScreenRunning()) << "the question waits";
    ScreenSteps(3);
    EXPECT_FALSE(ScreenRunning()) << "Yes ends the game at once";
}

// Opens the confirmation by a click on exit at step 20, with the character in the exit's reach.
std::string ConfirmScript()
{
    return kScreen + CursorAt(300, 150, 5) + "key LButton 20\n";
}

TEST(MainMenu, NoAnswersOnItsOwnBoxWhileTheMouseIsIdle)
{
    ScreenStart(GS_MENU, ConfirmScript() + CursorAt(75, 0, 30) + "key LButton 120\n");
    ScreenSteps(2);
    PlaceCharacter(300.0f);
    ScreenStepsTo(119);
    EXPECT_EQ(ProbeNumber("sMouseActive"), 0) << "the mouse has rested more than a second";
    EXPECT_EQ(ProbeNumber("sConfirmOpen"), 1);
    ScreenStepsTo(120);
    EXPECT_EQ(ProbeNumber("sConfirmOpen"), 0);
    EXPECT_EQ(gGameStateCurr, GS_MENU);
    ScreenFinish();
}

TEST(MainMenu, YesAnswersOnItsOwnBoxWhileTheMouseIsIdle)
{
    ScreenStart(GS_MENU, ConfirmScript() + CursorAt(-75, 0, 30) + "key LButton 120\n");
    ScreenSteps(2);
    PlaceCharacter(300.0f);
    ScreenStepsTo(119);
    EXPECT_EQ(ProbeNumber("sMouseActive"), 0);
    ScreenSteps(3);
    EXPECT_FALSE(ScreenRunning());
}

TEST(MainMenu, ReleasingF2ClosesTheConfirmation)
{
    ScreenStart(GS_MENU, ConfirmScript() + "key 0x71 30-32\n");
    ScreenSteps(2);
    PlaceCharacter(300.0f);
    ScreenStepsTo(32);
    EXPECT_EQ(ProbeNumber("sConfirmOpen"), 1) << "held, not yet released";
    ScreenStepsTo(33);
    EXPECT_EQ(ProbeNumber("sConfirmOpen"), 0);
    ScreenFinish();
}

TEST(MainMenu, TheTorchJumpsToTheStretchRuleOneSecondAfterTheMouseStops)
{
    ScreenStart(GS_MENU, kScreen + CursorAt(300, 100, 5));
    ScreenStepsTo(10);
    float mouseAngle = (float)ProbeNumber("sTorchAngle");
    EXPECT_LT(mouseAngle, 45.0f) << "the torch points at the cursor, up and to the right";
    int jumpStep = -1;
    for (int i = 0; i < 120; i++)
    {
        ScreenSteps(1);
        float angle = (float)ProbeNumber("sTorchAngle");
        if (angle == mouseAngle)
            continue;
        EXPECT_FLOAT_EQ(angle, 90.0f) << "no easing: from the mouse's angle straight to the stretch's";
        if (jumpStep < 0)
            jumpStep = KRScriptGetStep() - 1;
    }
    EXPECT_GE(jumpStep, 5 + 60);
    EXPECT_LE(jumpStep, 5 + 63);
    ScreenFinish();
}

TEST(MainMenu, TheStretchesSwingTheTorchByTheCharactersPlace)
{
    ScreenStart(GS_MENU, kScreen);
    ScreenSteps(2);
    struct
    {
        float x, angle;
        int selection;
    } rows[] = {{-370.0f, 90.0f - 17.0f * (1.0f - 0.667f / 82.6669921875f), 1},
                {-200.0f, 90.0f + 28.0f * (1.0f - 59.0f / 147.0f), 1},
                {-100.0f, 62.0f + 28.0f * (1.0f - 104.0f / 145.0f), 2},
                {100.0f, 90.0f + 28.0f * (1.0f - 44.0f / 140.0f), 2},
                {200.0f, 57.0f + 33.0f * (1.0f - 108.0f / 164.0f), 3},
                {350.0f, 90.0f + 13.0f * (1.0f - 23.667f / 65.6669921875f), 3}};
    for (const auto& row : rows)
    {
        PlaceCharacter(row.x);
        ScreenSteps(1);
        EXPECT_NEAR(ProbeNumber("sTorchAngle"), row.angle, 0.01) << "x " << row.x;
        EXPECT_EQ(ProbeNumber("sMenuSelection"), row.selection) << "x " << row.x;
    }
    ScreenFinish();
}

// Opens the page by Return with the character under options; the lock ends half a second later.
std::string OptionsScript()
{
    return kScreen + "key Return 10\n";
}

TEST(MainMenu, TheFullScreenChoiceStartsClearAtEachEntry)
{
    ScreenStart(GS_MENU, OptionsScript() + CursorAt(70, 120, 50) + "key LButton 60\nkey LButton 70\n");
    ScreenshotAtStep(65, "main-menu-options.png");
    ScreenSteps(2);
    PlaceCharacter(0.0f);
    ScreenStepsTo(59);
    EXPECT_EQ(gKRFullScreen, 1) << "the game starts in full screen";
    EXPECT_EQ(ProbeNumber("sOptionsOpen"), 1);
    ScreenStepsTo(60);
    EXPECT_EQ(ProbeNumber("sMenuFullScreen"), 1);
    EXPECT_EQ(gKRFullScreen, 1) << "the first toggle asks for full screen, whatever the window is";
    ScreenStepsTo(70);
    EXPECT_EQ(gKRFullScreen, 0);

    // Leave and come back: the menu forgot what it asked.
    gGameStateNext = GS_LS;
    ScreenSteps(3);
    gGameStateNext = GS_MENU;
    ScreenSteps(3);
    ASSERT_EQ(gGameStateCurr, GS_MENU);
    EXPECT_EQ(ProbeNumber("sMenuFullScreen"), 0);
    ScreenFinish();
}

TEST(MainMenu, OptionsPageVolumeUpAndDownByMouseOnly)
{
    ScreenStart(GS_MENU, OptionsScript() + CursorAt(-150, -70, 50) + "key LButton 60\n" + CursorAt(-60, -70, 65) +
                             "key LButton 70\nkey LButton 72\n");
    ScreenSteps(2);
    PlaceCharacter(0.0f);
    ScreenStepsTo(59);
    float volume = gMusic.GetVolume();
    ScreenStepsTo(60);
    EXPECT_GT(gMusic.GetVolume(), volume) << "volume up";
    float louder = gMusic.GetVolume();
    ScreenStepsTo(72);
    EXPECT_LT(gMusic.GetVolume(), louder) << "volume down, twice";
    ScreenFinish();
}

TEST(MainMenu, OptionsPageKeyboardIndexWrapsAndReturnOnTheVolumeRowsDoesNothing)
{
    ScreenStart(GS_MENU, OptionsScript() + "key A 50\nkey D 52\nkey A 54\nkey A 56\nkey Return 58\nkey A 60\n"
                                           "key Return 62\nkey A 64\nkey Return 66\n");
    ScreenSteps(2);
    PlaceCharacter(0.0f);
    ScreenStepsTo(49);
    float volume = gMusic.GetVolume();
    ScreenStepsTo(50);
    EXPECT_EQ(ProbeNumber("sOptionsIndex"), 4) << "A below 0 wraps to 4";
    ScreenStepsTo(52);
    EXPECT_EQ(ProbeNumber("sOptionsIndex"), 0) << "D above 4 wraps to 0";
    ScreenStepsTo(58);
    EXPECT_EQ(ProbeNumber("sOptionsIndex"), 3);
    ScreenStepsTo(62);
    EXPECT_EQ(ProbeNumber("sOptionsIndex"), 2);
    EXPECT_FLOAT_EQ(gMusic.GetVolume(), volume) << "Return on the volume rows";
    EXPECT_EQ(ProbeNumber("sOptionsOpen"), 1);
    ScreenStepsTo(66);
    EXPECT_EQ(ProbeNumber("sOptionsIndex"), 1);
    EXPECT_EQ(ProbeNumber("sMenuFullScreen"), 1) << "Return on full screen toggles it";
    ScreenFinish();
}

TEST(MainMenu, TheCreditsButtonOfTheOptionsPageGoesToTheCredits)
{
    ScreenStart(GS_MENU, OptionsScript() + CursorAt(-105, -135, 20) + "key LButton 25\n");
    ScreenSteps(2);
    PlaceCharacter(0.0f);
    ScreenStepsTo(24);
    EXPECT_EQ(ProbeNumber("sOptionsLock"), 1) << "the credits button answers even during the lock";
    ScreenStepsTo(26);
    EXPECT_EQ(gGameStateCurr, GS_CREDITS);
    ScreenFinishBeforeNextVisit();
}

TEST(MainMenu, ReturnOnStartFadesOutToTheLevelSelection)
{
    ScreenStart(GS_MENU, kScreen + "key Return 10\n");
    ScreenshotAtStep(5, "main-menu-fading-in.png");
    ScreenStepsTo(10);
    EXPECT_EQ(ProbeNumber("sMenuFadeAction"), 2);
    ScreenStepsTo(15);
    EXPECT_EQ(gGameStateCurr, GS_MENU) << "the fade to black first";
    ScreenStepsTo(40);
    EXPECT_EQ(gGameStateCurr, GS_LS);
    ScreenFinish();
}

TEST(MainMenu, AClickOnStartFadesOutToTheLevelSelection)
{
    ScreenStart(GS_MENU, kScreen + CursorAt(-300, 150, 110) + "key LButton 115\n");
    ScreenshotAtStep(114, "main-menu.png");
    ScreenStepsTo(114);
    EXPECT_EQ(ProbeNumber("startAlpha"), 1);
    EXPECT_EQ(ProbeNumber("controlAlpha"), 0.5);
    ScreenStepsTo(115);
    EXPECT_EQ(ProbeNumber("sMenuFadeAction"), 2);
    ScreenStepsTo(300);
    EXPECT_EQ(gGameStateCurr, GS_LS);
    ScreenFinish();
}
