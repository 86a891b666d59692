// Which driver runs: a flip's freeze takes the inverted one whichever way gravity points. A travelling wall
// that the character touches shows it: the normal driver lifts the character by one unit each frame it touches
// the wall, the inverted driver does not.
#include "LevelRun.h"

#include "gamestatelist.h"
#include "playcommon.h"

#include <gtest/gtest.h>

TEST(CollisionDrivers, DuringTheFreezeOfAFlipBackToNormalGravityTheInvertedRoutinesApply)
{
    // A floor (top -30) and a ceiling (underside 30) at x 20, a still travelling wall from -30 to -10 that the
    // character touches from the right.
    LevelRun run(GS_LEVEL_USER,
                 LevelText({{3, 20, -40}, {3, 20, 40}, {34, -20, 0}, {8, -2, -5}}));
    run.Steps(20);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_NEAR(run.Player()->boundingBox.minX, -10.0f, 1e-3f) << "pushed against the wall's side";
    run.Hold(1);
    run.Steps(130);
    ASSERT_TRUE(gPlay.sGravityInverted);
    ASSERT_FALSE(run.Vars().sFlipCooldown);
    // Back to normal gravity: frozen, with gravity pointing down.
    run.Hold(1);
    run.Step();
    ASSERT_FALSE(gPlay.sGravityInverted);
    ASSERT_TRUE(run.Vars().sFlipFrozen);
    const float y = run.Player()->posCurr.y;
    float lowest = y, highest = y;
    for (int i = 0; i < 50; i++)
    {
        run.Step();
        ASSERT_TRUE(run.Vars().sFlipFrozen);
        lowest = std::min(lowest, run.Player()->posCurr.y);
        highest = std::max(highest, run.Player()->posCurr.y);
    }
    EXPECT_LT(highest - lowest, 0.5f) << "not lifted: the normal driver would add 1 each frame";
    EXPECT_NEAR(run.Player()->boundingBox.minX, -10.0f, 1e-3f) << "still touching the wall";
}

TEST(CollisionDrivers, InNormalGravityATouchedTravellingWallLiftsTheCharacterByOne)
{
    // The same room without a ceiling: the lift shows against the floor as a hop of one unit each frame.
    LevelRun run(GS_LEVEL_USER, LevelText({{3, 20, -40}, {34, -20, 0}, {8, -2, -5}}));
    run.Steps(3);
    ASSERT_NE(run.Level(), nullptr);
    const float before = run.Player()->posCurr.y;
    run.Step();
    const float after = run.Player()->posCurr.y;
    EXPECT_GT(after - before, 0.5f) << "the lift of the normal driver";
    EXPECT_FALSE(gPlay.sHitByMovingWall) << "a still wall does not catch";
}
