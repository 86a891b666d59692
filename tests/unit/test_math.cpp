// test_math.cpp -- behaviour of the scalar helpers: constants, powers of two, clamp and wrap.
#include "KRMath.h"

#include "float_bits.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(Math, DegToRadMultipliesByTheConstantWithBits3C8EFA35)
{
    EXPECT_EQ(FloatBits(KRDegToRad(1.0f)), 0x3C8EFA35u);
    EXPECT_EQ(FloatBits(KRDegToRad(180.0f)), FloatBits(180.0f * 0.017453292f));
    EXPECT_EQ(KRDegToRad(0.0f), 0.0f);
}

TEST(Math, RadToDegMultipliesByTheConstantWithBits42652EE2)
{
    EXPECT_EQ(FloatBits(KRRadToDeg(1.0f)), 0x42652EE2u);
    EXPECT_NE(FloatBits(KRRadToDeg(1.0f)), FloatBits((float)(180.0 / 3.14159265358979323846)))
        << "one unit above the nearest float of 180 / pi";
    EXPECT_EQ(FloatBits(KRRadToDeg(2.5f)), FloatBits(2.5f * 57.295784f));
}

TEST(Math, PiConstantsAreThoseTheGameUses)
{
    EXPECT_EQ(FloatBits(KR_PI), FloatBits(3.1415925f));
    EXPECT_EQ(FloatBits(KR_TWO_PI), FloatBits(6.283185f));
    EXPECT_EQ(FloatBits(KR_EPSILON), FloatBits(0.00001f));
}

TEST(Math, TrigonometryForwardsToTheFloatFunctions)
{
    for (float x : {-0.9f, 0.0f, 0.3f, 0.75f})
    {
        EXPECT_EQ(FloatBits(KRSin(x)), FloatBits(sinf(x)));
        EXPECT_EQ(FloatBits(KRCos(x)), FloatBits(cosf(x)));
        EXPECT_EQ(FloatBits(KRTan(x)), FloatBits(tanf(x)));
        EXPECT_EQ(FloatBits(KRASin(x)), FloatBits(asinf(x)));
        EXPECT_EQ(FloatBits(KRACos(x)), FloatBits(acosf(x)));
        EXPECT_EQ(FloatBits(KRATan(x)), FloatBits(atanf(x)));
    }
    EXPECT_NEAR(KRSin(KR_PI / 2.0f), 1.0f, 1e-7f);
}

TEST(Math, IsPowOf2IsOneForPowersOfTwoOnly)
{
    EXPECT_EQ(KRIsPowOf2(0), 0u);
    EXPECT_EQ(KRIsPowOf2(1), 1u);
    EXPECT_EQ(KRIsPowOf2(2), 1u);
    EXPECT_EQ(KRIsPowOf2(3), 0u);
    EXPECT_EQ(KRIsPowOf2(1024), 1u);
    EXPECT_EQ(KRIsPowOf2(1023), 0u);
    EXPECT_EQ(KRIsPowOf2(0x80000000u), 1u);
}

TEST(Math, NextPowOf2OfAPowerOfTwoGivesTheNextOneUp)
{
    EXPECT_EQ(KRNextPowOf2(8), 16u);
    EXPECT_EQ(KRNextPowOf2(1), 2u);
    EXPECT_EQ(KRNextPowOf2(256), 512u);
}

TEST(Math, NextPowOf2OfZeroGivesOne)
{
    EXPECT_EQ(KRNextPowOf2(0), 1u);
}

TEST(Math, NextPowOf2RoundsOtherValuesUp)
{
    EXPECT_EQ(KRNextPowOf2(5), 8u);
    EXPECT_EQ(KRNextPowOf2(7), 8u);
    EXPECT_EQ(KRNextPowOf2(600), 1024u);
}

TEST(Math, LogBase2OfOneIsZero)
{
    EXPECT_EQ(KRLogBase2(1), 0u);
    EXPECT_EQ(KRLogBase2(0), 0u);
}

TEST(Math, LogBase2Of1024IsTen)
{
    EXPECT_EQ(KRLogBase2(1024), 10u);
}

TEST(Math, LogBase2RoundsDown)
{
    EXPECT_EQ(KRLogBase2(2), 1u);
    EXPECT_EQ(KRLogBase2(3), 1u);
    EXPECT_EQ(KRLogBase2(1023), 9u);
    EXPECT_EQ(KRLogBase2(0xFFFFFFFFu), 31u);
}

TEST(Math, ClampTestsTheMinimumFirst)
{
    EXPECT_EQ(KRClamp(5.0f, 10.0f, 0.0f), 10.0f);
}

TEST(Math, ClampLimitsToTheRange)
{
    EXPECT_EQ(KRClamp(-3.0f, 0.0f, 10.0f), 0.0f);
    EXPECT_EQ(KRClamp(13.0f, 0.0f, 10.0f), 10.0f);
    EXPECT_EQ(KRClamp(4.5f, 0.0f, 10.0f), 4.5f);
}

TEST(Math, WrapBringsAValueAboveTheRangeDownByOneWidth)
{
    EXPECT_EQ(KRWrap(25.0f, 0.0f, 10.0f), 15.0f) << "one step only: still out of range";
    EXPECT_EQ(KRWrap(12.0f, 0.0f, 10.0f), 2.0f);
}

TEST(Math, WrapBringsAValueBelowTheRangeUpByOneWidth)
{
    EXPECT_EQ(KRWrap(-3.0f, 0.0f, 10.0f), 7.0f);
    EXPECT_EQ(KRWrap(-25.0f, 0.0f, 10.0f), -15.0f);
}

TEST(Math, WrapLeavesValuesInTheRangeIncludingItsEnds)
{
    EXPECT_EQ(KRWrap(0.0f, 0.0f, 10.0f), 0.0f);
    EXPECT_EQ(KRWrap(10.0f, 0.0f, 10.0f), 10.0f);
    EXPECT_EQ(KRWrap(3.5f, 0.0f, 10.0f), 3.5f);
}

TEST(Math, MinAndMaxPickTheSmallerAndTheLarger)
{
    EXPECT_EQ(KRMin(1.0f, 2.0f), 1.0f);
    EXPECT_EQ(KRMin(2.0f, 1.0f), 1.0f);
    EXPECT_EQ(KRMax(1.0f, 2.0f), 2.0f);
    EXPECT_EQ(KRMax(2.0f, 1.0f), 2.0f);
    EXPECT_EQ(KRMin(-0.0f, -5.0f), -5.0f);
}

TEST(Math, InRangeIncludesBothEnds)
{
    EXPECT_EQ(KRInRange(0.0f, 0.0f, 1.0f), 1u);
    EXPECT_EQ(KRInRange(1.0f, 0.0f, 1.0f), 1u);
    EXPECT_EQ(KRInRange(0.5f, 0.0f, 1.0f), 1u);
    EXPECT_EQ(KRInRange(1.0001f, 0.0f, 1.0f), 0u);
    EXPECT_EQ(KRInRange(-0.0001f, 0.0f, 1.0f), 0u);
}
