// Pictures of a running level, saved for a person to look at: the start, a flip in progress, the turned-over
// world, and the pause menu.
#include "DrawKit.h"
#include "GameRun.h"
#include "LevelScenes.h"
#include "TestEnv.h"

#include "gameobjkinds.h"
#include "gamestatelist.h"
#include "playcommon.h"

#include <GL/glew.h>
#include <algorithm>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <map>

namespace {

std::string Room()
{
    return LevelText({{3, -300, -140}, {3, -200, -140}, {3, -100, -140}, {4, 25, -140}, {3, 150, -140},
                      {3, 250, -140}, {2, -360, -80}, {2, 320, -80}, {3, -100, 120}, {3, 0, 120}, {3, 100, 120},
                      {6, 150, -118}, {27, 200, 108}, {10, 250, -100}, {32, -250, -100}, {8, -150, -100}});
}

} // namespace

TEST(LevelScreens, StartFlipAndTurnedWorldAreSavedForLooking)
{
    const std::map<int, std::string> shots = {
        {20, "level-start.png"}, {75, "level-flip-in-progress.png"}, {160, "level-turned-over.png"}};
    LevelRun run(GS_LEVEL_2, Room(), "screen 800 600\ncursor 600 200 0\nkey LButton 70\n");
    ShootAtSteps(shots);
    run.Steps(90);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_TRUE(gPlay.sGravityInverted);
    run.Steps(80);
    StopShooting();
    for (auto& shot : shots)
        EXPECT_FALSE(ReadFileText(ShotPath(shot.second)).empty()) << shot.second;
}

TEST(LevelScreens, PauseMenuIsSavedForLooking)
{
    LevelRun run(GS_LEVEL_2, Room(), "screen 800 600\ncursor 500 150 0\nkey Escape 30\n");
    ShootAtSteps({{40, "level-pause-menu.png"}});
    run.Steps(45);
    StopShooting();
    EXPECT_FALSE(ReadFileText(ShotPath("level-pause-menu.png")).empty());
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_TRUE(run.Vars().sPaused);
}

TEST(LevelScreens, AFrameNobodyAskedForIsNotDrawnAndReadingItFailsTheTest)
{
    LevelRun run(GS_LEVEL_2, Room(), "screen 800 600\ncursor 600 200 0\n");
    run.Steps(20);
    EXPECT_TRUE(glIsEnabled(GL_RASTERIZER_DISCARD)) << "a test's game run starts with the rasterizer off";
    EXPECT_NONFATAL_FAILURE(ReadPixel(400, 300), "reads a frame that was not drawn");

    DrawEveryFrame();
    EXPECT_FALSE(glIsEnabled(GL_RASTERIZER_DISCARD));
    run.Steps(1);
    int brightest = 0;
    for (u32 pixel : ReadRegion(0, 0, 800, 600))
        brightest = std::max({brightest, Red(pixel), Green(pixel), Blue(pixel)});
    EXPECT_GT(brightest, 100) << "the drawn frame shows the lit room";
}
