// The level editor's text side through the real main loop: the name field, the messages and the save question.
#include "EditorFixture.h"
#include "TestEnv.h"
#include "savefolder.h"
#include "userlevel.h"

#include <cstdio>

namespace {

class EditorPrompts : public EditorTest
{
protected:
    static float CaretX()
    {
        std::vector<GameObjInst*> carets = DriveLive(TYPE_CARET);
        return carets.empty() ? -9999.0f : carets[0]->posCurr.x;
    }

    static void TapWithShift(int key)
    {
        int step = KRScriptGetStep();
        KRScriptHoldKey(160, step, step);
        KRScriptHoldKey((unsigned char)key, step, step);
        DriveFrames(2);
    }

    static bool FileExists(const std::string& path)
    {
        FILE* pFile = std::fopen(path.c_str(), "r");
        if (pFile)
            std::fclose(pFile);
        return pFile != nullptr;
    }
};

} // namespace

TEST_F(EditorPrompts, WithNineteenCharactersTypedFurtherKeysDoNothingAndBackspaceWorks)
{
    ClickAt(SPOT_NAME_FIELD);
    Type("ABCDEFGHIJKLMNOPQRS");
    ASSERT_EQ(DriveProbeValue("gUserLevelName"), "abcdefghijklmnopqrs");
    Type("TU");
    EXPECT_EQ(DriveProbeValue("gUserLevelName"), "abcdefghijklmnopqrs");
    EXPECT_EQ(DriveLive(TYPE_NAME_GLYPH).size(), 19u);
    DriveTap(8);
    EXPECT_EQ(DriveProbeValue("gUserLevelName"), "abcdefghijklmnopqr");
    EXPECT_EQ(DriveLive(TYPE_NAME_GLYPH).size(), 18u);
}

TEST_F(EditorPrompts, AClickOutsideTheFieldEndsTypingAndRemovesTheCaretAndAClickOnItPutsTheCaretAfterTheText)
{
    ClickAt(SPOT_NAME_FIELD);
    DriveFrames(1);
    ASSERT_EQ(DriveLive(TYPE_CARET).size(), 1u);
    Type("AB");
    float caretAfterTwo = CaretX();
    EXPECT_EQ(caretAfterTwo, SPOT_NAME_FIELD.x - 100.0f + 10.0f + 20.0f);

    ClickAt(0.0f, 0.0f);
    DriveFrames(1);
    EXPECT_TRUE(DriveLive(TYPE_CARET).empty());
    Type("C");
    EXPECT_EQ(DriveProbeValue("gUserLevelName"), "ab") << "the text stays, and no longer takes keys";

    ClickAt(SPOT_NAME_FIELD);
    DriveFrames(1);
    ASSERT_EQ(DriveLive(TYPE_CARET).size(), 1u);
    EXPECT_EQ(CaretX(), caretAfterTwo);
}

TEST_F(EditorPrompts, BackspaceWithAnEmptyNameDoesNothing)
{
    ClickAt(SPOT_NAME_FIELD);
    DriveFrames(1);
    float caret = CaretX();
    DriveTap(8);
    EXPECT_EQ(DriveProbeValue("gUserLevelName"), "");
    EXPECT_EQ(CaretX(), caret);
}

TEST_F(EditorPrompts, ShiftWithEightGivesEightAndShiftWithMinusGivesUnderscore)
{
    ClickAt(SPOT_NAME_FIELD);
    DriveFrames(1);
    TapWithShift('8');
    TapWithShift(189);
    DriveTap(189);
    EXPECT_EQ(DriveProbeValue("gUserLevelName"), "8_");
}

TEST_F(EditorPrompts, TwoKeysPressedInTheSameFrameGiveOnlyTheFirstInTableOrder)
{
    ClickAt(SPOT_NAME_FIELD);
    DriveFrames(1);
    DriveTapTogether({'7', 'K'});
    EXPECT_EQ(DriveProbeValue("gUserLevelName"), "k");
    DriveTapTogether({32, '0'});
    EXPECT_EQ(DriveProbeValue("gUserLevelName"), "k0");
}

TEST_F(EditorPrompts, SaveSuccessfulAfterTheFirstSaveIntoAMissingFolderStandsThoughNoFileExists)
{
    ClickAt(SPOT_NAME_FIELD);
    Type("FIRST");
    PlaceFrom(SPOT_CHARACTER, 0.0f, 0.0f);
    ClickAt(SPOT_SAVE);
    ClickAt(SPOT_YES);
    EXPECT_EQ(DriveProbeValue("message"), "Save successful");
    EXPECT_FALSE(FileExists(SaveFolderPath("first.txt")));

    ClickAt(SPOT_SAVE);
    ClickAt(SPOT_YES);
    EXPECT_TRUE(FileExists(SaveFolderPath("first.txt"))) << "the second save finds the folder";
}

TEST_F(EditorPrompts, ASecondMessageAtAnotherCameraPositionStandsAtTheNewPlaceAndTheFirstIsGone)
{
    ClickAt(SPOT_SAVE);
    std::vector<GameObjInst*> glyphs = DriveLive(TYPE_TEXT_GLYPH);
    ASSERT_EQ(glyphs.size(), 18u) << "Required file name, blanks included";
    EXPECT_EQ(glyphs[0]->posCurr.x, -400.0f + 495.0f);
    EXPECT_EQ(glyphs[0]->posCurr.y, -300.0f + 25.0f);

    // Panning down: the camera and the message move together.
    EditorSpot cam = PanDown(20);
    float camX = cam.x, camY = cam.y;
    ASSERT_LT(camY, 0.0f);
    EXPECT_EQ(glyphs[0]->posCurr.y, -300.0f + 25.0f + camY) << "a message pans with the furniture";

    ClickAt(SPOT_LOAD.x + camX, SPOT_LOAD.y + camY);
    glyphs = DriveLive(TYPE_TEXT_GLYPH);
    EXPECT_EQ(DriveProbeValue("message"), "File not found");
    ASSERT_EQ(glyphs.size(), 14u) << "only the new message's glyphs";
    EXPECT_EQ(glyphs[0]->posCurr.x, camX - 400.0f + 495.0f);
    EXPECT_EQ(glyphs[0]->posCurr.y, camY - 300.0f + 25.0f);
}

TEST_F(EditorPrompts, SaveWithNoNameAndNoCharacterAsksForTheNameFirstThenForTheCharacter)
{
    ClickAt(SPOT_SAVE);
    EXPECT_EQ(DriveProbeValue("message"), "Required file name");
    ClickAt(SPOT_NAME_FIELD);
    Type("X");
    ClickAt(SPOT_SAVE);
    EXPECT_EQ(DriveProbeValue("message"), "Character is missing");
}

TEST_F(EditorPrompts, TheConfirmationBoxIsNotModalAndNoClosesItWithoutSaving)
{
    SaveFolderCreate();
    ClickAt(SPOT_NAME_FIELD);
    Type("BOX");
    PlaceFrom(SPOT_CHARACTER, 0.0f, 100.0f);
    ClickAt(SPOT_SAVE);
    // Placing goes on while the box is up.
    PlaceFrom(SPOT_WALL, 250.0f, 50.0f);
    EXPECT_EQ(Placed(TYPE_WALL).size(), 1u);
    DriveScreenshot("editor-confirmation-box.png");
    ClickAt(SPOT_NO);
    EXPECT_FALSE(FileExists(SaveFolderPath("box.txt")));
    EXPECT_EQ(DriveProbeValue("message"), "");

    ClickAt(SPOT_SAVE);
    RightClickAt(250.0f, 50.0f);
    ClickAt(SPOT_YES);
    EXPECT_FALSE(FileExists(SaveFolderPath("box.txt"))) << "the right click that deleted the wall closed the box";
}

TEST_F(EditorPrompts, ShiftWithPAndQCrossInTheNameThatTheSaveUses)
{
    SaveFolderCreate();
    ClickAt(SPOT_NAME_FIELD);
    TapWithShift('P');
    TapWithShift('Q');
    EXPECT_EQ(DriveProbeValue("gUserLevelName"), "QP");
    PlaceFrom(SPOT_CHARACTER, 0.0f, 0.0f);
    ClickAt(SPOT_SAVE);
    ClickAt(SPOT_YES);
    EXPECT_TRUE(FileExists(SaveFolderPath("QP.txt")));
    DriveScreenshot("editor-message.png");
}
