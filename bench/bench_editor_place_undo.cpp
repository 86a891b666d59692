// bench_editor_place_undo.cpp -- the editor's Update with a full level: 1,500 objects placed by clicks (picked from
// the palette, released in the world, snapping where they meet), then all of it undone with left Control and Z.
// Runs the real main loop on the scripted back-end and times every Update; prints the 50th and 99th percentile
// and the longest, for the placing and the undoing. The frames are not drawn.
#include "KRPlatformScripted.h"
#include "gameobjdraw.h"
#include "gamestate_editor.h"
#include "gameloop.h"
#include "gamestatelist.h"
#include "gamestatemgr.h"
#include "stateprobe.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace {

std::vector<double> sTimes;
bool sRecording = false;

void TimedUpdate()
{
    auto start = std::chrono::steady_clock::now();
    GameStateEditorUpdate();
    double ms = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    if (sRecording)
        sTimes.push_back(ms);
}

// The pointer at a logical window place; the screen is the window's size, so pixels are logical units.
void Pointer(int x, int y)
{
    KRScriptSetCursor(KRScriptGetStep(), x, y);
}

// A press in this frame and the release in the next.
void Click()
{
    int step = KRScriptGetStep();
    KRScriptHoldKey(1, step, step);
    GameLoopStep();
    GameLoopStep();
}

void Report(const char* what, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    auto at = [&times](double q) { return times[(size_t)(q * (double)(times.size() - 1))]; };
    std::printf("%-10s frames %6zu   Update p50 %.3f ms   p99 %.3f ms   max %.3f ms\n", what, times.size(), at(0.5),
                at(0.99), times.back());
}

// Drawing 1,500 sprites on the software renderer would take the whole run; the benchmark is about Update.
void NoDraw()
{
}

} // namespace

int main()
{
    const int objects = 1500;
    KRPlatformUse(&gKRPlatformScripted);
    KRScriptReset();
    KRScriptParse("screen 800 600\n");
    // Not even the frame's clear is drawn, nor is any frame shown: the benchmark is about Update.
    KRScriptDrawNoStep();
    gGameStateTable[GS_EDITOR].update = TimedUpdate;
    gGameStateTable[GS_EDITOR].draw = NoDraw;
    GameStartUp(GS_EDITOR);
    Pointer(400, 300);
    GameLoopStep();

    // Palette icons by pointer place (the cursor stands 35 under the pointer): platform, wall, spike, battery.
    const int icons[4][2] = {{622, 65}, {750, 55}, {445, 75}, {222, 55}};
    sRecording = true;
    for (int i = 0; i < objects; ++i)
    {
        Pointer(icons[i % 4][0], icons[i % 4][1]);
        GameLoopStep();
        Click();
        // A grid over the world between the palette and the name field; neighbours meet and snap.
        Pointer(60 + (i * 37) % 680, 200 + ((i * 53) / 680 * 7) % 240);
        GameLoopStep();
        Click();
    }
    std::vector<double> placing = sTimes;
    sTimes.clear();
    std::string probe;
    GameStateProbeGet()(&probe);

    int live = 0;
    for (const GameObjInst& inst : GameStatePoolGet()->sGameObjInstList)
        live += (inst.flag & FLAG_ACTIVE) && !inst.isInterface ? 1 : 0;

    for (int i = 0; i < objects + 100; ++i)
    {
        int step = KRScriptGetStep();
        KRScriptHoldKey(162, step, step + 1);
        KRScriptHoldKey('Z', step, step);
        GameLoopStep();
        GameLoopStep();
    }
    std::vector<double> undoing = sTimes;
    int left = 0;
    for (const GameObjInst& inst : GameStatePoolGet()->sGameObjInstList)
        left += (inst.flag & FLAG_ACTIVE) && !inst.isInterface ? 1 : 0;

    // Fewer than all go: a battery or spike let go on something without a snapping row leaves no record, a snap
    // onto the character leaves two for one object, and a full history forgets its oldest steps.
    std::printf("level objects after placing: %d, after undoing: %d; editor after placing:%s\n", live, left,
                probe.c_str());
    Report("placing", placing);
    Report("undoing", undoing);

    gGameStateNext = GS_QUIT;
    while (GameLoopStep())
        gGameStateNext = GS_QUIT;
    return 0;
}
