// The frame rate controller: frame time from the counter, a minimum frame, no cap on long frames.
#include "KRFrameRateController.h"
#include "KRPlatform.h"

#include <gtest/gtest.h>

namespace {

uint64_t sCounter = 0;
uint64_t sStepPerReading = 0; // the counter moves this much at each reading
int sReadings = 0;
double sWaited = 0.0;

uint64_t FakeCounter()
{
    ++sReadings;
    sCounter += sStepPerReading;
    return sCounter;
}

uint64_t FakeFrequency()
{
    return 1000000; // microseconds
}

void FakeWait(double seconds)
{
    sWaited += seconds;
    sCounter += (uint64_t)(seconds * 1000000.0) + 1;
}

class FrameRateController : public ::testing::Test
{
protected:
    void SetUp() override
    {
        mPlatform = gKRPlatformSDL;
        mPlatform.GetCounter = FakeCounter;
        mPlatform.GetFrequency = FakeFrequency;
        mPlatform.Wait = FakeWait;
        KRPlatformUse(&mPlatform);
        sCounter = 1000;
        sStepPerReading = 0;
        sReadings = 0;
        sWaited = 0.0;
    }
    void TearDown() override
    {
        KRPlatformUse(&gKRPlatformSDL);
    }
    KRPlatform mPlatform;
};

} // namespace

TEST_F(FrameRateController, LimitOfZeroMeansNoWaiting)
{
    KRFrameRateControllerInit(0);
    EXPECT_EQ(gKRFrameTimeMin, 0.0);
    EXPECT_EQ(gKRFrameTime, 0.0);
    KRFrameRateControllerStart();
    sReadings = 0;
    KRFrameRateControllerEnd();
    EXPECT_EQ(sReadings, 1) << "the loop ends after one reading";
    EXPECT_EQ(sWaited, 0.0);
}

TEST_F(FrameRateController, TwoSecondFrameIsReportedUncapped)
{
    KRFrameRateControllerInit(60);
    KRFrameRateControllerStart();
    sCounter += 2000000; // the frame's work took two seconds
    KRFrameRateControllerEnd();
    EXPECT_DOUBLE_EQ(gKRFrameTime, 2.0);
    EXPECT_DOUBLE_EQ(gKRFrameRate, 0.5);
    EXPECT_DOUBLE_EQ(KRFrameRateControllerGetFrameTime(), 2.0);
}

TEST_F(FrameRateController, ShortFrameIsHeldToOneSixtieth)
{
    KRFrameRateControllerInit(60);
    KRFrameRateControllerStart();
    sCounter += 1000; // one millisecond of work
    KRFrameRateControllerEnd();
    EXPECT_GE(gKRFrameTime, 1.0 / 60.0);
    EXPECT_LT(gKRFrameTime, 1.0 / 60.0 + 0.0001);
    EXPECT_GT(sWaited, 0.0);
}

TEST_F(FrameRateController, SixtyFramesFromResetAreCounted)
{
    KRFrameRateControllerInit(60);
    KRFrameRateControllerStart();
    KRFrameRateControllerEnd();
    KRFrameRateControllerReset();
    for (int frame = 0; frame < 60; ++frame)
    {
        KRFrameRateControllerStart();
        KRFrameRateControllerEnd();
    }
    EXPECT_EQ(KRFrameRateControllerGetFrameCount(), 60u);
}

TEST_F(FrameRateController, AfterResetFrameTimeIsOneOverTheLimit)
{
    KRFrameRateControllerInit(60);
    KRFrameRateControllerStart();
    sCounter += 2000000;
    KRFrameRateControllerEnd();
    uint64_t startBefore = gKRFrameStart;
    KRFrameRateControllerReset();
    EXPECT_DOUBLE_EQ(KRFrameRateControllerGetFrameTime(), 1.0 / 60.0);
    EXPECT_EQ(KRFrameRateControllerGetFrameCount(), 0u);
    EXPECT_EQ(gKRFrameStart, startBefore) << "reset leaves the counter reading alone";
}

TEST_F(FrameRateController, FrequencyIsReadAgainAtEveryStart)
{
    KRFrameRateControllerInit(60);
    KRFrameRateControllerStart();
    EXPECT_EQ(gKRCounterFrequency, 1000000u);
    EXPECT_DOUBLE_EQ(gKRSecondsPerTick, 1.0e-6);
}
