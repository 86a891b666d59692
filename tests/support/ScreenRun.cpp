// ScreenRun.cpp -- whole screens frame by frame for scenario tests.
#include "ScreenRun.h"

#include "GameRun.h"
#include "KRPlatformScripted.h"
#include "TestEnv.h"
#include "gameloop.h"
#include "gameobjdraw.h"
#include "gamestatemgr.h"
#include "savefolder.h"
#include "stateprobe.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/stat.h>

static bool sRunning = false;
static int sShotStep = -1;
static std::string sShotName;

void ScreenStart(int state, const std::string& script)
{
    PointHomeAt(MakeTempDir("screen"));
    StartGameScripted(state, script.c_str());
    sRunning = true;
}

void ScreenSteps(int n)
{
    for (int i = 0; i < n && sRunning; i++)
        sRunning = GameLoopStep();
}

bool ScreenRunning()
{
    return sRunning;
}

void ScreenStepsTo(int step)
{
    while (sRunning && KRScriptGetStep() <= step)
        sRunning = GameLoopStep();
}

int ScreenStepsWhileIn(int state, int maxFrames)
{
    int frames = 0;
    while (sRunning && gGameStateCurr == state && frames < maxFrames)
    {
        sRunning = GameLoopStep();
        frames++;
    }
    return frames;
}

std::string ScreenProbe()
{
    std::string text;
    if (GameStateProbeGet())
        GameStateProbeGet()(&text);
    return text;
}

std::string ProbeValue(const std::string& key)
{
    std::string text = ScreenProbe() + " ";
    std::string::size_type at = text.find(" " + key + "=");
    if (at == std::string::npos)
        return "";
    at += key.size() + 2;
    return text.substr(at, text.find(' ', at) - at);
}

double ProbeNumber(const std::string& key)
{
    std::string value = ProbeValue(key);
    EXPECT_FALSE(value.empty()) << "the probe has no " << key << ": " << ScreenProbe();
    return std::atof(value.c_str());
}

GameObjInst* LiveOfKind(u32 kind, int nth)
{
    GameObjPool* pPool = GameStatePoolGet();
    if (!pPool)
        return nullptr;
    for (GameObjInst& inst : pPool->sGameObjInstList)
        if ((inst.flag & FLAG_ACTIVE) && inst.pObject->type == kind && nth-- == 0)
            return &inst;
    return nullptr;
}

int CountLive(u32 kind)
{
    int count = 0;
    while (LiveOfKind(kind, count))
        count++;
    return count;
}

static void ShotHook(int step)
{
    if (step == sShotStep)
    {
        EXPECT_TRUE(SaveScreenshot(TestOutputDir() + "/" + sShotName, 800, 600));
    }
}

void ScreenshotAtStep(int step, const std::string& fileName)
{
    sShotStep = step;
    sShotName = fileName;
    KRScriptDrawStep(step);
    KRScriptSetPresentHook(ShotHook);
}

void ScreenFinish()
{
    if (!sRunning)
        return;
    gGameStateNext = GS_QUIT;
    while (sRunning)
        sRunning = GameLoopStep();
}

void ScreenFinishBeforeNextVisit()
{
    if (!sRunning)
        return;
    // Between two visits the loop holds no state: the state manager's GS_QUIT ends it at once.
    gGameStateCurr = GS_QUIT;
    sRunning = GameLoopStep();
}

std::string ReadStatesFile()
{
    std::string path = SaveFolderPath("States.txt");
    struct stat info;
    if (stat(path.c_str(), &info) != 0)
        return "";
    return ReadFileText(path);
}

void WriteStatesFile(const std::string& text)
{
    SaveFolderCreate();
    WriteFileText(SaveFolderPath("States.txt"), text);
}
