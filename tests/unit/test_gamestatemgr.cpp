// The state manager: the slots follow the table, the pseudo states leave them alone, a bad number stops the game.
#include "ChildProcess.h"
#include "gamestatemgr.h"

#include <gtest/gtest.h>

namespace {

int sLoaded = -1;
void LoadMenu() { sLoaded = GS_MENU; }
void LoadCredits() { sLoaded = GS_CREDITS; }
void Nothing() {}

class StateManager : public ::testing::Test
{
protected:
    void SetUp() override
    {
        for (int i = 0; i < GS_STATE_NUM; ++i)
            mSaved[i] = gGameStateTable[i];
        gGameStateTable[GS_MENU] = {LoadMenu, Nothing, Nothing, Nothing, Nothing, Nothing};
        gGameStateTable[GS_CREDITS] = {LoadCredits, Nothing, Nothing, Nothing, Nothing, Nothing};
        sLoaded = -1;
    }
    void TearDown() override
    {
        for (int i = 0; i < GS_STATE_NUM; ++i)
            gGameStateTable[i] = mSaved[i];
    }
    GameStateFuncs mSaved[GS_STATE_NUM];
};

} // namespace

TEST_F(StateManager, InitStoresTheNumberEverywhereAndFillsTheSlots)
{
    GameStateMgrInit(GS_MENU);
    EXPECT_EQ(gGameStateInit, GS_MENU);
    EXPECT_EQ(gGameStateCurr, GS_MENU);
    EXPECT_EQ(gGameStatePrev, GS_MENU);
    EXPECT_EQ(gGameStateNext, GS_MENU);
    GameStateLoad();
    EXPECT_EQ(sLoaded, GS_MENU);
}

TEST_F(StateManager, UpdateRebindsTheSlotsToTheCurrentState)
{
    GameStateMgrInit(GS_MENU);
    gGameStateCurr = GS_CREDITS;
    GameStateMgrUpdate();
    GameStateLoad();
    EXPECT_EQ(sLoaded, GS_CREDITS);
}

TEST_F(StateManager, RestartAndQuitLeaveTheSlotsAsTheyAre)
{
    GameStateMgrInit(GS_MENU);
    gGameStateCurr = GS_RESTART;
    GameStateMgrUpdate();
    gGameStateCurr = GS_QUIT;
    GameStateMgrUpdate();
    GameStateLoad();
    EXPECT_EQ(sLoaded, GS_MENU);
}

TEST_F(StateManager, NumberAboveTheLastStateStopsWithTheFatalMessage)
{
    ChildResult child = RunInChild([] {
        gGameStateCurr = 14;
        GameStateMgrUpdate();
    });
    EXPECT_EQ(child.exitCode, 1);
    EXPECT_EQ(child.out, "KR_FATAL_ERROR: invalid state!!") << "no line end after the message";
}

TEST_F(StateManager, NegativeNumberTakesTheSameWay)
{
    ChildResult child = RunInChild([] {
        gGameStateCurr = -1;
        GameStateMgrUpdate();
    });
    EXPECT_EQ(child.exitCode, 1);
    EXPECT_EQ(child.out, "KR_FATAL_ERROR: invalid state!!");
}

TEST(StateNumbers, AreTheFrozenValues)
{
    EXPECT_EQ(GS_EDITOR, 0);
    EXPECT_EQ(GS_LEVEL_0, 1);
    EXPECT_EQ(GS_LEVEL_5, 6);
    EXPECT_EQ(GS_LEVEL_USER, 7);
    EXPECT_EQ(GS_MENU, 8);
    EXPECT_EQ(GS_LS, 9);
    EXPECT_EQ(GS_SPLASH, 10);
    EXPECT_EQ(GS_CREDITS, 11);
    EXPECT_EQ(GS_RESTART, 12);
    EXPECT_EQ(GS_QUIT, 13);
}
