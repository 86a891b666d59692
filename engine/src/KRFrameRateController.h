// KRFrameRateController.h -- measures each frame on the platform's counter and holds the rate at a maximum.
#pragma once

#include <cstdint>

extern double gKRFrameRateMax;      // the limit given at init, frames per second
extern double gKRFrameRate;         // last measured rate: 1 / frame time
extern double gKRFrameTime;         // last measured frame time, seconds
extern double gKRFrameTimeMin;      // shortest allowed frame: 1 / gKRFrameRateMax, or 0 for no limit
extern uint32_t gKRFrameCounter;    // frames ended since the last reset
extern uint64_t gKRFrameStart;      // counter reading at the start of the frame
extern uint64_t gKRFrameNow;        // counter reading at the last look
extern uint64_t gKRCounterFrequency;
extern double gKRSecondsPerTick;

void KRFrameRateControllerInit(uint32_t frameRateMax);
void KRFrameRateControllerReset();
void KRFrameRateControllerStart();
void KRFrameRateControllerEnd();
double KRFrameRateControllerGetFrameTime();
uint32_t KRFrameRateControllerGetFrameCount();
