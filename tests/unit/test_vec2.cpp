// test_vec2.cpp -- behaviour of the KRVec2 family: arithmetic, projection, lengths and aliasing.
#include "KRVec2.h"

#include "float_bits.h"

#include <cmath>
#include <gtest/gtest.h>

static KRVec2 V(float x, float y)
{
    KRVec2 v;
    KRVec2Set(&v, x, y);
    return v;
}

TEST(Vec2, ZeroSetsBothComponentsToZero)
{
    KRVec2 v = V(3.0f, -4.0f);
    KRVec2Zero(&v);
    EXPECT_EQ(v.x, 0.0f);
    EXPECT_EQ(v.y, 0.0f);
}

TEST(Vec2, SetStoresXThenY)
{
    KRVec2 v;
    KRVec2Set(&v, 1.5f, -2.5f);
    EXPECT_EQ(v.x, 1.5f);
    EXPECT_EQ(v.y, -2.5f);
}

TEST(Vec2, NegFlipsTheSignOfBothComponents)
{
    KRVec2 a = V(1.0f, -2.0f);
    KRVec2 r;
    KRVec2Neg(&r, &a);
    EXPECT_EQ(r.x, -1.0f);
    EXPECT_EQ(r.y, 2.0f);
}

TEST(Vec2, AddAndSubWorkPerComponent)
{
    KRVec2 a = V(1.0f, 2.0f);
    KRVec2 b = V(10.0f, 20.0f);
    KRVec2 r;
    KRVec2Add(&r, &a, &b);
    EXPECT_EQ(r.x, 11.0f);
    EXPECT_EQ(r.y, 22.0f);
    KRVec2Sub(&r, &a, &b);
    EXPECT_EQ(r.x, -9.0f);
    EXPECT_EQ(r.y, -18.0f);
}

TEST(Vec2, ResultMayBeTheSameAsAnArgument)
{
    KRVec2 a = V(1.0f, 2.0f);
    KRVec2 b = V(10.0f, 20.0f);
    KRVec2Add(&a, &a, &b);
    EXPECT_EQ(a.x, 11.0f);
    EXPECT_EQ(a.y, 22.0f);
    KRVec2Sub(&b, &a, &b);
    EXPECT_EQ(b.x, 1.0f);
    EXPECT_EQ(b.y, 2.0f);
    KRVec2Lerp(&a, &a, &b, 0.5f);
    EXPECT_EQ(a.x, 6.0f);
    EXPECT_EQ(a.y, 12.0f);
}

TEST(Vec2, NormalizeGivesUnitLengthInTheSameDirection)
{
    KRVec2 a = V(3.0f, 4.0f);
    KRVec2 r;
    KRVec2Normalize(&r, &a);
    EXPECT_FLOAT_EQ(r.x, 0.6f);
    EXPECT_FLOAT_EQ(r.y, 0.8f);
    EXPECT_FLOAT_EQ(KRVec2Length(&r), 1.0f);
}

TEST(Vec2, NormalizeMultipliesByTheReciprocalOfTheLength)
{
    KRVec2 a = V(1.0f, 2.0f);
    KRVec2 r;
    KRVec2Normalize(&r, &a);
    float inv = 1.0f / sqrtf(5.0f);
    EXPECT_EQ(FloatBits(r.x), FloatBits(1.0f * inv));
    EXPECT_EQ(FloatBits(r.y), FloatBits(2.0f * inv));
}

TEST(Vec2, NormalizeOfZeroVectorIsNotGuardedAndGivesNaN)
{
    KRVec2 a = V(0.0f, 0.0f);
    KRVec2 r;
    KRVec2Normalize(&r, &a);
    EXPECT_TRUE(std::isnan(r.x));
    EXPECT_TRUE(std::isnan(r.y));
}

TEST(Vec2, ScaleMultipliesBothComponents)
{
    KRVec2 a = V(1.5f, -2.0f);
    KRVec2 r;
    KRVec2Scale(&r, &a, 4.0f);
    EXPECT_EQ(r.x, 6.0f);
    EXPECT_EQ(r.y, -8.0f);
}

TEST(Vec2, ScaleAddScalesTheFirstVectorAndAddsTheSecond)
{
    KRVec2 a = V(1.0f, 2.0f);
    KRVec2 b = V(10.0f, 20.0f);
    KRVec2 r;
    KRVec2ScaleAdd(&r, &a, &b, 3.0f);
    EXPECT_EQ(r.x, 13.0f);
    EXPECT_EQ(r.y, 26.0f);
}

TEST(Vec2, ScaleSubScalesTheFirstVectorAndSubtractsTheSecond)
{
    KRVec2 a = V(1.0f, 2.0f);
    KRVec2 b = V(10.0f, 20.0f);
    KRVec2 r;
    KRVec2ScaleSub(&r, &a, &b, 3.0f);
    EXPECT_EQ(r.x, -7.0f);
    EXPECT_EQ(r.y, -14.0f);
}

TEST(Vec2, ProjectGivesThePartOfTheFirstVectorAlongTheSecond)
{
    KRVec2 a = V(3.0f, 4.0f);
    KRVec2 b = V(10.0f, 0.0f);
    KRVec2 r;
    KRVec2Project(&r, &a, &b);
    EXPECT_EQ(r.x, 3.0f);
    EXPECT_EQ(r.y, 0.0f);

    KRVec2 diag = V(1.0f, 1.0f);
    KRVec2 c = V(2.0f, 0.0f);
    KRVec2Project(&r, &c, &diag);
    EXPECT_FLOAT_EQ(r.x, 1.0f);
    EXPECT_FLOAT_EQ(r.y, 1.0f);
}

TEST(Vec2, ProjectOntoZeroLengthVectorGivesNaN)
{
    KRVec2 a = V(3.0f, 4.0f);
    KRVec2 b = V(0.0f, 0.0f);
    KRVec2 r;
    KRVec2Project(&r, &a, &b);
    EXPECT_TRUE(std::isnan(r.x));
    EXPECT_TRUE(std::isnan(r.y));
}

TEST(Vec2, ProjectPerpGivesThePartOfTheFirstVectorAcrossTheSecond)
{
    KRVec2 a = V(3.0f, 4.0f);
    KRVec2 b = V(10.0f, 0.0f);
    KRVec2 r;
    KRVec2ProjectPerp(&r, &a, &b);
    EXPECT_EQ(r.x, 0.0f);
    EXPECT_EQ(r.y, 4.0f);
}

TEST(Vec2, ProjectPerpIntoItsFirstArgumentGivesZero)
{
    KRVec2 a = V(3.0f, 4.0f);
    KRVec2 b = V(10.0f, 0.0f);
    KRVec2ProjectPerp(&a, &a, &b);
    EXPECT_EQ(a.x, 0.0f) << "the projection overwrites the first argument before the subtraction";
    EXPECT_EQ(a.y, 0.0f);
}

TEST(Vec2, ProjectPerpIntoItsSecondArgumentStillWorks)
{
    KRVec2 a = V(3.0f, 4.0f);
    KRVec2 b = V(10.0f, 0.0f);
    KRVec2ProjectPerp(&b, &a, &b);
    EXPECT_EQ(b.x, 0.0f);
    EXPECT_EQ(b.y, 4.0f);
}

TEST(Vec2, LerpAtHalfGivesTheMidpoint)
{
    KRVec2 a = V(0.0f, 10.0f);
    KRVec2 b = V(10.0f, 30.0f);
    KRVec2 r;
    KRVec2Lerp(&r, &a, &b, 0.5f);
    EXPECT_EQ(r.x, 5.0f);
    EXPECT_EQ(r.y, 20.0f);
}

TEST(Vec2, LerpWithTTwoExtrapolatesPastTheSecondVector)
{
    KRVec2 a = V(0.0f, 10.0f);
    KRVec2 b = V(10.0f, 30.0f);
    KRVec2 r;
    KRVec2Lerp(&r, &a, &b, 2.0f);
    EXPECT_EQ(r.x, 20.0f);
    EXPECT_EQ(r.y, 50.0f);
}

TEST(Vec2, LengthsAndDistancesOfAThreeFourFiveTriangleComeOutExact)
{
    KRVec2 a = V(3.0f, 4.0f);
    KRVec2 o = V(0.0f, 0.0f);
    KRVec2 b = V(4.0f, 6.0f);
    EXPECT_EQ(KRVec2Length(&a), 5.0f);
    EXPECT_EQ(KRVec2SquareLength(&a), 25.0f);
    EXPECT_EQ(KRVec2Distance(&a, &o), 5.0f);
    EXPECT_EQ(KRVec2SquareDistance(&o, &a), 25.0f);
    EXPECT_FLOAT_EQ(KRVec2Distance(&a, &b), sqrtf(5.0f));
    EXPECT_EQ(KRVec2SquareDistance(&a, &b), 5.0f);
}

TEST(Vec2, DotProductSumsTheComponentProducts)
{
    KRVec2 a = V(1.0f, 2.0f);
    KRVec2 b = V(3.0f, -4.0f);
    EXPECT_EQ(KRVec2DotProduct(&a, &b), -5.0f);
}

TEST(Vec2, CrossProductMagIsPositiveWhenTheSecondVectorIsCounterClockwise)
{
    KRVec2 x = V(1.0f, 0.0f);
    KRVec2 y = V(0.0f, 1.0f);
    EXPECT_EQ(KRVec2CrossProductMag(&x, &y), 1.0f);
    EXPECT_EQ(KRVec2CrossProductMag(&y, &x), -1.0f);
    KRVec2 a = V(2.0f, 3.0f);
    KRVec2 b = V(5.0f, 7.0f);
    EXPECT_EQ(KRVec2CrossProductMag(&a, &b), 2.0f * 7.0f - 5.0f * 3.0f);
}

TEST(Vec2, FromAngleGivesCosineAndSine)
{
    KRVec2 r;
    KRVec2FromAngle(&r, 0.0f);
    EXPECT_EQ(r.x, 1.0f);
    EXPECT_EQ(r.y, 0.0f);
    KRVec2FromAngle(&r, 1.5707963f);
    EXPECT_NEAR(r.x, 0.0f, 1e-6f);
    EXPECT_EQ(r.y, 1.0f);
    KRVec2FromAngle(&r, 0.7f);
    EXPECT_EQ(FloatBits(r.x), FloatBits(cosf(0.7f)));
    EXPECT_EQ(FloatBits(r.y), FloatBits(sinf(0.7f)));
}

TEST(Vec2, TestAddsTwoIntegers)
{
    EXPECT_EQ(KRVec2Test(2, 3), 5);
    EXPECT_EQ(KRVec2Test(-7, 3), -4);
}
