// The HUD: hearts, battery bar, strips, ornament and compass, fixed to the view in both gravities; the first heart
// goes on a hit; the compass swings with gravity. Pictures of the HUD in both gravities are saved for looking.
#include "KRGraphics.h"
#include "LevelScenes.h"
#include "TestEnv.h"

#include "gameobjkinds.h"
#include "gamestatelist.h"
#include "playcommon.h"
#include "playkeys.h"
#include "progress.h"

#include <gtest/gtest.h>

namespace {

struct Offset
{
    float x, y;
};

// An instance's place relative to the engine's camera, the turned one with gravity inverted.
Offset FromCamera(const GameObjInst* pInst)
{
    f32 camX, camY;
    KRGfxGetCamPosition(&camX, &camY);
    return {pInst->posCurr.x - camX, pInst->posCurr.y - camY};
}

// Every HUD piece stands where it should about the camera, and its transform draws it there unturned.
void ExpectHudInPlace(LevelRun& run, const char* when)
{
    std::vector<GameObjInst*> hearts = run.OfKind(TYPE_HEART);
    for (size_t i = 0; i < hearts.size(); i++)
    {
        EXPECT_NEAR(FromCamera(hearts[i]).x, -380.0f + 40.0f * i, 0.01f) << when << " heart " << i;
        EXPECT_NEAR(FromCamera(hearts[i]).y, 230.0f, 0.01f) << when << " heart " << i;
    }
    for (unsigned kind : {TYPE_SIDEBAR, TYPE_SIDEBAR_BG})
    {
        EXPECT_NEAR(FromCamera(run.OfKind(kind)[0]).x, 0.0f, 0.01f) << when;
        EXPECT_NEAR(FromCamera(run.OfKind(kind)[0]).y, 230.0f, 0.01f) << when;
    }
    EXPECT_NEAR(FromCamera(run.OfKind(TYPE_HUD_DESIGN)[0]).y, 280.0f, 0.01f) << when;
    EXPECT_NEAR(FromCamera(run.OfKind(TYPE_BATTERY_BAR)[0]).x, -400.0f + run.Vars().sBarOffset, 0.7f) << when;
    EXPECT_NEAR(FromCamera(run.Vars().sCompass).x, 190.0f, 0.01f) << when;
    EXPECT_NEAR(FromCamera(run.Vars().sCompass).y, 230.0f, 0.01f) << when;
    for (unsigned kind : {TYPE_HEART, TYPE_SIDEBAR, TYPE_SIDEBAR_BG, TYPE_BATTERY_BAR, TYPE_HUD_DESIGN})
    {
        const GameObjInst* pInst = run.OfKind(kind)[0];
        EXPECT_FLOAT_EQ(pInst->transform.m[0][2], pInst->posCurr.x) << when << " kind " << kind;
        EXPECT_FLOAT_EQ(pInst->transform.m[1][2], pInst->posCurr.y) << when << " kind " << kind;
        EXPECT_NEAR(pInst->transform.m[1][0], 0.0f, 1e-6f) << when << " not turned, kind " << kind;
        EXPECT_GT(pInst->transform.m[0][0], 0.0f) << when << " not turned, kind " << kind;
    }
}

} // namespace

TEST(LevelHud, HeartsStandInARowAndTheFirstInSlotOrderGoesOnAHit)
{
    LevelRun run(GS_LEVEL_1, FloorLevel({{6, 300, -18}}), "frametime 0.0333333\n");
    run.Steps(3);
    ASSERT_NE(run.Level(), nullptr);
    std::vector<GameObjInst*> hearts = run.OfKind(TYPE_HEART);
    ASSERT_EQ(hearts.size(), 3u);
    EXPECT_EQ(run.Vars().sHeartsShown, 3);
    ExpectHudInPlace(run, "at the start");
    // The spike slides under the character.
    run.OfKind(TYPE_SPIKE_UP)[0]->posCurr = run.Player()->posCurr;
    run.Step();
    ASSERT_EQ(run.Vars().sHitPoints, 2);
    EXPECT_EQ(run.Vars().sHeartsShown, 2);
    std::vector<GameObjInst*> left = run.OfKind(TYPE_HEART);
    ASSERT_EQ(left.size(), 2u);
    EXPECT_EQ(left[0], hearts[1]) << "the first heart went";
    EXPECT_EQ(left[1], hearts[2]);
    EXPECT_NEAR(FromCamera(left[0]).x, -340.0f, 0.5f) << "the others stand still for the frame of the hit";
    run.Step();
    EXPECT_NEAR(FromCamera(left[0]).x, -380.0f, 0.5f) << "and the row closes up from the left the next frame";
    EXPECT_NEAR(FromCamera(left[1]).x, -340.0f, 0.5f);
}

TEST(LevelHud, EachHealthPointBoughtAddsAHeartAndAHitPoint)
{
    gAttrHealth = 2;
    LevelRun run(GS_LEVEL_1, FloorLevel());
    run.Steps(2);
    gAttrHealth = 0;
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_EQ(run.Vars().sHitPoints, 5);
    EXPECT_EQ(run.OfKind(TYPE_HEART).size(), 5u);
    ExpectHudInPlace(run, "five hearts");
}

TEST(LevelHud, HudStaysInPlaceOnScreenInBothGravitiesAndIsSavedForLooking)
{
    // A ceiling for the character to stand on once gravity turns.
    LevelRun run(GS_LEVEL_1, FloorLevel({{3, -100, 60}, {3, 0, 60}, {3, 100, 60}}),
                 "screen 800 600\ncursor 600 150 0\nkey LButton 8\nframetime 0.0333333\n");
    ShootAtSteps({{6, "hud-normal.png"}, {56, "hud-inverted.png"}});
    run.Steps(7);
    ASSERT_NE(run.Level(), nullptr);
    ExpectHudInPlace(run, "normal gravity");
    run.Steps(50);
    StopShooting();
    ASSERT_TRUE(gPlay.sGravityInverted);
    f32 camX, camY;
    KRGfxGetCamPosition(&camX, &camY);
    EXPECT_NEAR(camY, -run.Player()->posCurr.y, 0.5f) << "the engine's camera is turned over";
    ExpectHudInPlace(run, "inverted gravity");
    for (const char* name : {"hud-normal.png", "hud-inverted.png"})
        EXPECT_FALSE(ReadFileText(ShotPath(name)).empty()) << name;
}

TEST(LevelHud, CompassSwingsFiveDegreesAFrameToMinus180AfterAFlipAndBackAfterTheNext)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(), "frametime 0.05\nkey LButton 5\nkey LButton 60\n");
    run.Steps(5);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_EQ(run.Vars().sCompassAngle, 0.0f) << "clamped at 0 with normal gravity";
    for (int i = 1; i <= 40; i++)
    {
        run.Step();
        const float expected = std::max(-5.0f * i, -180.0f);
        EXPECT_FLOAT_EQ(run.Vars().sCompassAngle, expected) << "frame " << i << " after the flip";
        EXPECT_FLOAT_EQ(run.Vars().sCompass->dirCurr, expected / 180.0f * PLAY_PI);
    }
    run.Steps(60 - run.Frame());
    for (int i = 1; i <= 40; i++)
    {
        run.Step();
        EXPECT_FLOAT_EQ(run.Vars().sCompassAngle, std::min(-180.0f + 5.0f * i, 0.0f)) << "frame " << i;
    }
    EXPECT_FALSE(gPlay.sGravityInverted);
}
