// EditorDrive.cpp -- frame-by-frame driving of a state through the real loop on the scripted back-end.
#include "EditorDrive.h"

#include "GameRun.h"
#include "KRPlatformScripted.h"
#include "KRGraphics.h"
#include "KRSystem.h"
#include "TestEnv.h"
#include "gameloop.h"
#include "gameobjdraw.h"
#include "stateprobe.h"

#include <gtest/gtest.h>

namespace {

std::string sShotPath;

void ShotHook(int)
{
    if (sShotPath.empty())
        return;
    SaveScreenshot(sShotPath, (int)((float)KRGetWindowWidth() * gKRWinScaleX),
                   (int)((float)KRGetWindowHeight() * gKRWinScaleY));
    sShotPath.clear();
}

// The pixel whose logical position, after the division by the full-screen scale, is v.
int ToPixel(int v, float scale)
{
    return (int)(((float)v + 0.5f) * scale);
}

} // namespace

std::string DriveStart(int state)
{
    std::string home = MakeTempDir("editor-home");
    PointHomeAt(home);
    // A screen of the window's own size: full screen then draws 800 by 600, quick on the software renderer, and
    // every logical pointer place has its own pixel.
    StartGameScripted(state, "screen 800 600\n");
    KRScriptSetPresentHook(ShotHook);
    // The pointer rests in the middle of the window, away from the edges that pan.
    DrivePointer(400, 300);
    DriveFrames(1);
    return home;
}

bool DriveFrames(int n)
{
    for (int i = 0; i < n; ++i)
        if (!GameLoopStep())
            return false;
    return true;
}

void DrivePointer(int x, int y)
{
    KRScriptSetCursor(KRScriptGetStep(), ToPixel(x, gKRWinScaleX), ToPixel(y, gKRWinScaleY));
}

void DrivePointAt(float x, float y)
{
    float camX = 0.0f;
    float camY = 0.0f;
    KRGfxGetCamPosition(&camX, &camY);
    // Cursor at (minX + Pos_x, maxY - Pos_y - 35) with minX = camX - 400 and maxY = camY + 300.
    int px = (int)(x - (camX - 400.0f));
    int py = (int)((camY + 300.0f) - 35.0f - y);
    DrivePointer(px, py);
}

void DriveTapTogether(std::initializer_list<int> keys)
{
    int step = KRScriptGetStep();
    for (int key : keys)
        KRScriptHoldKey((unsigned char)key, step, step);
    DriveFrames(2);
}

void DriveTap(int key)
{
    DriveTapTogether({key});
}

void DriveUndo()
{
    int step = KRScriptGetStep();
    KRScriptHoldKey(162, step, step + 1);
    KRScriptHoldKey('Z', step, step);
    DriveFrames(2);
}

GameObjPool* DrivePool()
{
    return GameStatePoolGet();
}

std::vector<GameObjInst*> DriveLive(int kind)
{
    std::vector<GameObjInst*> found;
    GameObjPool* pPool = DrivePool();
    if (!pPool)
        return found;
    for (GameObjInst& inst : pPool->sGameObjInstList)
        if ((inst.flag & FLAG_ACTIVE) && (kind < 0 || (int)inst.pObject->type == kind))
            found.push_back(&inst);
    return found;
}

std::vector<GameObjInst*> DriveLevelObjects()
{
    std::vector<GameObjInst*> found;
    for (GameObjInst* pInst : DriveLive())
        if (!pInst->isInterface)
            found.push_back(pInst);
    return found;
}

std::string DriveProbe()
{
    std::string out;
    GameStateProbeFn fn = GameStateProbeGet();
    if (fn)
        fn(&out);
    return out;
}

std::string DriveProbeValue(const char* name)
{
    std::string probe = DriveProbe();
    std::string key = std::string(" ") + name + "=";
    size_t at = probe.find(key);
    if (at == std::string::npos)
        return "<none>";
    at += key.size();
    // Values run to the next " name=" pair; texts may hold blanks.
    size_t end = probe.size();
    for (size_t i = at; i < probe.size(); ++i)
    {
        if (probe[i] != ' ')
            continue;
        size_t eq = probe.find('=', i + 1);
        size_t sp = probe.find(' ', i + 1);
        if (eq != std::string::npos && (sp == std::string::npos || eq < sp))
        {
            end = i;
            break;
        }
    }
    return probe.substr(at, end - at);
}

void DriveScreenshot(const std::string& name)
{
    sShotPath = TestOutputDir() + "/" + name;
    KRScriptDrawStep(KRScriptGetStep());
    DriveFrames(1);
    EXPECT_TRUE(sShotPath.empty()) << "the frame was presented and saved";
}
