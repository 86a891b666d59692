// The level editor's screen through the real main loop: the furniture, the buttons' click boxes, the kinds it
// registers, and a second visit.
#include "EditorFixture.h"
#include "KRInput.h"

namespace {

class EditorScreen : public EditorTest
{
};

} // namespace

TEST_F(EditorScreen, TheScreenIsTwentySevenPiecesOfFurnitureInTheirOrder)
{
    const u32 kinds[] = {13, 21, 8, 12, 32, 27, 28, 6, 7, 10, 3, 2, 22, 35, 23, 24, 25, 26, 79, 11, 18, 40, 41,
                         95, 96, 97, 20};
    std::vector<GameObjInst*> live = DriveLive();
    ASSERT_EQ(live.size(), 27u);
    for (size_t i = 0; i < live.size(); ++i)
    {
        EXPECT_EQ(live[i]->pObject->type, kinds[i]) << "slot " << i;
        EXPECT_EQ(live[i]->isInterface, 1);
        EXPECT_EQ(live[i] - DrivePool()->sGameObjInstList, (long)i);
    }
    EXPECT_EQ(live[2]->scale, 50.0f) << "the character icon carries the level's scale";
    EXPECT_EQ(live[9]->scale, 55.0f);
    EXPECT_EQ(live[13]->posCurr.x, -275.0f);
    EXPECT_EQ(live[13]->posCurr.y, -215.0f);
    EXPECT_EQ(KRScriptCursorVisible(), 0) << "the system pointer is hidden";
}

TEST_F(EditorScreen, AButtonReactsOnItsBoxOfSeventeenAndAHalfNotOnTheUpperPartOfItsPicture)
{
    GameObjInst* pClear = DriveLive(TYPE_CLEAR_BTN)[0];
    EXPECT_EQ(pClear->boundingBox.minX, SPOT_CLEAR.x - 17.5f);
    EXPECT_EQ(pClear->boundingBox.maxX, SPOT_CLEAR.x + 17.5f);
    EXPECT_EQ(pClear->boundingBox.minY, SPOT_CLEAR.y - 17.5f);
    EXPECT_EQ(pClear->boundingBox.maxY, SPOT_CLEAR.y + 17.5f);

    PlaceFrom(SPOT_PLATFORM, 0.0f, 0.0f);
    // The picture reaches 35 above the centre; the cursor's own box of 17.5 here lies wholly above the click box.
    ClickAt(SPOT_CLEAR.x, SPOT_CLEAR.y + 36.0f);
    EXPECT_EQ(Placed(TYPE_PLATFORM).size(), 1u) << "the top of the picture does not react";
    ClickAt(SPOT_CLEAR.x + 30.0f, SPOT_CLEAR.y);
    EXPECT_TRUE(Placed(TYPE_PLATFORM).empty());
}

TEST_F(EditorScreen, AKindThirtySevenGlyphIsRegisteredButNeverExists)
{
    EXPECT_EQ(DrivePool()->sGameObjList[TYPE_SPARE_GLYPH].type, (u32)TYPE_SPARE_GLYPH);
    EXPECT_NE(DrivePool()->sGameObjList[TYPE_SPARE_GLYPH].pMesh, nullptr);
    ClickAt(SPOT_NAME_FIELD);
    Type("ABC");
    ClickAt(SPOT_SAVE);
    EXPECT_FALSE(DriveLive(TYPE_NAME_GLYPH).empty());
    EXPECT_FALSE(DriveLive(TYPE_TEXT_GLYPH).empty());
    EXPECT_TRUE(DriveLive(TYPE_SPARE_GLYPH).empty());
}

TEST_F(EditorScreen, TheEditorRegistersFortyTwoKinds)
{
    int registered = 0;
    for (u32 kind = 0; kind < GAME_OBJ_NUM_MAX; ++kind)
        registered += DrivePool()->sGameObjList[kind].pMesh ? 1 : 0;
    EXPECT_EQ(registered, 42);
}

TEST_F(EditorScreen, EnteringTheEditorASecondTimeShowsAnEmptyNameAnEmptyLevelAndTheCameraAtTheOrigin)
{
    PlaceFrom(SPOT_PLATFORM, 0.0f, 0.0f);
    PlaceFrom(SPOT_CHARACTER, -100.0f, 50.0f);
    ClickAt(SPOT_NAME_FIELD);
    Type("AGAIN");
    EditorSpot cam = PanDown(10);
    ASSERT_NE(cam.y, 0.0f);
    ClickAt(SPOT_EXIT_BTN.x + cam.x, SPOT_EXIT_BTN.y + cam.y);
    for (int i = 0; i < 150 && gGameStateCurr == GS_EDITOR; ++i)
        DriveFrames(1);
    ASSERT_EQ(gGameStateCurr, GS_LS) << "the fade out leads to level selection";

    gGameStateNext = GS_EDITOR;
    DriveFrames(2);
    ASSERT_EQ(gGameStateCurr, GS_EDITOR);
    EXPECT_EQ(DriveProbeValue("gUserLevelName"), "");
    EXPECT_TRUE(DriveLevelObjects().empty());
    EXPECT_EQ(DriveLive().size(), 27u);
    float camX = 1.0f, camY = 1.0f;
    KRGfxGetCamPosition(&camX, &camY);
    EXPECT_EQ(camX, 0.0f);
    EXPECT_EQ(camY, 0.0f);
    EXPECT_EQ(Probe("sUndoCount"), 0) << "no record of the first visit can be undone";

    // Editing works as on a first visit.
    PlaceFrom(SPOT_CHARACTER, 0.0f, 0.0f);
    EXPECT_EQ(Placed(TYPE_CHARACTER).size(), 1u);
}

TEST_F(EditorScreen, ALevelUnderConstruction)
{
    DriveFrames(100); // the fade in ends
    PlaceFrom(SPOT_PLATFORM, -200.0f, -100.0f);
    PlaceFrom(SPOT_PLATFORM, -140.0f, -100.0f);
    PlaceFrom(SPOT_PLATFORM, -40.0f, -100.0f);
    PlaceFrom(SPOT_WALL, 70.0f, -90.0f);
    PlaceFrom(SPOT_CHARACTER, -200.0f, -40.0f);
    PlaceFrom(SPOT_SPIKE_ROW_UP, -90.0f, -90.0f);
    PlaceFrom(SPOT_PLATFORM, 140.0f, 40.0f);
    PlaceFrom(SPOT_EXIT, 150.0f, 95.0f);
    PlaceFrom(SPOT_BATTERY, -250.0f, 60.0f);
    ClickAt(SPOT_WALL);
    DrivePointAt(250.0f, 0.0f);
    DriveFrames(2);
    ASSERT_EQ(Held().size(), 1u);
    DriveScreenshot("editor-level-under-construction.png");
    EXPECT_EQ(Placed(TYPE_PLATFORM).size(), 4u);
    EXPECT_EQ(Placed(TYPE_PLATFORM)[1]->posCurr.x, -100.0f) << "snapped flush to the first";
}
