// KRFrameRateController.cpp -- frame timing: a counter reading at Start, a wait to the minimum frame time at End.
//
// Owns:    gKRFrameRateMax, gKRFrameRate, gKRFrameTime, gKRFrameTimeMin, gKRFrameCounter and the counter readings.
// Fed by:  the platform's monotonic counter.
// Read by: the main loop, which copies the frame time into gFrameDelta after every frame.
//
// A long frame is reported as it was: nothing caps or smooths it, and game logic downstream sees the full step.
#include "KRFrameRateController.h"

#include "KRPlatform.h"

double gKRFrameRateMax = 0.0;
double gKRFrameRate = 0.0;
double gKRFrameTime = 0.0;
double gKRFrameTimeMin = 0.0;
uint32_t gKRFrameCounter = 0;
uint64_t gKRFrameStart = 0;
uint64_t gKRFrameNow = 0;
uint64_t gKRCounterFrequency = 0;
double gKRSecondsPerTick = 0.0;

static void SetFrameTimesFromRate()
{
    if (gKRFrameRate != 0.0)
    {
        gKRFrameTime = 1.0 / gKRFrameRate;
        gKRFrameTimeMin = 1.0 / gKRFrameRateMax;
    }
    else
    {
        // A limit of 0 means no waiting at all.
        gKRFrameTime = 0.0;
        gKRFrameTimeMin = 0.0;
    }
}

void KRFrameRateControllerInit(uint32_t frameRateMax)
{
    gKRFrameCounter = 0;
    gKRFrameRateMax = (double)frameRateMax;
    gKRFrameRate = gKRFrameRateMax;
    SetFrameTimesFromRate();
    gKRFrameStart = gKRPlatform->GetCounter();
}

void KRFrameRateControllerReset()
{
    // The counter reading is left alone: only the measurements start over.
    gKRFrameCounter = 0;
    gKRFrameRate = gKRFrameRateMax;
    SetFrameTimesFromRate();
}

void KRFrameRateControllerStart()
{
    // The frequency is read again on every frame.
    gKRCounterFrequency = gKRPlatform->GetFrequency();
    gKRSecondsPerTick = 1.0 / (double)gKRCounterFrequency;
    gKRFrameStart = gKRPlatform->GetCounter();
}

void KRFrameRateControllerEnd()
{
    for (;;)
    {
        gKRFrameNow = gKRPlatform->GetCounter();
        gKRFrameTime = (double)(gKRFrameNow - gKRFrameStart) * gKRSecondsPerTick;
        if (!(gKRFrameTime < gKRFrameTimeMin))
            break;
        // Sleeps while more than a couple of milliseconds remain, so the wait does not hold a core; the
        // counter decides when the frame is over.
        gKRPlatform->Wait(gKRFrameTimeMin - gKRFrameTime);
    }
    gKRFrameRate = 1.0 / gKRFrameTime;
    ++gKRFrameCounter;
}

double KRFrameRateControllerGetFrameTime()
{
    return gKRFrameTime;
}

uint32_t KRFrameRateControllerGetFrameCount()
{
    return gKRFrameCounter;
}
