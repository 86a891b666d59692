// test_util.cpp -- behaviour of the geometry library: distances, overlap tests and swept tests.
#include "KRUtil.h"

#include <cmath>
#include <gtest/gtest.h>

static KRVec2 V(float x, float y)
{
    KRVec2 v;
    KRVec2Set(&v, x, y);
    return v;
}

static KRLineSegment2D Segment(float x0, float y0, float x1, float y1, float nx, float ny)
{
    KRLineSegment2D seg;
    seg.p0 = V(x0, y0);
    seg.p1 = V(x1, y1);
    seg.normal = V(nx, ny);
    seg.normalDotP0 = nx * x0 + ny * y0;
    return seg;
}

// The floor from (0, 0) to (10, 0), facing up.
static const KRLineSegment2D sFloor = Segment(0.0f, 0.0f, 10.0f, 0.0f, 0.0f, 1.0f);

// ---- distances ------------------------------------------------------------------------------

TEST(UtilDistance, PointToCircleIsTheDistanceToTheCentreLessTheRadius)
{
    KRVec2 p = V(3.0f, 4.0f);
    KRVec2 c = V(0.0f, 0.0f);
    EXPECT_EQ(KRCalcDistPointToCircle(&p, &c, 2.0f), 3.0f);
    EXPECT_EQ(KRCalcDistPointToCircle(&p, &c, 7.0f), -2.0f) << "negative means inside";
}

TEST(UtilDistance, PointToRectOutsideACornerIsTheDistanceToThatCorner)
{
    KRVec2 c = V(10.0f, 10.0f);
    KRVec2 p = V(10.0f + 5.0f + 3.0f, 10.0f - 2.0f - 4.0f);
    EXPECT_EQ(KRCalcDistPointToRect(&p, &c, 10.0f, 4.0f), 5.0f);
}

TEST(UtilDistance, PointToRectOutsideAnEdgeIsTheDistanceToThatEdge)
{
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 p = V(1.0f, 7.0f);
    EXPECT_EQ(KRCalcDistPointToRect(&p, &c, 10.0f, 4.0f), 5.0f);
}

TEST(UtilDistance, PointToRectInsideIsMinusTheSmallerMargin)
{
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 p = V(-3.0f, 0.5f);
    // Margins: 5 - 3 = 2 horizontally, 2 - 0.5 = 1.5 vertically.
    EXPECT_EQ(KRCalcDistPointToRect(&p, &c, 10.0f, 4.0f), -1.5f);
    KRVec2 q = V(4.5f, -0.5f);
    EXPECT_EQ(KRCalcDistPointToRect(&q, &c, 10.0f, 4.0f), -0.5f);
}

TEST(UtilDistance, PointToRectOnTheEdgeIsZero)
{
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 p = V(5.0f, 1.0f);
    EXPECT_EQ(KRCalcDistPointToRect(&p, &c, 10.0f, 4.0f), -0.0f);
}

TEST(UtilDistance, PointToLineSegWithBothEndsTheSameUsesTheFirstStep)
{
    KRVec2 a = V(1.0f, 1.0f);
    KRVec2 p = V(4.0f, 5.0f);
    EXPECT_EQ(KRCalcDistPointToLineSeg(&p, &a, &a), 5.0f);
    // Ends closer than 1e-5 count as one point, the first: the distance to the second end
    // would be 3.999992.
    KRVec2 b = V(1.0f + 8e-6f, 1.0f);
    KRVec2 q = V(5.0f, 1.0f);
    ASSERT_NE(KRVec2Distance(&q, &b), 4.0f);
    EXPECT_EQ(KRCalcDistPointToLineSeg(&q, &a, &b), 4.0f);
}

TEST(UtilDistance, PointToLineSegBesideTheSegmentIsThePerpendicularDistance)
{
    KRVec2 a = V(0.0f, 0.0f);
    KRVec2 b = V(10.0f, 0.0f);
    KRVec2 p = V(4.0f, -3.0f);
    EXPECT_FLOAT_EQ(KRCalcDistPointToLineSeg(&p, &a, &b), 3.0f);
}

TEST(UtilDistance, PointToLineSegBeforeTheFirstEndIsTheDistanceToIt)
{
    KRVec2 a = V(0.0f, 0.0f);
    KRVec2 b = V(10.0f, 0.0f);
    KRVec2 p = V(-3.0f, 4.0f);
    EXPECT_EQ(KRCalcDistPointToLineSeg(&p, &a, &b), 5.0f);
}

TEST(UtilDistance, PointToLineSegPastTheSecondEndIsTheDistanceToIt)
{
    KRVec2 a = V(0.0f, 0.0f);
    KRVec2 b = V(10.0f, 0.0f);
    KRVec2 p = V(13.0f, -4.0f);
    EXPECT_EQ(KRCalcDistPointToLineSeg(&p, &a, &b), 5.0f);
}

TEST(UtilDistance, PointToLineSegOnTheSegmentIsZero)
{
    KRVec2 a = V(0.0f, 0.0f);
    KRVec2 b = V(10.0f, 0.0f);
    KRVec2 p = V(6.0f, 0.0f);
    EXPECT_EQ(KRCalcDistPointToLineSeg(&p, &a, &b), 0.0f);
}

TEST(UtilDistance, PointToConvexPolyIsAlwaysMinusOne)
{
    KRVec2 p = V(100.0f, 100.0f);
    KRVec2 poly[3] = {V(0, 0), V(1, 0), V(0, 1)};
    EXPECT_EQ(KRCalcDistPointToConvexPoly(&p, poly, 3), -1.0f);
    EXPECT_EQ(KRCalcDistPointToConvexPoly(nullptr, nullptr, 0), -1.0f);
}

TEST(UtilDistance, CircleToCircleSubtractsBothRadii)
{
    KRVec2 c0 = V(0.0f, 0.0f);
    KRVec2 c1 = V(6.0f, 8.0f);
    EXPECT_EQ(KRCalcDistCircleToCircle(&c0, 3.0f, &c1, 2.0f), 5.0f);
    EXPECT_EQ(KRCalcDistCircleToCircle(&c0, 7.0f, &c1, 5.0f), -2.0f);
}

TEST(UtilDistance, CircleToRectSubtractsTheRadiusFromThePointDistance)
{
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 p = V(8.0f, 0.0f);
    EXPECT_EQ(KRCalcDistCircleToRect(&p, 1.0f, &c, 10.0f, 4.0f), 2.0f);
    KRVec2 inside = V(0.0f, 0.0f);
    EXPECT_EQ(KRCalcDistCircleToRect(&inside, 1.0f, &c, 10.0f, 4.0f), -3.0f);
}

TEST(UtilDistance, RectToRectOfSeparateRectanglesIsZeroAndLeavesTheNormal)
{
    KRVec2 c0 = V(0.0f, 0.0f);
    KRVec2 c1 = V(30.0f, 0.0f);
    KRVec2 normal = V(7.0f, 7.0f);
    EXPECT_EQ(KRCalcDistRectToRect(&c0, 10.0f, 10.0f, &c1, 10.0f, 10.0f, &normal), 0.0f);
    EXPECT_EQ(normal.x, 7.0f);
    EXPECT_EQ(normal.y, 7.0f);
}

TEST(UtilDistance, RectToRectOfRectanglesTouchingAtAnEdgeIsZero)
{
    KRVec2 c0 = V(0.0f, 0.0f);
    KRVec2 c1 = V(10.0f, 3.0f);
    KRVec2 normal = V(7.0f, 7.0f);
    EXPECT_EQ(KRCalcDistRectToRect(&c0, 10.0f, 10.0f, &c1, 10.0f, 10.0f, &normal), 0.0f);
    EXPECT_EQ(normal.x, 7.0f);
    KRVec2 above = V(2.0f, 10.0f);
    EXPECT_EQ(KRCalcDistRectToRect(&c0, 10.0f, 10.0f, &above, 10.0f, 10.0f, &normal), 0.0f);
    EXPECT_EQ(normal.y, 7.0f);
}

TEST(UtilDistance, RectToRectGivesThePenetrationOnTheAxisOfLeastOverlap)
{
    KRVec2 c0 = V(0.0f, 0.0f);
    KRVec2 normal;

    KRVec2 right = V(8.0f, 1.0f);
    EXPECT_EQ(KRCalcDistRectToRect(&c0, 10.0f, 10.0f, &right, 10.0f, 10.0f, &normal), -2.0f);
    EXPECT_EQ(normal.x, -1.0f);
    EXPECT_EQ(normal.y, 0.0f);

    KRVec2 left = V(-8.0f, 1.0f);
    EXPECT_EQ(KRCalcDistRectToRect(&c0, 10.0f, 10.0f, &left, 10.0f, 10.0f, &normal), -2.0f);
    EXPECT_EQ(normal.x, 1.0f);
    EXPECT_EQ(normal.y, 0.0f);

    KRVec2 up = V(1.0f, 7.0f);
    EXPECT_EQ(KRCalcDistRectToRect(&c0, 10.0f, 10.0f, &up, 10.0f, 10.0f, &normal), -3.0f);
    EXPECT_EQ(normal.x, 0.0f);
    EXPECT_EQ(normal.y, -1.0f);

    KRVec2 down = V(1.0f, -7.0f);
    EXPECT_EQ(KRCalcDistRectToRect(&c0, 10.0f, 10.0f, &down, 10.0f, 10.0f, &normal), -3.0f);
    EXPECT_EQ(normal.x, 0.0f);
    EXPECT_EQ(normal.y, 1.0f);
}

TEST(UtilDistance, RectToRectAcceptsANullNormal)
{
    KRVec2 c0 = V(0.0f, 0.0f);
    KRVec2 c1 = V(8.0f, 1.0f);
    EXPECT_EQ(KRCalcDistRectToRect(&c0, 10.0f, 10.0f, &c1, 10.0f, 10.0f, nullptr), -2.0f);
}

// ---- overlap tests -------------------------------------------------------------------------

TEST(UtilOverlap, PointExactlyOnACirclesEdgePassesThePointTest)
{
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 p = V(3.0f, 4.0f);
    EXPECT_EQ(KRTestPointToCircle(&p, &c, 5.0f), 1u);
    EXPECT_EQ(KRTestPointToCircle(&p, &c, 4.99f), 0u);
}

TEST(UtilOverlap, CircleJustTouchingARectangleFailsTheCircleTest)
{
    KRVec2 r = V(0.0f, 0.0f);
    KRVec2 c = V(15.0f, 0.0f);
    EXPECT_EQ(KRTestCircleToRect(&c, 5.0f, &r, 20.0f, 20.0f), 0u) << "the test is strict";
    EXPECT_EQ(KRTestCircleToRect(&c, 5.01f, &r, 20.0f, 20.0f), 1u);
}

TEST(UtilOverlap, CircleInsideARectanglePassesTheCircleTest)
{
    KRVec2 r = V(0.0f, 0.0f);
    KRVec2 c = V(1.0f, 1.0f);
    EXPECT_EQ(KRTestCircleToRect(&c, 0.5f, &r, 20.0f, 20.0f), 1u);
}

TEST(UtilOverlap, PointToRectIncludesTheEdgesAndExcludesOutside)
{
    KRVec2 r = V(10.0f, 10.0f);
    KRVec2 edge = V(15.0f, 8.0f);
    KRVec2 corner = V(5.0f, 12.0f);
    KRVec2 outRight = V(15.001f, 10.0f);
    KRVec2 outBelow = V(10.0f, 7.99f);
    EXPECT_EQ(KRTestPointToRect(&edge, &r, 10.0f, 4.0f), 1u);
    EXPECT_EQ(KRTestPointToRect(&corner, &r, 10.0f, 4.0f), 1u);
    EXPECT_EQ(KRTestPointToRect(&outRight, &r, 10.0f, 4.0f), 0u);
    EXPECT_EQ(KRTestPointToRect(&outBelow, &r, 10.0f, 4.0f), 0u);
}

TEST(UtilOverlap, CirclesTouchingOverlapAndCirclesApartDoNot)
{
    KRVec2 c0 = V(0.0f, 0.0f);
    KRVec2 c1 = V(6.0f, 8.0f);
    EXPECT_EQ(KRTestCircleToCircle(&c0, 4.0f, &c1, 6.0f), 1u);
    EXPECT_EQ(KRTestCircleToCircle(&c0, 4.0f, &c1, 5.9f), 0u);
}

TEST(UtilOverlap, RectToRectOfTallRectanglesHundredApartVerticallyIsFalse)
{
    KRVec2 c0 = V(0.0f, 0.0f);
    KRVec2 c1 = V(0.0f, 100.0f);
    EXPECT_EQ(KRTestRectToRect(&c0, 10.0f, 1000.0f, &c1, 10.0f, 1000.0f), 0u)
        << "the vertical test uses the half widths";
}

TEST(UtilOverlap, RectToRectOfFlatRectanglesOverlapsVerticallyWithinTheHalfWidths)
{
    KRVec2 c0 = V(0.0f, 0.0f);
    KRVec2 c1 = V(0.0f, 8.0f);
    EXPECT_EQ(KRTestRectToRect(&c0, 10.0f, 1.0f, &c1, 10.0f, 1.0f), 1u);
}

TEST(UtilOverlap, RectToRectHorizontallyIncludesTouchingAndExcludesApart)
{
    KRVec2 c0 = V(0.0f, 0.0f);
    KRVec2 touching = V(-10.0f, 0.0f);
    KRVec2 apart = V(10.5f, 0.0f);
    EXPECT_EQ(KRTestRectToRect(&c0, 10.0f, 10.0f, &touching, 10.0f, 10.0f), 1u);
    EXPECT_EQ(KRTestRectToRect(&c0, 10.0f, 10.0f, &apart, 10.0f, 10.0f), 0u);
}

// ---- swept tests against a segment ----------------------------------------------------------

TEST(UtilSwept, StaticPointToSegmentIsTheSignedDistanceFromItsLine)
{
    KRVec2 above = V(3.0f, 2.5f);
    KRVec2 below = V(30.0f, -4.0f);
    EXPECT_EQ(KRStaticPointToStaticLineSegment(&above, &sFloor), 2.5f);
    EXPECT_EQ(KRStaticPointToStaticLineSegment(&below, &sFloor), -4.0f);
    KRLineSegment2D raised = Segment(0.0f, 2.0f, 10.0f, 2.0f, 0.0f, 1.0f);
    EXPECT_EQ(KRStaticPointToStaticLineSegment(&above, &raised), 0.5f);
}

TEST(UtilSwept, PointCrossingASegmentHitsWhereItCrosses)
{
    KRVec2 ps = V(5.0f, 5.0f);
    KRVec2 pe = V(7.0f, -5.0f);
    KRVec2 pi = V(99.0f, 99.0f);
    EXPECT_EQ(KRAnimatedPointToStaticLineSegment(&ps, &pe, &sFloor, &pi), 0.5f);
    EXPECT_EQ(pi.x, 6.0f);
    EXPECT_EQ(pi.y, 0.0f);
}

TEST(UtilSwept, PointStayingOnOneSideOfASegmentMisses)
{
    KRVec2 ps = V(5.0f, 5.0f);
    KRVec2 pe = V(7.0f, 1.0f);
    KRVec2 pi = V(99.0f, 99.0f);
    EXPECT_EQ(KRAnimatedPointToStaticLineSegment(&ps, &pe, &sFloor, &pi), -1.0f);
    EXPECT_EQ(pi.x, 99.0f) << "no contact point is written";
}

TEST(UtilSwept, PointCrossingTheLineBeyondAnEndMisses)
{
    KRVec2 pi = V(99.0f, 99.0f);
    KRVec2 ps = V(12.0f, 5.0f);
    KRVec2 pe = V(12.0f, -5.0f);
    EXPECT_EQ(KRAnimatedPointToStaticLineSegment(&ps, &pe, &sFloor, &pi), -1.0f);
    KRVec2 qs = V(-1.0f, 5.0f);
    KRVec2 qe = V(-1.0f, -5.0f);
    EXPECT_EQ(KRAnimatedPointToStaticLineSegment(&qs, &qe, &sFloor, &pi), -1.0f);
    EXPECT_EQ(pi.x, 99.0f);
}

TEST(UtilSwept, PointMovingExactlyAlongASegmentGivesMinusOne)
{
    KRVec2 ps = V(-5.0f, 0.0f);
    KRVec2 pe = V(15.0f, 0.0f);
    KRVec2 pi = V(99.0f, 99.0f);
    EXPECT_EQ(KRAnimatedPointToStaticLineSegment(&ps, &pe, &sFloor, &pi), -1.0f);
    EXPECT_EQ(pi.x, 99.0f);
}

TEST(UtilSwept, PointStartingOnTheSegmentHitsAtZero)
{
    KRVec2 ps = V(4.0f, 0.0f);
    KRVec2 pe = V(4.0f, -3.0f);
    KRVec2 pi;
    EXPECT_EQ(KRAnimatedPointToStaticLineSegment(&ps, &pe, &sFloor, &pi), 0.0f);
    EXPECT_EQ(pi.x, 4.0f);
    EXPECT_EQ(pi.y, 0.0f);
}

TEST(UtilSwept, CircleFromTheNormalSideHitsOneRadiusAboveTheSegment)
{
    KRVec2 ps = V(5.0f, 5.0f);
    KRVec2 pe = V(5.0f, -5.0f);
    KRVec2 pi;
    EXPECT_FLOAT_EQ(KRAnimatedCircleToStaticLineSegment(&ps, &pe, 1.0f, &sFloor, &pi), 0.4f);
    EXPECT_FLOAT_EQ(pi.x, 5.0f);
    EXPECT_FLOAT_EQ(pi.y, 1.0f);
}

TEST(UtilSwept, CircleFromBehindHitsOneRadiusBelowTheSegment)
{
    KRVec2 ps = V(5.0f, -5.0f);
    KRVec2 pe = V(5.0f, 5.0f);
    KRVec2 pi;
    EXPECT_FLOAT_EQ(KRAnimatedCircleToStaticLineSegment(&ps, &pe, 1.0f, &sFloor, &pi), 0.4f);
    EXPECT_FLOAT_EQ(pi.y, -1.0f);
}

TEST(UtilSwept, CircleEndingWithinOneRadiusOfTheLineHits)
{
    KRVec2 ps = V(5.0f, 5.0f);
    KRVec2 pe = V(5.0f, 0.5f);
    KRVec2 pi;
    float t = KRAnimatedCircleToStaticLineSegment(&ps, &pe, 1.0f, &sFloor, &pi);
    EXPECT_FLOAT_EQ(t, 4.0f / 4.5f);
    EXPECT_FLOAT_EQ(pi.y, 1.0f);
}

TEST(UtilSwept, CircleStayingMoreThanOneRadiusAwayMisses)
{
    KRVec2 pi = V(99.0f, 99.0f);
    KRVec2 ps = V(5.0f, 5.0f);
    KRVec2 pe = V(6.0f, 1.5f);
    EXPECT_EQ(KRAnimatedCircleToStaticLineSegment(&ps, &pe, 1.0f, &sFloor, &pi), -1.0f);
    KRVec2 qs = V(5.0f, -5.0f);
    KRVec2 qe = V(6.0f, -1.5f);
    EXPECT_EQ(KRAnimatedCircleToStaticLineSegment(&qs, &qe, 1.0f, &sFloor, &pi), -1.0f);
    EXPECT_EQ(pi.x, 99.0f);
}

TEST(UtilSwept, CircleMovingParallelWithinReachOfTheSegmentMisses)
{
    KRVec2 ps = V(-5.0f, 0.5f);
    KRVec2 pe = V(15.0f, 0.5f);
    KRVec2 pi;
    EXPECT_EQ(KRAnimatedCircleToStaticLineSegment(&ps, &pe, 1.0f, &sFloor, &pi), -1.0f);
}

TEST(UtilSwept, CirclePassingJustPastAnEndDoesNotHit)
{
    // The circle's edge would graze the end point, but its centre passes beyond it.
    KRVec2 ps = V(10.5f, 5.0f);
    KRVec2 pe = V(10.5f, -5.0f);
    KRVec2 pi = V(99.0f, 99.0f);
    EXPECT_EQ(KRAnimatedCircleToStaticLineSegment(&ps, &pe, 1.0f, &sFloor, &pi), -1.0f);
    EXPECT_EQ(pi.x, 99.0f);
}

TEST(UtilSwept, PointReflectsOffASegmentLikeLightOffAMirror)
{
    KRVec2 ps = V(0.0f, 5.0f);
    KRVec2 pe = V(10.0f, -5.0f);
    KRVec2 pi;
    KRVec2 r;
    EXPECT_EQ(KRReflectAnimatedPointOnStaticLineSegment(&ps, &pe, &sFloor, &pi, &r), 0.5f);
    EXPECT_EQ(pi.x, 5.0f);
    EXPECT_EQ(pi.y, 0.0f);
    EXPECT_EQ(r.x, 5.0f) << "the rest of the move, turned over the line";
    EXPECT_EQ(r.y, 5.0f);
}

TEST(UtilSwept, PointMissingASegmentLeavesTheReflectionUnwritten)
{
    KRVec2 ps = V(20.0f, 5.0f);
    KRVec2 pe = V(30.0f, -5.0f);
    KRVec2 pi;
    KRVec2 r = V(99.0f, 99.0f);
    EXPECT_EQ(KRReflectAnimatedPointOnStaticLineSegment(&ps, &pe, &sFloor, &pi, &r), -1.0f);
    EXPECT_EQ(r.x, 99.0f);
    EXPECT_EQ(r.y, 99.0f);
}

TEST(UtilSwept, PointStartingOnTheSegmentIsNotReflected)
{
    KRVec2 ps = V(4.0f, 0.0f);
    KRVec2 pe = V(4.0f, -3.0f);
    KRVec2 pi;
    KRVec2 r = V(99.0f, 99.0f);
    EXPECT_EQ(KRReflectAnimatedPointOnStaticLineSegment(&ps, &pe, &sFloor, &pi, &r), 0.0f);
    EXPECT_EQ(r.x, 99.0f) << "only t above zero reflects";
}

TEST(UtilSwept, CircleReflectsOffASegmentFromItsPointOfContact)
{
    KRVec2 ps = V(0.0f, 5.0f);
    KRVec2 pe = V(10.0f, -5.0f);
    KRVec2 pi;
    KRVec2 r;
    EXPECT_FLOAT_EQ(KRReflectAnimatedCircleOnStaticLineSegment(&ps, &pe, 1.0f, &sFloor, &pi, &r),
                    0.4f);
    EXPECT_FLOAT_EQ(pi.x, 4.0f);
    EXPECT_FLOAT_EQ(pi.y, 1.0f);
    // w = pe - pi = (6, -6), turned over: (6, 6).
    EXPECT_FLOAT_EQ(r.x, 6.0f);
    EXPECT_FLOAT_EQ(r.y, 6.0f);
}

TEST(UtilSwept, CircleMissingASegmentLeavesTheReflectionUnwritten)
{
    KRVec2 ps = V(0.0f, 5.0f);
    KRVec2 pe = V(10.0f, 3.0f);
    KRVec2 pi;
    KRVec2 r = V(99.0f, 99.0f);
    EXPECT_EQ(KRReflectAnimatedCircleOnStaticLineSegment(&ps, &pe, 1.0f, &sFloor, &pi, &r), -1.0f);
    EXPECT_EQ(r.x, 99.0f);
}

// ---- swept tests against a circle -----------------------------------------------------------

TEST(UtilSwept, PointMovingIntoACircleHitsItsNearSide)
{
    KRVec2 ps = V(-10.0f, 0.0f);
    KRVec2 pe = V(10.0f, 0.0f);
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 pi;
    EXPECT_EQ(KRAnimatedPointToStaticCircle(&ps, &pe, &c, 2.0f, &pi), 0.4f);
    EXPECT_EQ(pi.x, -2.0f);
    EXPECT_EQ(pi.y, 0.0f);
}

TEST(UtilSwept, PointWhoseLineMissesTheCircleGivesMinusOne)
{
    KRVec2 ps = V(-10.0f, 5.0f);
    KRVec2 pe = V(10.0f, 5.0f);
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 pi = V(99.0f, 99.0f);
    EXPECT_EQ(KRAnimatedPointToStaticCircle(&ps, &pe, &c, 2.0f, &pi), -1.0f);
    EXPECT_EQ(pi.x, 99.0f);
}

TEST(UtilSwept, PointStoppingShortOfTheCircleMissesButTheContactIsWritten)
{
    KRVec2 ps = V(-10.0f, 0.0f);
    KRVec2 pe = V(-5.0f, 0.0f);
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 pi = V(99.0f, 99.0f);
    EXPECT_EQ(KRAnimatedPointToStaticCircle(&ps, &pe, &c, 2.0f, &pi), -1.0f);
    EXPECT_EQ(pi.x, -2.0f) << "the contact is written before the end of the move is tested";
    EXPECT_EQ(pi.y, 0.0f);
}

TEST(UtilSwept, PointStartingInsideTheCircleMovingAwayGivesMinusOne)
{
    KRVec2 ps = V(0.5f, 0.0f);
    KRVec2 pe = V(5.0f, 0.0f);
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 pi = V(99.0f, 99.0f);
    EXPECT_EQ(KRAnimatedPointToStaticCircle(&ps, &pe, &c, 2.0f, &pi), -1.0f);
    EXPECT_EQ(pi.x, 99.0f);
}

TEST(UtilSwept, PointStartingOutsideMovingAwayGivesANegativeTime)
{
    KRVec2 ps = V(5.0f, 0.0f);
    KRVec2 pe = V(10.0f, 0.0f);
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 pi;
    EXPECT_EQ(KRAnimatedPointToStaticCircle(&ps, &pe, &c, 2.0f, &pi), -1.4f);
    EXPECT_EQ(pi.x, -2.0f);
}

TEST(UtilSwept, ZeroLengthMoveTowardsACircleIsNotGuarded)
{
    KRVec2 ps = V(5.0f, 0.0f);
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 pi;
    EXPECT_TRUE(std::isnan(KRAnimatedPointToStaticCircle(&ps, &ps, &c, 2.0f, &pi)));
}

TEST(UtilSwept, PointReflectsOffACircleAboutTheNormalAtTheContact)
{
    KRVec2 ps = V(-10.0f, 1.0f);
    KRVec2 pe = V(10.0f, 1.0f);
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 pi;
    KRVec2 r;
    float t = KRReflectAnimatedPointOnStaticCircle(&ps, &pe, &c, 2.0f, &pi, &r);
    EXPECT_NEAR(t, (10.0f - sqrtf(3.0f)) / 20.0f, 1e-6f);
    EXPECT_NEAR(pi.x, -sqrtf(3.0f), 1e-5f);
    EXPECT_NEAR(pi.y, 1.0f, 1e-6f);

    // n = (pi - c) / 2 and m = ps - pi; r = 2 (m . n) n - m mirrors m about n.
    KRVec2 n = V(pi.x * 0.5f, pi.y * 0.5f);
    KRVec2 m = V(ps.x - pi.x, ps.y - pi.y);
    EXPECT_NEAR(KRVec2DotProduct(&r, &n), KRVec2DotProduct(&m, &n), 1e-4f);
    EXPECT_NEAR(KRVec2CrossProductMag(&n, &r), -KRVec2CrossProductMag(&n, &m), 1e-4f);
    EXPECT_NEAR(KRVec2Length(&r), KRVec2Length(&m), 1e-4f);
    EXPECT_NEAR(r.x, -4.1339746f, 1e-4f);
    EXPECT_NEAR(r.y, 7.1602540f, 1e-4f);
}

TEST(UtilSwept, PointHittingACircleHeadOnIsSentStraightBack)
{
    KRVec2 ps = V(-10.0f, 0.0f);
    KRVec2 pe = V(10.0f, 0.0f);
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 pi;
    KRVec2 r;
    EXPECT_EQ(KRReflectAnimatedPointOnStaticCircle(&ps, &pe, &c, 2.0f, &pi, &r), 0.4f);
    EXPECT_EQ(r.x, -8.0f);
    EXPECT_EQ(r.y, 0.0f);
}

TEST(UtilSwept, NegativeTimeOnACircleLeavesTheReflectionUnwritten)
{
    KRVec2 ps = V(5.0f, 0.0f);
    KRVec2 pe = V(10.0f, 0.0f);
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 pi;
    KRVec2 r = V(99.0f, 99.0f);
    EXPECT_EQ(KRReflectAnimatedPointOnStaticCircle(&ps, &pe, &c, 2.0f, &pi, &r), -1.4f);
    EXPECT_EQ(r.x, 99.0f);
    EXPECT_EQ(r.y, 99.0f);
}

TEST(UtilSwept, CircleAgainstCircleUsesTheSumOfTheRadii)
{
    KRVec2 ps = V(-10.0f, 0.0f);
    KRVec2 pe = V(10.0f, 0.0f);
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 pi;
    EXPECT_FLOAT_EQ(KRAnimatedCircleToStaticCircle(&ps, &pe, 1.0f, &c, 2.0f, &pi), 0.35f);
    EXPECT_EQ(pi.x, -3.0f);
    KRVec2 qs = V(-10.0f, 3.5f);
    KRVec2 qe = V(10.0f, 3.5f);
    EXPECT_EQ(KRAnimatedCircleToStaticCircle(&qs, &qe, 1.0f, &c, 2.0f, &pi), -1.0f);
}

TEST(UtilSwept, CircleReflectsOffACircleAtTheSumOfTheRadii)
{
    KRVec2 ps = V(-10.0f, 0.0f);
    KRVec2 pe = V(10.0f, 0.0f);
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 pi;
    KRVec2 r;
    EXPECT_FLOAT_EQ(KRReflectAnimatedCircleOnStaticCircle(&ps, &pe, 1.0f, &c, 2.0f, &pi, &r),
                    0.35f);
    EXPECT_EQ(pi.x, -3.0f);
    EXPECT_EQ(r.x, -7.0f);
    EXPECT_EQ(r.y, 0.0f);
}

TEST(UtilSwept, ReflectingTestsOnCirclesLeaveTheReflectionUnwrittenOnAMiss)
{
    KRVec2 ps = V(-10.0f, 5.0f);
    KRVec2 pe = V(10.0f, 5.0f);
    KRVec2 c = V(0.0f, 0.0f);
    KRVec2 pi;
    KRVec2 r = V(99.0f, 99.0f);
    EXPECT_EQ(KRReflectAnimatedPointOnStaticCircle(&ps, &pe, &c, 2.0f, &pi, &r), -1.0f);
    EXPECT_EQ(KRReflectAnimatedCircleOnStaticCircle(&ps, &pe, 1.0f, &c, 2.0f, &pi, &r), -1.0f);
    EXPECT_EQ(r.x, 99.0f);
    EXPECT_EQ(r.y, 99.0f);
    // Within reach of both radii together, the circle test hits where the point test misses.
    KRVec2 qs = V(-10.0f, 2.5f);
    KRVec2 qe = V(10.0f, 2.5f);
    EXPECT_EQ(KRReflectAnimatedPointOnStaticCircle(&qs, &qe, &c, 2.0f, &pi, &r), -1.0f);
    EXPECT_GT(KRReflectAnimatedCircleOnStaticCircle(&qs, &qe, 1.0f, &c, 2.0f, &pi, &r), 0.0f);
    EXPECT_NE(r.x, 99.0f);
}
