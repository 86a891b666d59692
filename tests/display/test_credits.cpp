// The credits: a level that walks itself to the exit or the closing fade, with a pause menu and hearts that cost
// nothing.
#include "LevelScenes.h"
#include "TestEnv.h"

#include "credits_internal.h"
#include "gamestatelist.h"
#include "gamestatemgr.h"
#include "progress.h"

#include <gtest/gtest.h>
#include <map>

namespace {

// A floor from x = -1200 to 1700 at top -270 and the character 2500 units before x = 1490.
std::string Walk(std::initializer_list<LevelObject> more = {})
{
    std::string text = LevelText({{8, -1010, -245}});
    for (int x = -1125; x < 1700; x += 150)
        text += LevelText({{4, x, -280}});
    for (const LevelObject& o : more)
        text += LevelText({o});
    return text;
}

LevelVars& Vars()
{
    return gCredits.level.vars;
}

int Hearts()
{
    int n = 0;
    for (const GameObjInst& inst : gCredits.level.pool.sGameObjInstList)
        if ((inst.flag & 1) && inst.pObject->type == TYPE_HEART)
            ++n;
    return n;
}

class Credits : public ::testing::Test
{
protected:
    void SetUp() override { gAttrHealth = 0; }
    void TearDown() override { gAttrHealth = 0; }
};

} // namespace

TEST_F(Credits, TheWalkNeedsNoInputAndCrossesTwentyFiveHundredUnitsInTwentyFiveSeconds)
{
    LevelRun run(GS_CREDITS, Walk());
    run.Steps(60);
    ASSERT_EQ(gGameStateCurr, GS_CREDITS);
    const float x0 = Vars().sPlayer->posCurr.x;
    EXPECT_FLOAT_EQ(Vars().sPlayer->velCurr.x, 100.0f);
    run.Steps(600);
    EXPECT_NEAR(Vars().sPlayer->posCurr.x - x0, 1000.0f, 2.0f) << "100 units a second, ten seconds";
    EXPECT_NEAR(Vars().sPlayer->posCurr.y, -245.0f, 0.5f) << "it walks on the floor";
}

TEST_F(Credits, WithoutAnExitTheFadeEndsTheWalkAHundredFramesPastTheLine)
{
    LevelRun run(GS_CREDITS, LevelText({{8, 1480, -245}, {4, 1450, -280}, {4, 1600, -280}}));
    int past = -1;
    for (int frame = 0; frame < 200 && gGameStateCurr == GS_CREDITS; frame++)
    {
        run.Step();
        if (past < 0 && gGameStateCurr == GS_CREDITS && Vars().sPlayer->posCurr.x > 1490.0f)
            past = frame;
        if (gGameStateNext == GS_LS)
        {
            EXPECT_NEAR(frame - past, 100, 2) << "the fade rises by 0.01 a frame";
            EXPECT_GE(gCredits.sFadeAlpha, 1.0f);
            return;
        }
    }
    FAIL() << "the fade never ended the credits";
}

TEST_F(Credits, AnExitAheadOfTheLineEndsTheWalkAtOnceWithoutTheFade)
{
    LevelRun run(GS_CREDITS, Walk({{10, -900, -242}}));
    for (int frame = 0; frame < 200 && gGameStateNext == GS_CREDITS; frame++)
        run.Step();
    EXPECT_EQ(gGameStateNext, GS_LS);
    EXPECT_EQ(gCredits.sFadeAlpha, 0.0f);
}

TEST_F(Credits, PausingStopsTheWalkAndEscapeDuringHelpDoesNothing)
{
    // Pause at 20; Return on the help button (selection 3 by three D presses); Escape at 40 is refused.
    LevelRun run(GS_CREDITS, Walk(), "key Escape 20\nkey D 24\nkey D 26\nkey D 28\nkey Return 30\nkey Escape 40\n");
    run.Steps(22);
    ASSERT_TRUE(Vars().sPaused);
    const float x = Vars().sPlayer->posCurr.x;
    run.Steps(25);
    EXPECT_TRUE(Vars().sPaused) << "Escape during the help page is refused";
    EXPECT_TRUE(Vars().sPauseHelp);
    EXPECT_EQ(Vars().sPauseSelected, 3);
    EXPECT_FLOAT_EQ(Vars().sPlayer->posCurr.x, x) << "the world stands still";
}

TEST_F(Credits, SpikesCostHeartsAndZeroHitPointsChangesNothingVisible)
{
    LevelRun run(GS_CREDITS, Walk({{27, -800, -258}, {27, -560, -258}, {27, -320, -258}, {27, -80, -258}}));
    run.Steps(700);
    ASSERT_EQ(gGameStateCurr, GS_CREDITS);
    EXPECT_LE(Vars().sHitPoints, 0);
    EXPECT_TRUE(Vars().sLost);
    EXPECT_EQ(gCredits.level.vars.sLoseAlpha, 0.0f) << "the lose screen never shows";
    EXPECT_FLOAT_EQ(Vars().sPlayer->velCurr.x, 100.0f) << "the walk goes on";
    EXPECT_EQ(gGameStateNext, GS_CREDITS);
}

// Three hearts, and with health points bought one more than the points: a heart more than the hit points.
void ExpectHearts(int health, int hearts)
{
    gAttrHealth = health;
    LevelRun run(GS_CREDITS, Walk());
    run.Steps(2);
    EXPECT_EQ(Hearts(), hearts) << "health " << health;
    EXPECT_EQ(Vars().sHitPoints, 3 + health);
}

TEST_F(Credits, NoHealthPointsGiveThreeHearts)
{
    ExpectHearts(0, 3);
}

TEST_F(Credits, OneHealthPointGivesFiveHearts)
{
    ExpectHearts(1, 5);
}

TEST_F(Credits, ThreeHealthPointsGiveSevenHearts)
{
    ExpectHearts(3, 7);
}

TEST_F(Credits, KeyZeroRestartsTheWalk)
{
    LevelRun run(GS_CREDITS, Walk(), "key 0 100\n");
    run.Steps(99);
    const float before = Vars().sPlayer->posCurr.x;
    run.Steps(3);
    EXPECT_LT(Vars().sPlayer->posCurr.x, before - 100.0f) << "the character is back at its start";
}


TEST_F(Credits, TheWalkIsSavedForLooking)
{
    LevelRun run(GS_CREDITS, ReadFileText(std::string(getenv("QUILLON_SOURCE_DIR")) + "/assets/Credits.txt"),
                 "screen 800 600\n");
    ShootAtSteps({{150, "credits-walk.png"}});
    run.Steps(155);
    StopShooting();
    EXPECT_FALSE(ReadFileText(ShotPath("credits-walk.png")).empty());
}

TEST_F(Credits, WinningTheLastLevelLeadsToTheCreditsAndTheCreditsToTheLevelSelection)
{
    // The last level's character stands on the exit; the credits then walk the shipped Credits.txt to the fade.
    LevelRun run(GS_LEVEL_5, LevelText({{4, -1400, -400}, {8, -1400, -365}, {10, -1390, -362}, {3, -1469, -218}}));
    for (int frame = 0; frame < 400 && gGameStateCurr != GS_CREDITS; frame++)
        run.Step();
    ASSERT_EQ(gGameStateCurr, GS_CREDITS) << "three seconds after the touch";
    // The shipped walk: about 29 seconds to the line, then the fade.
    for (int frame = 0; frame < 2400 && gGameStateCurr == GS_CREDITS; frame++)
        run.Step();
    EXPECT_EQ(gGameStateCurr, GS_LS);
}
