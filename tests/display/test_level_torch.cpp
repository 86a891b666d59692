// The torch: aimed from the character at the pointer, in both gravities and with the camera at its limits; the
// hand and the darkness turn with it. Pictures of the cone following the pointer are saved for looking.
#include "KRGraphics.h"
#include "LevelScenes.h"
#include "TestEnv.h"

#include "gameobjkinds.h"
#include "gamestatelist.h"
#include "playcommon.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace {

// The pointer at a place of the view, held from a step on: the view is drawn 1:1 on an 800 by 600 screen.
std::string Pointer(int x, int y, int step)
{
    return "cursor " + std::to_string(x) + " " + std::to_string(y) + " " + std::to_string(step) + "\n";
}

// The turn a transform draws with, in degrees from 0 to 360, whatever its scale.
float DrawnTurnDeg(const GameObjInst* pInst)
{
    float deg = std::atan2(pInst->transform.m[1][0], pInst->transform.m[0][0]) * 180.0f / 3.1415926f;
    return deg < 0.0f ? deg + 360.0f : deg;
}

// A floor at y = -40 around x, and the character standing on its middle.
std::string FloorAround(int x, int y)
{
    return LevelText({{3, x - 100, y - 40}, {3, x, y - 40}, {3, x + 100, y - 40}, {8, x, y}});
}

} // namespace

TEST(LevelTorch, PointerRightUpLeftAndDownOfTheAimPointGiveZeroNinetyOneEightyAndTwoSeventyDegrees)
{
    // The aim point is (391, 280) of the view, not its middle.
    LevelRun run(GS_LEVEL_1, FloorLevel(),
                 "screen 800 600\n" + Pointer(591, 280, 0) + Pointer(391, 80, 10) + Pointer(191, 280, 12) +
                     Pointer(391, 480, 14) + Pointer(591, 480, 16));
    run.Steps(10);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_FLOAT_EQ(run.Vars().sTorchAngle, 0.0f) << "pointer right of the aim point";
    run.Steps(2);
    EXPECT_NEAR(run.Vars().sTorchAngle, 90.0f, 0.01f) << "pointer above";
    run.Steps(2);
    EXPECT_NEAR(run.Vars().sTorchAngle, 180.0f, 0.01f) << "pointer left";
    run.Steps(2);
    EXPECT_NEAR(run.Vars().sTorchAngle, 270.0f, 0.01f) << "pointer below: 360 less the arc cosine";
    run.Steps(2);
    EXPECT_NEAR(run.Vars().sTorchAngle, 315.0f, 0.01f) << "pointer below right";
}

TEST(LevelTorch, AngleIsNeitherClampedNorWrappedInEitherGravity)
{
    // Eight pointer places around the aim point, two frames each, then a flip and the same eight again.
    const int places[8][2] = {{591, 280}, {532, 139}, {391, 80}, {250, 139}, {191, 280}, {250, 421}, {391, 480},
                              {532, 421}};
    std::string script = "screen 320 240\n";
    for (int i = 0; i < 8; i++)
    {
        script += CursorLine(places[i][0], places[i][1], 10 + 2 * i);
        script += CursorLine(places[i][0], places[i][1], 40 + 2 * i);
    }
    script += "key LButton 30\n";
    LevelRun run(GS_LEVEL_1, FloorLevel(), script);
    run.Steps(10);
    ASSERT_NE(run.Level(), nullptr);
    std::vector<float> normal, inverted;
    for (int i = 0; i < 8; i++)
    {
        run.Steps(2);
        normal.push_back(run.Vars().sTorchAngle);
    }
    run.Steps(40 - run.Frame());
    ASSERT_TRUE(gPlay.sGravityInverted);
    for (int i = 0; i < 8; i++)
    {
        run.Steps(2);
        inverted.push_back(run.Vars().sTorchAngle);
    }
    for (int i = 0; i < 8; i++)
    {
        EXPECT_GE(normal[i], 0.0f) << i;
        EXPECT_LT(normal[i], 360.0f) << i;
        EXPECT_LE(inverted[i], 0.0f) << i;
        EXPECT_GT(inverted[i], -360.0f) << i;
        EXPECT_NEAR(normal[i], 45.0f * i, 1.0f) << "one turn of the pointer, one turn of the torch: " << i;
    }
    EXPECT_NEAR(inverted[2], -270.0f, 1.0f) << "the pointer above, the world turned over";
    EXPECT_NEAR(inverted[6], -90.0f, 1.0f) << "the pointer below";
}

TEST(LevelTorch, AfterAFlipThePointerInTheSamePlaceGivesTheSameConeOnScreen)
{
    // Pictures: the cone towards the upper right, then the lower left, normal gravity; after the flip at step 20
    // the same two places.
    LevelRun run(GS_LEVEL_1, FloorLevel(),
                 "screen 800 600\n" + Pointer(591, 180, 0) + Pointer(200, 450, 10) + "key LButton 20\n" +
                     Pointer(591, 180, 35));
    ShootAtSteps({{8, "torch-normal-upper-right.png"},
                  {18, "torch-normal-lower-left.png"},
                  {32, "torch-inverted-lower-left.png"},
                  {42, "torch-inverted-upper-right.png"}});
    run.Steps(9);
    ASSERT_NE(run.Level(), nullptr);
    const float normalAngle = run.Vars().sTorchAngle;
    const float normalTurn = DrawnTurnDeg(run.Vars().sTorch);
    const float normalHand = DrawnTurnDeg(run.Vars().sHand);
    EXPECT_NEAR(normalAngle, 26.565f, 0.01f);
    run.Steps(10);
    const float lowerLeftNormal = DrawnTurnDeg(run.Vars().sTorch);
    run.Steps(14);
    ASSERT_TRUE(gPlay.sGravityInverted);
    EXPECT_NEAR(DrawnTurnDeg(run.Vars().sTorch), lowerLeftNormal, 0.05f) << "lower left, turned world";
    run.Steps(10);
    EXPECT_NEAR(run.Vars().sTorchAngle, normalAngle - 360.0f, 0.01f) << "negated, never wrapped";
    EXPECT_NEAR(DrawnTurnDeg(run.Vars().sTorch), normalTurn, 0.05f) << "the darkness turns as before the flip";
    EXPECT_NEAR(DrawnTurnDeg(run.Vars().sHand), normalHand, 0.05f) << "and the hand with it";
    StopShooting();
    for (const char* name : {"torch-normal-upper-right.png", "torch-normal-lower-left.png",
                             "torch-inverted-lower-left.png", "torch-inverted-upper-right.png"})
        EXPECT_FALSE(ReadFileText(ShotPath(name)).empty()) << name;
}

TEST(LevelTorch, WithTheCameraAtItsSideLimitTheConePointsFromWhereTheCharacterIsDrawn)
{
    // The character stands at x = 1300, the camera stops at 1155: the character is drawn 145 right of the middle.
    // A pointer 100 right of that place aims straight right, one 100 above it straight up.
    LevelRun run(GS_LEVEL_1, FloorAround(1300, 0),
                 "screen 800 600\n" + Pointer(391 + 145 + 100, 280, 0) + Pointer(391 + 145, 180, 20));
    run.Steps(19);
    ASSERT_NE(run.Level(), nullptr);
    f32 camX, camY;
    KRGfxGetCamPosition(&camX, &camY);
    EXPECT_FLOAT_EQ(camX, 1155.0f);
    EXPECT_NEAR(camY, run.Player()->posCurr.y, 0.5f) << "y is within its limits";
    EXPECT_NEAR(run.Vars().sTorchAngle, 0.0f, 0.5f);
    run.Steps(2);
    EXPECT_NEAR(run.Vars().sTorchAngle, 90.0f, 0.5f);
}

TEST(LevelTorch, WithTheCameraAtItsUpperLimitTheConePointsFromWhereTheCharacterIsDrawn)
{
    // The character stands at y = 395 (floor top 370), the camera stops at 335: drawn 60 above the middle.
    LevelRun run(GS_LEVEL_1, FloorAround(0, 400), "screen 800 600\n" + Pointer(491, 220, 0) + "key LButton 20\n");
    run.Steps(19);
    ASSERT_NE(run.Level(), nullptr);
    ASSERT_NEAR(run.Player()->posCurr.y, 395.0f, 0.5f);
    f32 camX, camY;
    KRGfxGetCamPosition(&camX, &camY);
    EXPECT_FLOAT_EQ(camY, 335.0f);
    EXPECT_NEAR(run.Vars().sTorchAngle, 0.0f, 0.5f);
    // Flipped and frozen in place: the engine's camera is the turned one, at the same limit.
    run.Steps(10);
    ASSERT_TRUE(gPlay.sGravityInverted);
    KRGfxGetCamPosition(&camX, &camY);
    EXPECT_FLOAT_EQ(camY, -335.0f);
}

TEST(LevelTorch, HandStaysEightBelowTheCharacterAndEightAboveWithGravityInverted)
{
    LevelRun run(GS_LEVEL_1, FloorLevel(), "key LButton 20\n");
    run.Steps(19);
    ASSERT_NE(run.Level(), nullptr);
    EXPECT_FLOAT_EQ(run.Vars().sHand->posCurr.y, run.Player()->posCurr.y - 8.0f);
    EXPECT_FLOAT_EQ(run.Vars().sHand->posCurr.x, run.Player()->posCurr.x);
    EXPECT_FLOAT_EQ(run.Vars().sTorch->posCurr.y, run.Player()->posCurr.y) << "the darkness is on the character";
    run.Steps(5);
    ASSERT_TRUE(gPlay.sGravityInverted);
    EXPECT_FLOAT_EQ(run.Vars().sHand->posCurr.y, run.Player()->posCurr.y + 8.0f);
}
