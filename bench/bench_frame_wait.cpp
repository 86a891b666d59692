// bench_frame_wait.cpp -- what the frame limiter costs: wall time per frame and the processor time the wait burns,
// with the real back-end's counter and sleep, for frames whose work takes 0, 4 and 12 ms.
#include "KRFrameRateController.h"
#include "KRPlatform.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <initializer_list>
#include <thread>

static double ProcessSeconds()
{
    timespec ts;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ts);
    return (double)ts.tv_sec + (double)ts.tv_nsec * 1e-9;
}

int main()
{
    const int frames = 180;
    std::printf("%-12s %-16s %-16s %-14s\n", "work (ms)", "frame (ms)", "cpu/frame (ms)", "core busy (%)");
    for (int workMs : {0, 4, 12})
    {
        KRFrameRateControllerInit(60);
        double wallStart = (double)std::chrono::duration_cast<std::chrono::nanoseconds>(
                               std::chrono::steady_clock::now().time_since_epoch()).count() * 1e-9;
        double cpuStart = ProcessSeconds();
        double cpuInWork = 0.0;
        for (int frame = 0; frame < frames; ++frame)
        {
            KRFrameRateControllerStart();
            double workStart = ProcessSeconds();
            // The frame's work, spent busy so that it counts as processor time like real drawing would.
            auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(workMs);
            while (std::chrono::steady_clock::now() < until)
            {
            }
            cpuInWork += ProcessSeconds() - workStart;
            KRFrameRateControllerEnd();
        }
        double wall = (double)std::chrono::duration_cast<std::chrono::nanoseconds>(
                          std::chrono::steady_clock::now().time_since_epoch()).count() * 1e-9 - wallStart;
        double cpuWait = ProcessSeconds() - cpuStart - cpuInWork;
        std::printf("%-12d %-16.3f %-16.3f %-14.1f\n", workMs, wall / frames * 1000.0, cpuWait / frames * 1000.0,
                    (cpuWait + cpuInWork) / wall * 100.0);
    }
    return 0;
}
