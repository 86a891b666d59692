// The overlap test: closed boxes at the present moment, with the one asymmetry its time arithmetic makes.
#include "collision_rect.h"
#include "gameloop.h"

#include <gtest/gtest.h>

namespace {

GameObjBox Box(f32 minX, f32 minY, f32 maxX, f32 maxY)
{
    return GameObjBox{minX, minY, maxX, maxY};
}

class RectRect : public ::testing::Test
{
protected:
    void SetUp() override { gFrameDelta = 1.0f / 60.0f; }
    bool Meet(GameObjBox a, GameObjBox b, KRVec2 vb = {0.0f, 0.0f})
    {
        KRVec2 va = {123.0f, -45.0f};
        return CollisionIntersection_RectRect(&a, &va, &b, &vb);
    }
};

} // namespace

TEST_F(RectRect, OverlappingBoxesMeet)
{
    EXPECT_TRUE(Meet(Box(0, 0, 10, 10), Box(5, 5, 15, 15)));
}

TEST_F(RectRect, SeparatedBoxesDoNotMeetWhateverTheSpeed)
{
    EXPECT_FALSE(Meet(Box(0, 0, 10, 10), Box(11, 0, 20, 10), {-1000.0f, 0.0f})) << "nothing is predicted";
    EXPECT_FALSE(Meet(Box(0, 0, 10, 10), Box(0, 11, 10, 20), {0.0f, -1000.0f}));
}

TEST_F(RectRect, RightEdgeOnLeftEdgeAtRestIsNoContact)
{
    EXPECT_FALSE(Meet(Box(0, 0, 10, 10), Box(10, 0, 20, 10)));
}

TEST_F(RectRect, LeftEdgeOnRightEdgeAtRestIsAContact)
{
    EXPECT_TRUE(Meet(Box(10, 0, 20, 10), Box(0, 0, 10, 10)));
}

TEST_F(RectRect, TouchingTopAndBottomEdgesMeet)
{
    EXPECT_TRUE(Meet(Box(0, 0, 10, 10), Box(0, 10, 10, 20)));
    EXPECT_TRUE(Meet(Box(0, 10, 10, 20), Box(0, 0, 10, 10)));
}

TEST_F(RectRect, MovingBoxOnTheRightEdgeMeets)
{
    EXPECT_TRUE(Meet(Box(0, 0, 10, 10), Box(10, 0, 20, 10), {5.0f, 0.0f}));
    EXPECT_TRUE(Meet(Box(0, 0, 10, 10), Box(10, 0, 20, 10), {-5.0f, 0.0f}));
}

TEST_F(RectRect, OnlyTheSecondBoxSpeedCounts)
{
    GameObjBox a = Box(0, 0, 10, 10), b = Box(10, 0, 20, 10);
    KRVec2 fast = {500.0f, 500.0f}, still = {0.0f, 0.0f};
    EXPECT_FALSE(CollisionIntersection_RectRect(&a, &fast, &b, &still));
}

TEST_F(RectRect, DeepOverlapMeetsAtAnySpeed)
{
    for (f32 vx : {-300.0f, 0.0f, 300.0f})
        for (f32 vy : {-300.0f, 0.0f, 300.0f})
            EXPECT_TRUE(Meet(Box(0, 0, 10, 10), Box(2, 2, 8, 8), {vx, vy})) << vx << "," << vy;
}
