// A user builds a level by clicks, names it, saves it, clears and loads it, test-plays it, leaves the editor and
// plays it as the user level to a win: the whole way through the real main loop.
#include "EditorFixture.h"
#include "TestEnv.h"
#include "playcommon.h"
#include "savefolder.h"
#include "userlevel.h"

#include <cstring>

namespace {

class EditorScenario : public EditorTest
{
protected:
    static void Hold(int key, int frames)
    {
        int step = KRScriptGetStep();
        KRScriptHoldKey((unsigned char)key, step, step + frames - 1);
        DriveFrames(frames + 1);
    }
};

const char* const EXPECTED_FILE = "3\n-100\n0\n"
                                  "3\n0\n0\n"
                                  "3\n100\n0\n"
                                  "6\n-140\n21\n"
                                  "6\n-129\n21\n"
                                  "8\n-60\n60\n"
                                  "10\n100\n45\n";

} // namespace

TEST_F(EditorScenario, BuildNameSaveClearLoadTestPlayThenPlayTheLevelToAWin)
{
    DriveFrames(100);

    // Platforms snapped together, two spikes, the character and the exit, all clear of the Yes button, whose
    // click would otherwise also pick up what lies under it.
    PlaceFrom(SPOT_PLATFORM, -100.0f, 0.0f);
    PlaceFrom(SPOT_PLATFORM, -40.0f, 0.0f);
    PlaceFrom(SPOT_PLATFORM, 60.0f, 0.0f);
    PlaceFrom(SPOT_SPIKE_UP, -140.0f, 5.0f);
    PlaceFrom(SPOT_SPIKE_UP, -136.0f, 25.0f);
    PlaceFrom(SPOT_CHARACTER, -60.0f, 60.0f);
    PlaceFrom(SPOT_EXIT, 100.0f, 45.0f);
    std::vector<GameObjInst*> platforms = Placed(TYPE_PLATFORM);
    ASSERT_EQ(platforms.size(), 3u);
    EXPECT_EQ(platforms[1]->posCurr.x, 0.0f);
    EXPECT_EQ(platforms[2]->posCurr.x, 100.0f);
    std::vector<GameObjInst*> spikes = Placed(TYPE_SPIKE_UP);
    ASSERT_EQ(spikes.size(), 2u);
    EXPECT_EQ(spikes[0]->posCurr.y, 21.5f) << "on the platform";
    EXPECT_EQ(spikes[1]->posCurr.x, -129.0f) << "beside the first spike";

    ClickAt(SPOT_NAME_FIELD);
    Type("MYLEVEL");
    ASSERT_EQ(DriveProbeValue("gUserLevelName"), "mylevel");

    // The first save makes the folder only; the second writes the file.
    for (int i = 0; i < 2; ++i)
    {
        ClickAt(SPOT_SAVE);
        ClickAt(SPOT_YES);
        EXPECT_EQ(DriveProbeValue("message"), "Save successful");
    }
    std::string path = SaveFolderPath("mylevel.txt");
    EXPECT_EQ(ReadFileText(path), EXPECTED_FILE);

    ClickAt(SPOT_CLEAR);
    ASSERT_TRUE(DriveLevelObjects().empty());
    ClickAt(SPOT_LOAD);
    EXPECT_EQ(DriveProbeValue("message"), "Load successful");
    EXPECT_EQ(DriveProbeValue("gUserLevelName"), "mylevel") << "the name stays after a load";
    EXPECT_EQ(Placed(TYPE_PLATFORM).size(), 3u);
    EXPECT_EQ(Placed(TYPE_HAND).size(), 1u);
    ASSERT_EQ(Placed(TYPE_SPIKE_UP).size(), 2u);
    EXPECT_EQ(Placed(TYPE_SPIKE_UP)[0]->posCurr.y, 21.0f) << "what was written, cut toward zero";

    // Test play: walk, jump, flip, Escape.
    ClickAt(SPOT_PLAY);
    ASSERT_EQ(Probe("sEditorTesting"), 1);
    DriveFrames(60);
    GameObjInst* pC = Placed(TYPE_CHARACTER)[0];
    EXPECT_NEAR(pC->posCurr.y, 35.0f, 2.0f) << "standing on the platforms";
    float x = pC->posCurr.x;
    Hold('D', 20);
    EXPECT_GT(pC->posCurr.x, x + 20.0f);
    float y = pC->posCurr.y;
    DriveTap(' ');
    DriveFrames(5);
    EXPECT_GT(pC->posCurr.y, y + 5.0f) << "the jump";
    DriveFrames(60);
    DriveTap(1);
    EXPECT_EQ(gPlay.sGravityInverted, 1);
    DriveFrames(30);
    DriveScreenshot("editor-test-play-inverted.png");
    DriveTap(27);
    EXPECT_EQ(Probe("sEditorTesting"), 0);
    EXPECT_EQ(gPlay.sGravityInverted, 0);

    // Out through EXIT to the level selection, which empties the name: it is typed there once more, and its LOAD
    // button enters the user level. Its cursor stands at (pointer x - 390, 253 - pointer y) in the world.
    ClickAt(SPOT_EXIT_BTN);
    for (int i = 0; i < 150 && gGameStateCurr == GS_EDITOR; ++i)
        DriveFrames(1);
    ASSERT_EQ(gGameStateCurr, GS_LS);
    DriveFrames(2);
    EXPECT_STREQ(gUserLevelName, "");
    DrivePointer(225 + 390, 253 + 215);
    DriveFrames(1);
    DriveTap(1);
    DriveFrames(1);
    Type("MYLEVEL");
    ASSERT_STREQ(gUserLevelName, "mylevel");
    DrivePointer(290 + 390, 253 + 265);
    DriveFrames(1);
    DriveTap(1);
    for (int i = 0; i < 200 && gGameStateCurr == GS_LS; ++i)
        DriveFrames(1);
    ASSERT_EQ(gGameStateCurr, GS_LEVEL_USER);
    DrivePointer(600, 300);
    int step = KRScriptGetStep();
    KRScriptHoldKey('D', step + 30, step + 400);
    bool won = false;
    for (int i = 0; i < 400 && !won; ++i)
    {
        DriveFrames(1);
        won = DriveProbeValue("sWon") == "1";
    }
    EXPECT_TRUE(won) << DriveProbe();
}
