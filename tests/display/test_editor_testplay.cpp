// Test play in the editor through the real main loop: the level runs in place on the editor's pool and Escape
// goes back to editing.
#include "EditorFixture.h"
#include "editor_internal.h"
#include "playcommon.h"

namespace {

class EditorTestPlay : public EditorTest
{
protected:
    // A character standing on a platform, the platform placed first.
    static void BuildFloor()
    {
        PlaceFrom(SPOT_PLATFORM, 0.0f, -100.0f);
        PlaceFrom(SPOT_PLATFORM, 100.0f, -100.0f);
        PlaceFrom(SPOT_CHARACTER, 0.0f, -50.0f);
    }

    static GameObjInst* Character()
    {
        std::vector<GameObjInst*> found = Placed(TYPE_CHARACTER);
        return found.empty() ? nullptr : found[0];
    }

    static void Hold(int key, int frames)
    {
        int step = KRScriptGetStep();
        KRScriptHoldKey((unsigned char)key, step, step + frames - 1);
        DriveFrames(frames + 1);
    }
};

} // namespace

TEST_F(EditorTestPlay, PlayWithNoCharacterDoesNothingNorAfterClear)
{
    PlaceFrom(SPOT_PLATFORM, 0.0f, -100.0f);
    ClickAt(SPOT_PLAY);
    EXPECT_EQ(Probe("sEditorTesting"), 0);
    EXPECT_EQ(DriveProbeValue("message"), "");

    PlaceFrom(SPOT_CHARACTER, 0.0f, -50.0f);
    ClickAt(SPOT_CLEAR);
    ClickAt(SPOT_PLAY);
    EXPECT_EQ(Probe("sEditorTesting"), 0) << "the pointer names a dead instance";
    EXPECT_EQ(DriveProbeValue("message"), "");
}

TEST_F(EditorTestPlay, TheCharacterFallsOntoThePlatformAndWalksOnIt)
{
    BuildFloor();
    ClickAt(SPOT_PLAY);
    ASSERT_EQ(Probe("sEditorTesting"), 1);
    DriveFrames(90);
    GameObjInst* pC = Character();
    ASSERT_NE(pC, nullptr);
    EXPECT_NEAR(pC->posCurr.y, -100.0f + 10.0f + 25.0f, 2.0f) << "standing on the platform";
    float x = pC->posCurr.x;
    Hold('D', 30);
    EXPECT_GT(pC->posCurr.x, x + 30.0f) << "D walks right";
    DriveScreenshot("editor-test-play.png");
}

TEST_F(EditorTestPlay, AHeldObjectKeptByThePlayClickStaysAtTheCursorAndIsSolid)
{
    PlaceFrom(SPOT_CHARACTER, SPOT_PLAY.x, SPOT_PLAY.y + 100.0f);
    ClickAt(SPOT_PLATFORM);
    ClickAt(SPOT_PLAY);
    ASSERT_EQ(Probe("sEditorTesting"), 1);
    ASSERT_EQ(Held().size(), 1u);
    GameObjInst* pHeld = Held()[0];
    float heldX = pHeld->posCurr.x;
    float heldY = pHeld->posCurr.y;
    DriveFrames(120);
    EXPECT_EQ(pHeld->posCurr.x, heldX);
    EXPECT_EQ(pHeld->posCurr.y, heldY);
    EXPECT_NEAR(Character()->posCurr.y, heldY + 10.0f + 25.0f, 2.0f) << "the character stands on the held platform";
}

TEST_F(EditorTestPlay, ASecondEscapeWhileEditingDoesNothing)
{
    BuildFloor();
    ClickAt(SPOT_PLAY);
    DriveFrames(30);
    DriveTap(27);
    ASSERT_EQ(Probe("sEditorTesting"), 0);
    size_t objects = DriveLevelObjects().size();
    DriveTap(27);
    DriveFrames(2);
    EXPECT_EQ(gGameStateCurr, GS_EDITOR);
    EXPECT_EQ(Probe("sEditorTesting"), 0);
    EXPECT_EQ(DriveLevelObjects().size(), objects);
}

TEST_F(EditorTestPlay, AfterATestTheCameraIsWhereEditingLeftItAndGravityIsNormal)
{
    BuildFloor();
    EditorSpot cam = PanDown(5);
    float camX = cam.x, camY = cam.y;
    ASSERT_EQ(camY, -20.0f);

    ClickAt(SPOT_PLAY.x + camX, SPOT_PLAY.y + camY);
    ASSERT_EQ(Probe("sEditorTesting"), 1);
    DriveFrames(60);
    DriveTap(1);
    ASSERT_EQ(gPlay.sGravityInverted, 1) << "the click flipped gravity";
    DriveFrames(20);
    DriveTap(27);
    EXPECT_EQ(Probe("sEditorTesting"), 0);
    EXPECT_EQ(gPlay.sGravityInverted, 0);
    float afterX = 1.0f, afterY = 1.0f;
    KRGfxGetCamPosition(&afterX, &afterY);
    EXPECT_EQ(afterX, camX);
    EXPECT_EQ(afterY, camY);
    EXPECT_EQ(Character()->velCurr.x, 0.0f);
    EXPECT_EQ(Character()->velCurr.y, 0.0f);
}

TEST_F(EditorTestPlay, TouchingSpikesChangesNothingAtAll)
{
    BuildFloor();
    PlaceFrom(SPOT_SPIKE_UP, 60.0f, -85.0f);
    ASSERT_EQ(Placed(TYPE_SPIKE_UP).size(), 1u);
    size_t objects = DriveLevelObjects().size();
    ClickAt(SPOT_PLAY);
    DriveFrames(60);
    Hold('D', 40);
    EXPECT_GT(Character()->posCurr.x, 60.0f) << "walked over the spike";
    EXPECT_EQ(Probe("sEditorTesting"), 1);
    EXPECT_EQ(gGameStateCurr, GS_EDITOR);
    EXPECT_EQ(DriveLevelObjects().size(), objects);
    EXPECT_EQ(Placed(TYPE_SPIKE_UP).size(), 1u);
}

TEST_F(EditorTestPlay, KeyZeroDuringATestIsDroppedAndTheTestGoesOn)
{
    BuildFloor();
    ClickAt(SPOT_PLAY);
    DriveFrames(10);
    DriveTap('0');
    DriveFrames(5);
    EXPECT_EQ(gGameStateCurr, GS_EDITOR);
    EXPECT_EQ(Probe("sEditorTesting"), 1);
    EXPECT_NE(Character(), nullptr);
    EXPECT_EQ(DriveLevelObjects().size(), 4u) << "two platforms, the character, the hand";
}

TEST_F(EditorTestPlay, APowerUpTouchedStartsTheZoomAndStaysDestroyedAfterTheTest)
{
    BuildFloor();
    PlaceFrom(SPOT_POWERUP, 60.0f, -60.0f);
    ASSERT_EQ(Placed(TYPE_ZOOM_POWERUP).size(), 1u);
    int records = Probe("sUndoCount");
    ClickAt(SPOT_PLAY);
    DriveFrames(30);
    Hold('D', 30);
    EXPECT_TRUE(Placed(TYPE_ZOOM_POWERUP).empty());
    EXPECT_LT(camera_scale, 1.0f);
    DriveTap(27);
    EXPECT_TRUE(Placed(TYPE_ZOOM_POWERUP).empty());
    EXPECT_EQ(Probe("sUndoCount"), records) << "no record for what the test took";
}
