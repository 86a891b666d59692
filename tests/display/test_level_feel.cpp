// How a level feels: standing, walking off a ledge, jumping a gap, the flip, walls, riding, the drop wall.
#include "LevelRun.h"

#include "gameobjkinds.h"
#include "gamestatelist.h"
#include "playcommon.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

// A floor of five platforms from x = -200 to 200, top at y = -30, and the character above its middle.
std::string FeelFloor(std::initializer_list<LevelObject> more = {})
{
    std::string text = LevelText({{3, -200, -40}, {3, -100, -40}, {3, 0, -40}, {3, 100, -40}, {3, 200, -40},
                                  {8, 0, 0}});
    for (const LevelObject& o : more)
        text += LevelText({o});
    return text;
}

} // namespace

TEST(LevelFeel, StandingStillOnAPlatformIsStableForSixHundredFrames)
{
    LevelRun run(GS_LEVEL_1, FeelFloor());
    run.Steps(30);
    ASSERT_NE(run.Level(), nullptr);
    const float restY = run.Player()->posCurr.y;
    const float restX = run.Player()->posCurr.x;
    EXPECT_NEAR(restY, -5.0f, 0.5f) << "the character's feet rest on the platform's top";
    float lowest = restY, highest = restY;
    for (int i = 0; i < 600; i++)
    {
        run.Step();
        lowest = std::min(lowest, run.Player()->posCurr.y);
        highest = std::max(highest, run.Player()->posCurr.y);
        ASSERT_TRUE(gPlay.sOnGround) << "frame " << i;
    }
    EXPECT_LT(highest - lowest, 0.01f) << "no jitter in y";
    EXPECT_FLOAT_EQ(run.Player()->posCurr.x, restX) << "no drift";
}

TEST(LevelFeel, WalkingOffALedgeFallsWithTheGroundSpeed)
{
    // Nothing in the collision clears the ground flag when the floor ends under the character: it falls with the
    // ground rule's gravity and keeps the assigned walking speed while D is held.
    LevelRun run(GS_LEVEL_1, FeelFloor());
    run.Steps(20);
    run.Hold('D', 200);
    float edgeY = 0.0f;
    int frames = 0;
    while (run.Player()->boundingBox.minX < 250.0f && frames < 200)
    {
        run.Step();
        frames++;
        edgeY = run.Player()->posCurr.y;
    }
    EXPECT_NEAR(edgeY, -5.0f, 0.5f) << "walked to the end of the floor";
    run.Steps(30);
    EXPECT_LT(run.Player()->posCurr.y, edgeY - 25.0f) << "falling";
    EXPECT_FLOAT_EQ(run.Player()->velCurr.x, 150.0f);
    EXPECT_LT(run.Player()->velCurr.y, -100.0f);
}

TEST(LevelFeel, AJumpFromAPlatformClearsAGapOfAPlatformsWidth)
{
    // Two floors with a gap of 100 between -50 and 50.
    std::vector<LevelObject> objects = PlatformRow(-300, 3, -40);
    for (const LevelObject& o : PlatformRow(100, 3, -40))
        objects.push_back(o);
    objects.push_back({8, -150, 0});
    LevelRun run(GS_LEVEL_1, LevelText(objects));
    run.Steps(20);
    run.Hold('D', 300);
    bool jumped = false;
    for (int i = 0; i < 200; i++)
    {
        run.Step();
        if (!jumped && run.Player()->posCurr.x > -52.0f)
        {
            run.Hold(' ');
            jumped = true;
        }
    }
    ASSERT_TRUE(jumped);
    EXPECT_GT(run.Player()->posCurr.x, 100.0f);
    EXPECT_NEAR(run.Player()->posCurr.y, -5.0f, 0.5f) << "landed on the far floor";
    EXPECT_TRUE(gPlay.sOnGround);
}

TEST(LevelFeel, AWallStopsTheCharacterWhoCanJumpAlongIt)
{
    // A wall standing on the floor at x = 100, from -30 to 70. Walking into it, the character is pushed one unit
    // clear every other frame: blocked, the walk key is ignored for a frame and the block clears again.
    LevelRun run(GS_LEVEL_1, FeelFloor({{2, 100, 20}}));
    run.Steps(20);
    run.Hold('D', 200);
    int blocked = 0;
    for (int i = 0; i < 90; i++)
    {
        run.Step();
        ASSERT_LE(run.Player()->boundingBox.maxX, 90.0f) << "frame " << i;
        blocked += gPlay.sWallBlocked ? 1 : 0;
    }
    EXPECT_NEAR(run.Player()->boundingBox.maxX, 89.0f, 2.6f);
    EXPECT_GT(blocked, 20);
    // Space from the ground next to the wall.
    if (gPlay.sWallBlocked)
        run.Step();
    const float y = run.Player()->posCurr.y;
    run.Hold(' ');
    run.Step();
    EXPECT_FLOAT_EQ(run.Player()->velCurr.y, 200.0f);
    float top = y;
    for (int i = 0; i < 40; i++)
    {
        run.Step();
        top = std::max(top, run.Player()->posCurr.y);
        ASSERT_LE(run.Player()->boundingBox.maxX, 90.0f);
    }
    EXPECT_GT(top, y + 30.0f);
}

TEST(LevelFeel, RidingAMovingPlatformCarriesTheCharacter)
{
    // The third level's first platform starts at (-350, -400) going right at 100.
    LevelRun run(GS_LEVEL_3, LevelText({{8, -350, -360}}));
    run.Steps(20);
    ASSERT_NE(run.Level(), nullptr);
    GameObjInst* pP = run.Vars().sMovingPlatforms[0];
    ASSERT_TRUE(gPlay.sOnGround);
    const float startX = run.Player()->posCurr.x;
    const float platformStart = pP->posCurr.x;
    run.Steps(90);
    EXPECT_GT(pP->posCurr.x - platformStart, 140.0f);
    EXPECT_GT(run.Player()->posCurr.x - startX, 140.0f) << "carried along";
    EXPECT_NEAR(run.Player()->boundingBox.minY, pP->boundingBox.maxY, 1.0f) << "still on it";
}
