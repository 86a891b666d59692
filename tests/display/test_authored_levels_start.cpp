// The authored levels put their character on something: left alone, it does not fall in its first two seconds.
// Each level's start is also saved as a picture, to be looked at.
#include "LevelRun.h"
#include "LevelScenes.h"
#include "TestEnv.h"

#include "gamestatelist.h"
#include "playcommon.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>

namespace {

class AuthoredLevelStart : public ::testing::TestWithParam<int>
{
protected:
    // The level's file, read in the assets folder where the display tests run.
    void SetUp() override
    {
        const std::string file = "Level" + std::to_string(GetParam() + 1) + ".txt";
        mText = ReadFileText(file);
        if (mText.empty())
            GTEST_SKIP() << file << " is not authored yet";
    }

    std::string mText;
};

} // namespace

TEST_P(AuthoredLevelStart, TheCharacterStandsStillWithoutInputForItsFirst120Frames)
{
    LevelRun run(GS_LEVEL_0 + GetParam(), mText);
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    const float startX = run.Player()->posCurr.x;
    const float startY = run.Player()->posCurr.y;
    for (int frame = 1; frame < 120; frame++)
    {
        ASSERT_TRUE(run.Step());
        ASSERT_NE(run.Level(), nullptr) << "the level ended at frame " << frame;
        ASSERT_NEAR(run.Player()->posCurr.y, startY, 0.5f) << "the character fell at frame " << frame;
    }
    EXPECT_TRUE(gPlay.sOnGround) << "the character stands on something";
    EXPECT_NEAR(run.Player()->posCurr.x, startX, 0.5f);
    EXPECT_EQ(run.Vars().sHitPoints, 3) << "nothing hurts the character where it starts";
}

TEST_P(AuthoredLevelStart, ItsStartIsSavedForLooking)
{
    const int index = GetParam();
    // A third of a second in, when the view has settled on the character, at one pixel per world unit.
    const std::string name = "level" + std::to_string(index + 1) + "-start.png";
    LevelRun run(GS_LEVEL_0 + index, mText, "screen 800 600\n");
    ShootAtSteps({{20, name}});
    run.Steps(21);
    StopShooting();
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_FALSE(ReadFileText(ShotPath(name)).empty());
}

INSTANTIATE_TEST_SUITE_P(Authored, AuthoredLevelStart, ::testing::Values(0, 1, 2, 3, 4, 5),
                         [](const ::testing::TestParamInfo<int>& info) {
                             return "Level" + std::to_string(info.param + 1);
                         });
