// The things that move, in running levels: the moving platforms held and released by a flip's freeze, the
// platforms of the fourth level, the first level's drop wall and its trigger, the impact sound of a drop wall, and
// the drop wall's gravity during the freeze.
#include "LevelRun.h"

#include "fmodsound.h"
#include "gameobjkinds.h"
#include "gamestatelist.h"
#include "playcommon.h"

#include <gtest/gtest.h>

namespace {

// The character on a floor far from the level's own objects.
std::string FarFloor()
{
    std::vector<LevelObject> objects = PlatformRow(2800, 5, -40);
    objects.push_back({8, 3000, 0});
    return LevelText(objects);
}

// Runs frames until the flip's freeze is over; returns how many.
int UntilThawed(LevelRun& run)
{
    int frames = 0;
    while (run.Vars().sFlipFrozen && frames < 120)
    {
        run.Step();
        frames++;
    }
    return frames;
}

// A room with a floor (top -30) and a ceiling (underside 130) from 2750 to 3250 and a drop wall resting on the
// floor at 3100; the character stands at x, in the room or in a room of its own further left.
std::string DropWallRoom(int characterX)
{
    std::vector<LevelObject> objects = PlatformRow(2800, 5, -40);
    for (const LevelObject& o : PlatformRow(2800, 5, 140))
        objects.push_back(o);
    if (characterX < 2700)
    {
        for (const LevelObject& o : PlatformRow(characterX - 100, 3, -40))
            objects.push_back(o);
        for (const LevelObject& o : PlatformRow(characterX - 100, 3, 140))
            objects.push_back(o);
    }
    objects.push_back({33, 3100, 20});
    objects.push_back({8, characterX, 0});
    return LevelText(objects);
}

} // namespace

TEST(Movers, DuringAFreezeTheHorizontalPlatformsStandStillAndResumeWithTheirStoredSpeeds)
{
    LevelRun run(GS_LEVEL_3, FarFloor());
    run.Steps(30);
    ASSERT_NE(run.Level(), nullptr);
    ASSERT_EQ(run.Vars().sMovingPlatformNum, 4u);
    GameObjInst* const* platforms = run.Vars().sMovingPlatforms;
    ASSERT_FLOAT_EQ(platforms[0]->velCurr.x, 100.0f);
    run.Hold(1);
    run.Step();
    ASSERT_TRUE(run.Vars().sFlipFrozen);
    const float heldX = platforms[0]->posCurr.x;
    const float verticalY = platforms[3]->posCurr.y;
    run.Steps(30);
    EXPECT_FLOAT_EQ(platforms[0]->posCurr.x, heldX) << "held";
    EXPECT_FLOAT_EQ(platforms[0]->velCurr.x, 0.0f);
    EXPECT_NE(platforms[3]->posCurr.y, verticalY) << "the fourth, vertical one is not held";
    UntilThawed(run);
    run.Step();
    EXPECT_FLOAT_EQ(platforms[0]->velCurr.x, 100.0f) << "restored";
    EXPECT_FLOAT_EQ(platforms[1]->velCurr.x, run.Vars().sPlatformVelocity[2]);
    EXPECT_FLOAT_EQ(platforms[3]->velCurr.x, 0.0f) << "the fourth's x speed was only stopped";

    // The second flip while the first platform goes left: it resumes leftward.
    run.Steps(70);
    platforms[0]->velCurr.x = -100.0f;
    platforms[0]->posCurr.x = 0.0f;
    run.Hold(1);
    run.Step();
    ASSERT_TRUE(run.Vars().sFlipFrozen);
    UntilThawed(run);
    run.Step();
    EXPECT_FLOAT_EQ(platforms[0]->velCurr.x, -100.0f);
}

TEST(Movers, APlatformHeldBeyondItsLimitReversesRightAfterTheRelease)
{
    LevelRun run(GS_LEVEL_3, FarFloor());
    run.Steps(5);
    ASSERT_NE(run.Level(), nullptr);
    GameObjInst* pP = run.Vars().sMovingPlatforms[0];
    // Moving right 1.5 short of its upper limit of 109: the flip's frame carries it past and holds it there.
    pP->posCurr.x = 107.5f;
    pP->velCurr.x = 100.0f;
    run.Hold(1);
    run.Step();
    ASSERT_TRUE(run.Vars().sFlipFrozen);
    const float held = pP->posCurr.x;
    EXPECT_GT(held, 109.0f);
    run.Steps(20);
    EXPECT_FLOAT_EQ(pP->posCurr.x, held) << "held beyond the limit";
    UntilThawed(run);
    run.Steps(2);
    EXPECT_FLOAT_EQ(pP->velCurr.x, -100.0f);
    const float turned = pP->posCurr.x;
    run.Steps(10);
    EXPECT_LT(pP->posCurr.x, turned);
}

TEST(Movers, TheFourthLevelsPlatformWalksItsRectangleWithoutHolding)
{
    LevelRun run(GS_LEVEL_4, FarFloor());
    run.Step();
    ASSERT_NE(run.Level(), nullptr);
    GameObjInst* pP = run.Vars().sMovingPlatforms[0];
    EXPECT_FLOAT_EQ(pP->velCurr.y, -100.0f) << "leg 0: down";
    run.Hold(1);
    run.Steps(60);
    EXPECT_FLOAT_EQ(pP->velCurr.y, -100.0f) << "no holding in this level";
    EXPECT_LT(pP->posCurr.y, -290.0f);
    run.Steps(20);
    EXPECT_EQ(run.Vars().sPlatformLeg, 1);
    EXPECT_FLOAT_EQ(pP->velCurr.y, 0.0f);
    EXPECT_FLOAT_EQ(pP->velCurr.x, 100.0f) << "leg 1: right";
}

TEST(Movers, TheFirstLevelsDropWallStartsAtRestAndSinksWithoutAPlatform)
{
    // The program's first frame has a time step of 0; the second is the first that moves anything.
    LevelRun run(GS_LEVEL_0, FarFloor());
    run.Steps(2);
    ASSERT_NE(run.Level(), nullptr);
    GameObjInst* pD = run.Vars().sDropWall;
    ASSERT_NE(pD, nullptr);
    EXPECT_FLOAT_EQ(pD->posCurr.y, -495.0f) << "at rest when the first real frame integrates";
    EXPECT_FLOAT_EQ(pD->velCurr.y, -250.1f / 60.0f);
    run.Steps(30);
    EXPECT_LT(pD->posCurr.y, -520.0f);
}

TEST(Movers, TheFirstLevelsDropWallIsHeldByAPlatformUnderIt)
{
    std::vector<LevelObject> objects = PlatformRow(2800, 5, -40);
    objects.push_back({3, -1014, -555});
    objects.push_back({8, 3000, 0});
    LevelRun run(GS_LEVEL_0, LevelText(objects));
    run.Steps(60);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_NEAR(run.Vars().sDropWall->posCurr.y, -495.0f, 0.2f);
}

TEST(Movers, TheFirstLevelsTriggerLiftsTheDropWall)
{
    // The character inside the trigger's corner, on a platform of its own beside the drop wall's.
    std::vector<LevelObject> objects = PlatformRow(-940, 1, -525);
    objects.push_back({3, -1014, -555});
    objects.push_back({8, -950, -490});
    LevelRun run(GS_LEVEL_0, LevelText(objects));
    run.Steps(60);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_GT(run.Vars().sDropWall->posCurr.y, -470.0f) << "50 upward each frame, less the frame's gravity";
}

TEST(Movers, ADropWallLandingPlaysTheImpactOncePerFlip)
{
    LevelRun run(GS_LEVEL_3, DropWallRoom(2900));
    run.Steps(20);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_FALSE(gPlay.sRockImpactArmed);
    GameObjInst* pD = run.OfKind(TYPE_DROP_WALL).back();
    ASSERT_FLOAT_EQ(pD->posCurr.x, 3100.0f);
    const float restY = pD->posCurr.y;

    int plays[2] = {0, 0};
    for (int flip = 0; flip < 2; flip++)
    {
        run.Hold(1);
        run.Step();
        ASSERT_TRUE(gPlay.sRockImpactArmed) << "every flip arms the sound";
        if (flip == 0)
        {
            run.Steps(20);
            EXPECT_GT(pD->posCurr.y, restY + 5.0f) << "falling up during the freeze, in the new gravity";
        }
        for (int i = 0; i < 130; i++)
        {
            const bool armed = gPlay.sRockImpactArmed;
            run.Step();
            if (armed && !gPlay.sRockImpactArmed)
                plays[flip]++;
        }
    }
    EXPECT_EQ(plays[0], 1) << "landing on the ceiling";
    EXPECT_EQ(plays[1], 1) << "back on the floor";
    EXPECT_NEAR(pD->posCurr.y, restY, 0.5f);
    EXPECT_NE(gEffectRock.fileName, nullptr);
}

TEST(Movers, ADropWallLandingFarFromTheCharacterUsesUpNothing)
{
    LevelRun run(GS_LEVEL_3, DropWallRoom(2300));
    run.Steps(20);
    ASSERT_NE(run.Level(), nullptr);
    GameObjInst* pD = run.OfKind(TYPE_DROP_WALL).back();
    run.Hold(1);
    run.Steps(100);
    EXPECT_NEAR(pD->posCurr.y, 80.0f, 0.5f) << "landed under the ceiling";
    EXPECT_TRUE(gPlay.sRockImpactArmed) << "still armed";
}

TEST(Movers, TheLastLevelsBoulderArmsCatchesFadesAndReturns)
{
    // The character stands in the arming corner (x below -1114, y below -390); the boulder waits at -1750.
    std::vector<LevelObject> objects = PlatformRow(-1300, 3, -475);
    objects.push_back({8, -1200, -440});
    LevelRun run(GS_LEVEL_5, LevelText(objects));
    run.Steps(2);
    ASSERT_NE(run.Level(), nullptr);
    LevelVars& v = run.Vars();
    GameObjInst* pWall = v.sMovingWall;
    ASSERT_NE(pWall, nullptr);
    EXPECT_TRUE(v.sBoulderArmed);
    EXPECT_FLOAT_EQ(pWall->velCurr.x, 95.0f);
    EXPECT_EQ(gPlay.sLevelMusicCount, 2u);
    EXPECT_STREQ(MusicGetTrack(), kMusicChallengeTrack) << "the chase music from the first frame of travel";

    // Travelling until it meets the character and pushes it.
    int frames = 0;
    while (!v.sCrushed && frames < 400)
    {
        run.Step();
        frames++;
    }
    ASSERT_TRUE(v.sCrushed) << "caught";
    EXPECT_GT(pWall->posCurr.x, -1750.0f + 200.0f);
    const int hitPoints = v.sHitPoints;
    v.sInvincible = 1; // the catch pays no regard to it
    // The fade to black, 0.1 a frame up to 2, then the return.
    while (!v.sCrushReturning && frames < 500)
    {
        run.Step();
        frames++;
        if (!v.sCrushReturning)
        {
            ASSERT_LE(v.sCrushAlpha, 2.05f);
        }
    }
    ASSERT_TRUE(v.sCrushReturning);
    EXPECT_EQ(v.sHitPoints, hitPoints - 1);
    EXPECT_NEAR(run.Player()->posCurr.x, -1469.0f, 5.0f);
    EXPECT_NEAR(pWall->posCurr.x, -1750.0f, 5.0f) << "the boulder back at its start";
    while (v.sCrushReturning && frames < 600)
    {
        run.Step();
        frames++;
    }
    EXPECT_FALSE(v.sCrushReturning);
    EXPECT_FALSE(v.sCrushed);
    EXPECT_FALSE(v.sBoulderArmed);
    EXPECT_LE(v.sCrushAlpha, 0.0f);
    EXPECT_STREQ(MusicGetTrack(), kMusicChallengeTrack) << "the track is not set again";
}
