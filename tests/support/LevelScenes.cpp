// LevelScenes.cpp -- floor, progress file, pointer lines and timed pictures for the level scenario tests.
#include "LevelScenes.h"

#include "KRPlatformScripted.h"
#include "TestEnv.h"

#include <cmath>
#include <sys/stat.h>

namespace {

std::map<int, std::string> sShots;
int sShotWidth = 800;
int sShotHeight = 600;

void ShootAtPresent(int step)
{
    auto it = sShots.find(step);
    if (it != sShots.end())
        SaveScreenshot(ShotPath(it->second), sShotWidth, sShotHeight);
}

std::map<int, int> sSamples;
int sSampleX = 0;
int sSampleY = 0;

void SampleAtPresent(int step)
{
    if (!KRScriptStepDrawn(step))
        return;
    const unsigned pixel = ReadPixel(sSampleX, sSampleY);
    sSamples[step] = (int)((pixel >> 16) & 255) + (int)((pixel >> 8) & 255) + (int)(pixel & 255);
}

std::string ProgressPath(const LevelRun& run)
{
    return run.mHome + "/Documents/Varnholt/Mandrel/States.txt";
}

} // namespace

std::string FloorLevel(std::initializer_list<LevelObject> more)
{
    std::string text = LevelText(PlatformRow(-400, 9, -40));
    text += LevelText({{8, 0, 0}});
    for (const LevelObject& o : more)
        text += LevelText({o});
    return text;
}

void WriteFreshProgress(const LevelRun& run)
{
    for (const char* folder : {"/Documents", "/Documents/Varnholt", "/Documents/Varnholt/Mandrel"})
        mkdir((run.mHome + folder).c_str(), 0755);
    WriteFileText(ProgressPath(run), "000000\n0\n0");
}

std::string ProgressText(const LevelRun& run)
{
    return ReadFileText(ProgressPath(run));
}

std::string CursorLine(int viewX, int viewY, int step)
{
    const int x = (int)std::lround(viewX * 0.4);
    const int y = (int)std::lround(viewY * 0.4);
    return "cursor " + std::to_string(x) + " " + std::to_string(y) + " " + std::to_string(step) + "\n";
}

void ShootAtSteps(const std::map<int, std::string>& shots, int width, int height)
{
    sShots = shots;
    sShotWidth = width;
    sShotHeight = height;
    for (const auto& shot : shots)
        KRScriptDrawStep(shot.first);
    KRScriptSetPresentHook(ShootAtPresent);
}

void StopShooting()
{
    KRScriptSetPresentHook(nullptr);
    sShots.clear();
}

std::string ShotPath(const std::string& name)
{
    return TestOutputDir() + "/" + name;
}

void SamplePixelEachStep(int viewX, int viewY)
{
    sSamples.clear();
    KRScriptDrawEveryStep();
    sSampleX = (int)std::lround(viewX * 0.4);
    sSampleY = (int)std::lround((600 - viewY) * 0.4);
    KRScriptSetPresentHook(SampleAtPresent);
}

int SampledBrightness(int step)
{
    auto it = sSamples.find(step);
    return it == sSamples.end() ? -1 : it->second;
}
