// The level editor's placing and editing through the real main loop: picking held copies, placing, snapping,
// the buttons' effect on what is held, right click and undo.
#include "EditorFixture.h"
#include "TestEnv.h"
#include "savefolder.h"

namespace {

class EditorPlacing : public EditorTest
{
};

} // namespace

TEST_F(EditorPlacing, ALeftClickOnEmptyWorldWithNothingHeldDoesNothing)
{
    ClickAt(0.0f, 0.0f);
    EXPECT_TRUE(DriveLevelObjects().empty());
    EXPECT_EQ(Probe("sUndoCount"), 0);
    EXPECT_EQ(Probe("held"), 0);
}

TEST_F(EditorPlacing, ALeftClickOnAPlacedPlatformGivesASecondHeldPlatformAndLeavesTheFirst)
{
    PlaceFrom(SPOT_PLATFORM, 0.0f, 0.0f);
    ASSERT_EQ(Placed(TYPE_PLATFORM).size(), 1u);
    ClickAt(0.0f, 0.0f);
    EXPECT_EQ(Placed(TYPE_PLATFORM).size(), 1u);
    ASSERT_EQ(Held().size(), 1u);
    EXPECT_EQ(Held()[0]->pObject->type, (u32)TYPE_PLATFORM);
    EXPECT_EQ(Placed(TYPE_PLATFORM)[0]->posCurr.x, 0.0f) << "the clicked platform stays where it is";
}

TEST_F(EditorPlacing, APlatformReleasedRightOfAPlacedOneLandsFlushAHundredRightAndAboveItTwentyHigherAtItsOwnX)
{
    PlaceFrom(SPOT_PLATFORM, 0.0f, 0.0f);
    PlaceFrom(SPOT_PLATFORM, 60.0f, 0.0f);
    std::vector<GameObjInst*> platforms = Placed(TYPE_PLATFORM);
    ASSERT_EQ(platforms.size(), 2u);
    EXPECT_EQ(platforms[1]->posCurr.x, 100.0f);
    EXPECT_EQ(platforms[1]->posCurr.y, 0.0f);
    EXPECT_EQ(Probe("sUndoCount"), 2);

    PlaceFrom(SPOT_PLATFORM, 10.0f, 15.0f);
    platforms = Placed(TYPE_PLATFORM);
    ASSERT_EQ(platforms.size(), 3u);
    EXPECT_EQ(platforms[2]->posCurr.x, 10.0f);
    EXPECT_EQ(platforms[2]->posCurr.y, 20.0f);
    EXPECT_EQ(Probe("sUndoCount"), 3);
}

TEST_F(EditorPlacing, AHeldPowerUpStaysHeldOnAPlatformAndIsPlacedInFreeSpaceWithOneRecord)
{
    PlaceFrom(SPOT_PLATFORM, 0.0f, 0.0f);
    ClickAt(SPOT_POWERUP);
    ClickAt(10.0f, 5.0f);
    ASSERT_EQ(Held().size(), 1u);
    EXPECT_EQ(Held()[0]->pObject->type, (u32)TYPE_ZOOM_POWERUP);
    EXPECT_EQ(Probe("sUndoCount"), 1);

    ClickAt(-200.0f, -60.0f);
    EXPECT_TRUE(Held().empty());
    ASSERT_EQ(Placed(TYPE_ZOOM_POWERUP).size(), 1u);
    EXPECT_EQ(Placed(TYPE_ZOOM_POWERUP)[0]->posCurr.x, -200.0f);
    EXPECT_EQ(Placed(TYPE_ZOOM_POWERUP)[0]->posCurr.y, -60.0f);
    EXPECT_EQ(Placed(TYPE_ZOOM_POWERUP)[0]->scale, 30.0f);
    EXPECT_EQ(Probe("sUndoCount"), 2);
}

TEST_F(EditorPlacing, ASpikeReleasedOnAPlatformSitsOnItAtItsOwnXAndOnAnExitStaysWhereItIsUnheldWithoutRecord)
{
    PlaceFrom(SPOT_PLATFORM, 0.0f, 0.0f);
    PlaceFrom(SPOT_SPIKE_UP, 20.0f, 5.0f);
    ASSERT_EQ(Placed(TYPE_SPIKE_UP).size(), 1u);
    EXPECT_EQ(Placed(TYPE_SPIKE_UP)[0]->posCurr.x, 20.0f);
    EXPECT_EQ(Placed(TYPE_SPIKE_UP)[0]->posCurr.y, 21.5f);
    EXPECT_EQ(Probe("sUndoCount"), 2);

    PlaceFrom(SPOT_EXIT, -200.0f, -100.0f);
    ASSERT_EQ(Probe("sUndoCount"), 3);
    PlaceFrom(SPOT_SPIKE_UP, -200.0f, -90.0f);
    std::vector<GameObjInst*> spikes = Placed(TYPE_SPIKE_UP);
    ASSERT_EQ(spikes.size(), 2u);
    EXPECT_EQ(spikes[1]->posCurr.x, -200.0f);
    EXPECT_EQ(spikes[1]->posCurr.y, -90.0f);
    EXPECT_TRUE(Held().empty());
    EXPECT_EQ(Probe("sUndoCount"), 3) << "no record for a spike let go on the exit";
}

TEST_F(EditorPlacing, TheCharacterCantBeReleasedOnAnythingAndOncePlacedItsIconGivesNothing)
{
    PlaceFrom(SPOT_PLATFORM, 0.0f, 0.0f);
    ClickAt(SPOT_CHARACTER);
    // The character's box meets the platform; the smaller hand's does not, so both stay held.
    ClickAt(0.0f, 30.0f);
    EXPECT_EQ(Held().size(), 2u) << "the character and its hand";
    EXPECT_TRUE(Placed(TYPE_CHARACTER).empty());

    ClickAt(-200.0f, -60.0f);
    ASSERT_EQ(Placed(TYPE_CHARACTER).size(), 1u);
    ASSERT_EQ(Placed(TYPE_HAND).size(), 1u);
    EXPECT_EQ(Placed(TYPE_HAND)[0]->posCurr.y, -68.0f) << "the hand 8 below the character";
    EXPECT_TRUE(Held().empty());

    ClickAt(SPOT_CHARACTER);
    EXPECT_TRUE(Held().empty());
    EXPECT_EQ(Placed(TYPE_CHARACTER).size(), 1u);
}

TEST_F(EditorPlacing, AHeldCharacterOnAPlatformWhoseHandMeetsItTooLetsTheHandGoAlone)
{
    PlaceFrom(SPOT_PLATFORM, 0.0f, 0.0f);
    ClickAt(SPOT_CHARACTER);
    ClickAt(0.0f, 10.0f);
    ASSERT_EQ(Held().size(), 1u);
    EXPECT_EQ(Held()[0]->pObject->type, (u32)TYPE_CHARACTER);
    EXPECT_EQ(Placed(TYPE_HAND).size(), 1u);
}

TEST_F(EditorPlacing, AHeldObjectOverSaveStaysHeldAndSaveActsOverClearItIsPlacedThenCleared)
{
    ClickAt(SPOT_PLATFORM);
    ClickAt(SPOT_SAVE);
    EXPECT_EQ(Held().size(), 1u);
    EXPECT_EQ(DriveProbeValue("message"), "Required file name");

    ClickAt(SPOT_CLEAR);
    EXPECT_TRUE(DriveLevelObjects().empty());
    EXPECT_EQ(Probe("sUndoCount"), 1) << "placed first, with its record, then cleared";

    ClickAt(SPOT_WALL);
    ClickAt(SPOT_LOAD);
    EXPECT_TRUE(DriveLevelObjects().empty());
    EXPECT_EQ(Probe("sUndoCount"), 2);
    EXPECT_EQ(DriveProbeValue("message"), "File not found");
}

TEST_F(EditorPlacing, FiveUndoStepsAfterFivePlacementsEmptyTheLevelInReverseOrder)
{
    const float xs[5] = {-300.0f, -150.0f, 0.0f, 150.0f, 300.0f};
    for (float x : xs)
        PlaceFrom(SPOT_PLATFORM, x, 0.0f);
    ASSERT_EQ(Placed(TYPE_PLATFORM).size(), 5u);
    ASSERT_EQ(Probe("sUndoCount"), 5);
    for (int i = 4; i >= 0; --i)
    {
        DriveUndo();
        std::vector<GameObjInst*> left = Placed(TYPE_PLATFORM);
        ASSERT_EQ(left.size(), (size_t)i);
        for (GameObjInst* pInst : left)
            EXPECT_LT(pInst->posCurr.x, xs[i]) << "the last placed goes first";
    }
    EXPECT_EQ(Probe("sUndoCount"), 0);
}

TEST_F(EditorPlacing, APlatformSnappedOntoTheCharacterNeedsTwoUndoStepsAndTheSecondChangesNothing)
{
    PlaceFrom(SPOT_CHARACTER, 0.0f, 0.0f);
    PlaceFrom(SPOT_PLATFORM, 10.0f, 10.0f);
    ASSERT_EQ(Placed(TYPE_PLATFORM).size(), 1u);
    EXPECT_EQ(Placed(TYPE_PLATFORM)[0]->posCurr.x, 0.0f);
    EXPECT_EQ(Placed(TYPE_PLATFORM)[0]->posCurr.y, 60.0f) << "at rest above the character";
    ASSERT_EQ(Probe("sUndoCount"), 3);

    DriveUndo();
    EXPECT_TRUE(Placed(TYPE_PLATFORM).empty());
    size_t before = DriveLevelObjects().size();
    DriveUndo();
    EXPECT_EQ(Probe("sUndoCount"), 1);
    EXPECT_EQ(DriveLevelObjects().size(), before);
    EXPECT_EQ(Placed(TYPE_CHARACTER).size(), 1u);
}

TEST_F(EditorPlacing, UndoAtCountZeroDoesNothing)
{
    DriveUndo();
    DriveUndo();
    EXPECT_EQ(Probe("sUndoCount"), 0);
    EXPECT_TRUE(DriveLevelObjects().empty());
}

TEST_F(EditorPlacing, UndoTakesBackARightClickDeleteAtTheSamePlace)
{
    PlaceFrom(SPOT_WALL, -100.0f, 0.0f);
    RightClickAt(-100.0f, 0.0f);
    EXPECT_TRUE(Placed(TYPE_WALL).empty());
    EXPECT_EQ(Probe("sUndoCount"), 2);
    DriveUndo();
    ASSERT_EQ(Placed(TYPE_WALL).size(), 1u);
    EXPECT_EQ(Placed(TYPE_WALL)[0]->posCurr.x, -100.0f);
    EXPECT_EQ(Probe("sUndoCount"), 1);
}

TEST_F(EditorPlacing, RightControlWithZDoesNotUndo)
{
    PlaceFrom(SPOT_PLATFORM, 0.0f, 0.0f);
    int step = KRScriptGetStep();
    KRScriptHoldKey(163, step, step + 1);
    KRScriptHoldKey('Z', step, step);
    DriveFrames(2);
    EXPECT_EQ(Placed(TYPE_PLATFORM).size(), 1u);
}

TEST_F(EditorPlacing, SavingAfterClearIsAcceptedAndWritesAnEmptyFileWhenACharacterHadBeenPlaced)
{
    SaveFolderCreate();
    PlaceFrom(SPOT_CHARACTER, 0.0f, 0.0f);
    PlaceFrom(SPOT_PLATFORM, 0.0f, -100.0f);
    ClickAt(SPOT_NAME_FIELD);
    Type("EMPTY");
    ClickAt(SPOT_CLEAR);
    ASSERT_TRUE(DriveLevelObjects().empty());
    ClickAt(SPOT_SAVE);
    EXPECT_EQ(DriveProbeValue("message"), "");
    ClickAt(SPOT_YES);
    EXPECT_EQ(DriveProbeValue("message"), "Save successful");
    std::string path = SaveFolderPath("empty.txt");
    EXPECT_EQ(ReadFileText(path), "");
    FILE* pFile = std::fopen(path.c_str(), "r");
    ASSERT_NE(pFile, nullptr) << "the file exists";
    std::fclose(pFile);
}

TEST_F(EditorPlacing, PanningAtTheRightEdgeMovesCameraAndFurnitureButNotTheLevel)
{
    PlaceFrom(SPOT_PLATFORM, 0.0f, 0.0f);
    GameObjInst* pSave = DriveLive(TYPE_SAVE_BTN)[0];
    float saveX = pSave->posCurr.x;
    DrivePointer(785, 300);
    DriveFrames(10);
    float camX = 0.0f, camY = 0.0f;
    KRGfxGetCamPosition(&camX, &camY);
    EXPECT_EQ(camX, 40.0f) << "4 a frame";
    EXPECT_EQ(camY, 0.0f);
    EXPECT_EQ(pSave->posCurr.x, saveX + 40.0f);
    EXPECT_EQ(Placed(TYPE_PLATFORM)[0]->posCurr.x, 0.0f);
}

TEST_F(EditorPlacing, AClickOnALetterOfAMessageCopiesTheGlyphIntoTheLevel)
{
    ClickAt(SPOT_SAVE);
    ASSERT_EQ(DriveProbeValue("message"), "Required file name");
    ClickAt(125.0f, -275.0f);
    EXPECT_EQ(Probe("held"), TYPE_TEXT_GLYPH);
    ClickAt(0.0f, 0.0f);
    std::vector<GameObjInst*> copies = Placed(TYPE_TEXT_GLYPH);
    ASSERT_EQ(copies.size(), 1u);
    EXPECT_EQ(copies[0]->isInterface, 0) << "part of the level now";
    EXPECT_EQ(copies[0]->texU, 0.0f) << "with texture offset 0";
    EXPECT_EQ(copies[0]->scale, 10.0f);
}

TEST_F(EditorPlacing, UndoingTheDeleteOfACharacterBringsItBackAloneAndSaveStillMissesIt)
{
    PlaceFrom(SPOT_CHARACTER, 0.0f, 0.0f);
    RightClickAt(0.0f, 0.0f);
    ASSERT_TRUE(Placed(TYPE_CHARACTER).empty());
    ASSERT_TRUE(Placed(TYPE_HAND).empty());
    DriveUndo();
    EXPECT_EQ(Placed(TYPE_CHARACTER).size(), 1u);
    EXPECT_TRUE(Placed(TYPE_HAND).empty()) << "no hand comes back";
    ClickAt(SPOT_NAME_FIELD);
    Type("A");
    ClickAt(SPOT_SAVE);
    EXPECT_EQ(DriveProbeValue("message"), "Character is missing");
    ClickAt(SPOT_CHARACTER);
    EXPECT_EQ(Probe("held"), TYPE_CHARACTER) << "the right click cleared the one-character flag";
}

TEST_F(EditorPlacing, UndoingThePlacingOfACharacterLeavesItsHandAndThePointerForSave)
{
    PlaceFrom(SPOT_CHARACTER, 0.0f, 0.0f);
    DriveUndo();
    EXPECT_TRUE(Placed(TYPE_CHARACTER).empty());
    EXPECT_EQ(Placed(TYPE_HAND).size(), 1u) << "the hand stays on the screen";
    ClickAt(SPOT_CHARACTER);
    EXPECT_EQ(Probe("held"), 0) << "the level still counts its character as placed";
    ClickAt(SPOT_NAME_FIELD);
    Type("A");
    ClickAt(SPOT_SAVE);
    EXPECT_EQ(DriveProbeValue("message"), "") << "SAVE finds the pointer and asks for confirmation";
}
