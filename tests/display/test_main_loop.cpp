// The main loop through the real start-up on the scripted back-end, with two small states that record every
// call: the order of a visit, restart and quit, the frame delta, F1, keys held across a change of state.
#include "ChildProcess.h"
#include "GameRun.h"
#include "KRInput.h"
#include "KRSystem.h"
#include "gameloop.h"
#include "gamestatemgr.h"

#include <cstdio>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

std::vector<std::string> sJournal;
int sFramesInVisit = 0;
// What a state's Update does at a given frame of its visit: returns the state to ask for, or -1 to stay.
std::function<int(int state, int frame)> sPlan;
std::vector<float> sDeltasSeen;
std::vector<int> sFullScreenSeen;
bool sEcho = false; // also print each call, for tests that watch the process's output

void Record(const char* what, int state)
{
    sJournal.push_back(std::string(what) + " " + std::to_string(state));
    if (sEcho)
    {
        std::printf("%s %d\n", what, state);
        std::fflush(stdout);
    }
}

template <int State>
struct RecordingState
{
    static void Load() { Record("Load", State); }
    static void Init()
    {
        Record("Init", State);
        sFramesInVisit = 0;
    }
    static void Update()
    {
        Record("Update", State);
        sDeltasSeen.push_back(gFrameDelta);
        sFullScreenSeen.push_back(gKRFullScreen);
        int next = sPlan ? sPlan(State, sFramesInVisit) : -1;
        if (next >= 0)
            gGameStateNext = next;
        ++sFramesInVisit;
    }
    static void Draw() { Record("Draw", State); }
    static void Free() { Record("Free", State); }
    static void Unload() { Record("Unload", State); }
    static GameStateFuncs Row() { return {Load, Init, Update, Draw, Free, Unload}; }
};

class MainLoop : public ::testing::Test
{
protected:
    void SetUp() override
    {
        for (int i = 0; i < GS_STATE_NUM; ++i)
            mSaved[i] = gGameStateTable[i];
        gGameStateTable[GS_MENU] = RecordingState<GS_MENU>::Row();
        gGameStateTable[GS_LS] = RecordingState<GS_LS>::Row();
        sJournal.clear();
        sDeltasSeen.clear();
        sFullScreenSeen.clear();
        sPlan = nullptr;
        gFrameDelta = 0.0f;
        gAppTime = 0.0;
    }
    void TearDown() override
    {
        for (int i = 0; i < GS_STATE_NUM; ++i)
            gGameStateTable[i] = mSaved[i];
        sPlan = nullptr;
    }
    GameStateFuncs mSaved[GS_STATE_NUM];
};

std::vector<std::string> Journal(std::initializer_list<const char*> lines)
{
    return std::vector<std::string>(lines.begin(), lines.end());
}

} // namespace

TEST_F(MainLoop, VisitRunsLoadInitFramesFreeUnloadInOrder)
{
    sPlan = [](int, int frame) -> int { return frame == 1 ? GS_QUIT : -1; };
    RunGameScripted(GS_MENU, "");
    EXPECT_EQ(sJournal, Journal({"Load 8", "Init 8", "Update 8", "Draw 8", "Update 8", "Draw 8", "Free 8",
                                 "Unload 8"}));
    EXPECT_EQ(gGameStateCurr, GS_QUIT);
}

TEST_F(MainLoop, FirstUpdateSeesZeroFrameDeltaAndLaterOnesTheLastFrame)
{
    sPlan = [](int, int frame) -> int { return frame == 2 ? GS_QUIT : -1; };
    RunGameScripted(GS_MENU, "frametime 0.05 0\n");
    ASSERT_EQ(sDeltasSeen.size(), 3u);
    EXPECT_EQ(sDeltasSeen[0], 0.0f);
    EXPECT_NEAR(sDeltasSeen[1], 0.05f, 1e-6);
    EXPECT_NEAR(sDeltasSeen[2], 1.0f / 60.0f, 1e-6);
    EXPECT_NEAR(gAppTime, 0.05 + 2.0 / 60.0, 1e-5);
}

TEST_F(MainLoop, FrameDeltaIsNotResetWhenTheStateChanges)
{
    sPlan = [](int state, int frame) -> int {
        if (state == GS_MENU)
            return GS_LS;
        return frame == 0 ? GS_QUIT : -1;
    };
    RunGameScripted(GS_MENU, "frametime 0.25 0\n");
    ASSERT_EQ(sDeltasSeen.size(), 2u);
    EXPECT_NEAR(sDeltasSeen[1], 0.25f, 1e-6) << "the new state's first Update sees the old state's last frame";
}

TEST_F(MainLoop, FrameThatAsksForAnotherStateStillDraws)
{
    sPlan = [](int state, int) -> int { return state == GS_MENU ? GS_LS : GS_QUIT; };
    RunGameScripted(GS_MENU, "");
    EXPECT_EQ(sJournal, Journal({"Load 8", "Init 8", "Update 8", "Draw 8", "Free 8", "Unload 8", "Load 9",
                                 "Init 9", "Update 9", "Draw 9", "Free 9", "Unload 9"}));
    EXPECT_EQ(gGameStatePrev, GS_LS);
}

TEST_F(MainLoop, ClosingTheWindowRunsFreeAndUnloadThenEnds)
{
    RunGameScripted(GS_MENU, "close 2\n");
    EXPECT_EQ(sJournal, Journal({"Load 8", "Init 8", "Update 8", "Draw 8", "Update 8", "Draw 8", "Update 8",
                                 "Draw 8", "Free 8", "Unload 8"}));
    EXPECT_EQ(KRSysDoesWindowExist(), 0);
    EXPECT_EQ(gGameStateCurr, GS_QUIT);
}

TEST_F(MainLoop, RestartRunsFreeThenInitWithoutUnloadOrLoad)
{
    int restarts = 0;
    sPlan = [&restarts](int, int frame) -> int {
        if (frame == 0 && restarts == 0)
        {
            ++restarts;
            return GS_RESTART;
        }
        return frame == 0 ? GS_QUIT : -1;
    };
    RunGameScripted(GS_MENU, "");
    EXPECT_EQ(sJournal, Journal({"Load 8", "Init 8", "Update 8", "Draw 8", "Free 8", "Init 8", "Update 8",
                                 "Draw 8", "Free 8", "Unload 8"}));
}

TEST_F(MainLoop, AfterARestartThePreviousStateIsTheStateItself)
{
    int restarts = 0;
    int prevSeen = -1;
    sPlan = [&](int, int frame) -> int {
        if (restarts == 0)
        {
            ++restarts;
            return GS_RESTART;
        }
        prevSeen = gGameStatePrev;
        return frame == 0 ? GS_QUIT : -1;
    };
    RunGameScripted(GS_MENU, "");
    EXPECT_EQ(prevSeen, GS_MENU);
}

TEST_F(MainLoop, F1TogglesFullScreenOnThePressFrameOnlyAndBeforeUpdate)
{
    sPlan = [](int, int frame) -> int { return frame == 6 ? GS_QUIT : -1; };
    RunGameScripted(GS_MENU, "key F1 2-4\n");
    ASSERT_EQ(sFullScreenSeen.size(), 7u);
    EXPECT_EQ(sFullScreenSeen[0], 1) << "the game starts in full screen";
    EXPECT_EQ(sFullScreenSeen[1], 1);
    EXPECT_EQ(sFullScreenSeen[2], 0) << "the Update of the press frame already sees the window";
    EXPECT_EQ(sFullScreenSeen[3], 0) << "holding F1 has no further effect";
    EXPECT_EQ(sFullScreenSeen[4], 0);
    EXPECT_EQ(sFullScreenSeen[6], 0);
    EXPECT_EQ(gKRWinScaleX, 1.0f);
}

TEST_F(MainLoop, KeyHeldAcrossAStateChangeIsNotTriggeredInTheNewState)
{
    std::vector<int> triggered, current;
    sPlan = [&](int state, int frame) -> int {
        if (state == GS_LS)
        {
            triggered.push_back(KRInputCheckTriggered('A'));
            current.push_back(KRInputCheckCurr('A'));
            return frame == 1 ? GS_QUIT : -1;
        }
        return frame == 3 ? GS_LS : -1;
    };
    RunGameScripted(GS_MENU, "key A 2-20\n");
    ASSERT_EQ(triggered.size(), 2u);
    EXPECT_EQ(triggered[0], 0);
    EXPECT_EQ(current[0], 1);
}

TEST_F(MainLoop, FullScreenScalesForA1920By1080Screen)
{
    sPlan = [](int, int) -> int { return GS_QUIT; };
    RunGameScripted(GS_MENU, "screen 1920 1080\n");
    EXPECT_FLOAT_EQ(gKRWinScaleX, 2.4f);
    EXPECT_FLOAT_EQ(gKRWinScaleY, 1.8f);
}

TEST_F(MainLoop, WritingAnUnknownStateEndsTheVisitAndStopsAtTheNextEntry)
{
    ChildResult child = RunInChild([] {
        sEcho = true;
        sPlan = [](int, int) -> int { return 14; };
        RunGameScripted(GS_MENU, "");
    });
    EXPECT_EQ(child.exitCode, 1);
    const std::string tail = "Update 8\nDraw 8\nFree 8\nUnload 8\nKR_FATAL_ERROR: invalid state!!";
    ASSERT_GE(child.out.size(), tail.size());
    EXPECT_EQ(child.out.substr(child.out.size() - tail.size()), tail)
        << "the visit ends normally and the message comes at the next entry";
}

TEST_F(MainLoop, SteppingOneFrameAtATimeKeepsTheOrderOfTheWholeLoop)
{
    int restarts = 0;
    sPlan = [&restarts](int state, int frame) -> int {
        if (state == GS_MENU && frame == 1 && restarts == 0)
        {
            ++restarts;
            return GS_RESTART;
        }
        if (state == GS_MENU && frame == 1)
            return GS_LS;
        return state == GS_LS && frame == 0 ? GS_QUIT : -1;
    };
    StartGameScripted(GS_MENU, "");
    std::vector<size_t> journalAfterStep;
    while (GameLoopStep())
        journalAfterStep.push_back(sJournal.size());
    EXPECT_EQ(sJournal, Journal({"Load 8", "Init 8", "Update 8", "Draw 8", "Update 8", "Draw 8", "Free 8", "Init 8",
                                 "Update 8", "Draw 8", "Update 8", "Draw 8", "Free 8", "Unload 8", "Load 9",
                                 "Init 9", "Update 9", "Draw 9", "Free 9", "Unload 9"}));
    // One step is one frame: five frames ran, and the journal grew by one Update and Draw each time.
    ASSERT_EQ(journalAfterStep.size(), 5u);
    EXPECT_EQ(journalAfterStep[0], 4u) << "the first step opens the visit and runs its first frame";
    EXPECT_EQ(journalAfterStep[1], 7u) << "the frame that asks for a restart closes the visit with Free";
    EXPECT_EQ(journalAfterStep[2], 10u) << "the next step reopens it with Init only";
    EXPECT_EQ(gGameStateCurr, GS_QUIT);
    EXPECT_FALSE(GameLoopStep()) << "a finished game takes no more steps";
}

TEST_F(MainLoop, BetweenStepsAStateCanBeReadAsItStands)
{
    sPlan = [](int, int frame) -> int { return frame == 3 ? GS_QUIT : -1; };
    StartGameScripted(GS_MENU, "");
    ASSERT_TRUE(GameLoopStep());
    EXPECT_EQ(sFramesInVisit, 1);
    ASSERT_TRUE(GameLoopStep());
    EXPECT_EQ(sFramesInVisit, 2);
    EXPECT_EQ(gGameStateCurr, GS_MENU);
    while (GameLoopStep())
    {
    }
    EXPECT_EQ(sFramesInVisit, 4);
}
