// bench_level_frame.cpp -- what one frame of a full level costs, uncapped: a level of some 350 live instances
// (platforms, walls, spikes, drop walls, the level's own moving platforms, the view objects, the darkness, the
// HUD) run on the real window and OpenGL context through its Update and Draw, without the frame limiter. The
// pointer sweeps the torch round the character, and Esc pauses the level for a stretch and resumes it, so that
// the pause menu's frames are measured too. Prints the median and the
// 99th percentile per frame of Update alone and of Update, Draw and the present together; then of Update alone
// over frames that draw nothing (run first), so that the software renderer's threads, busy with an earlier
// frame, do not compete with it for the processor.
//
// Run from the assets folder (as `make bench` does): the level's pictures are read from there. The level file is
// written into a private folder that links every asset.
#include "KRGraphics.h"
#include "KRInput.h"
#include "KRPlatformScripted.h"
#include "KRSystem.h"
#include "gameloop.h"
#include "gamestatelist.h"
#include "gamestatemgr.h"
#include "level_state.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

double Now()
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void Line(std::string& text, int kind, int x, int y)
{
    text += std::to_string(kind) + "\n" + std::to_string(x) + "\n" + std::to_string(y) + "\n";
}

// A floor under the character, a grid of platforms with walls, spikes and drop walls resting on some of them.
std::string BusyLevel()
{
    std::string text;
    for (int i = 0; i < 9; i++)
        Line(text, 3, -400 + 100 * i, -40);
    for (int row = 0; row < 12; row++)
        for (int col = 0; col < 20; col++)
        {
            const int x = -1500 + 150 * col;
            const int y = 200 + 130 * row;
            Line(text, (col + row) % 4 == 0 ? 4 : 3, x, y);
            if (col % 5 == 1)
                Line(text, 2, x, y + 60);
            else if (col % 5 == 3)
                Line(text, 6, x, y + 21);
            else if (col % 10 == 4 && row % 3 == 0)
                Line(text, 33, x, y + 60);
        }
    Line(text, 10, 900, -5);
    Line(text, 8, 0, 0);
    return text;
}

double Percentile(std::vector<double> values, double p)
{
    std::sort(values.begin(), values.end());
    const size_t at = std::min(values.size() - 1, (size_t)(p * (double)(values.size() - 1) + 0.5));
    return values[at];
}

} // namespace

int main()
{
    // A private game folder: every asset by link, and the level file of the fourth level written there.
    char cwd[4096];
    if (!getcwd(cwd, sizeof(cwd)))
        return 1;
    char folderTemplate[] = "/tmp/quillon-bench-XXXXXX";
    const char* folder = mkdtemp(folderTemplate);
    if (!folder)
        return 1;
    if (DIR* assets = opendir(cwd))
    {
        while (dirent* entry = readdir(assets))
        {
            const std::string name = entry->d_name;
            if (name != "." && name != ".." && name != "Level4.txt")
                symlink((std::string(cwd) + "/" + name).c_str(), (std::string(folder) + "/" + name).c_str());
        }
        closedir(assets);
    }
    if (FILE* file = std::fopen((std::string(folder) + "/Level4.txt").c_str(), "w"))
    {
        std::fputs(BusyLevel().c_str(), file);
        std::fclose(file);
    }
    if (chdir(folder) != 0)
        return 1;

    // The real window on the scripted back-end, stretched over an 800 by 600 screen.
    KRPlatformUse(&gKRPlatformScripted);
    KRScriptReset();
    KRScriptSetScreenSize(800, 600);
    GameStartUp(GS_LEVEL_3);
    GameLoopStep(); // Load, Init and the first frame

    LevelState* pLevel = LevelStateLive();
    if (!pLevel)
    {
        std::printf("the level did not start\n");
        return 1;
    }
    int live = 0;
    for (const GameObjInst& inst : pLevel->pool.sGameObjInstList)
        live += (inst.flag & FLAG_ACTIVE) ? 1 : 0;

    const int warmUp = 30, frames = 300, updateFrames = 3000;
    // Update alone, no drawing at all.
    std::vector<double> updateOnly;
    gFrameDelta = 1.0f / 60.0f;
    for (int frame = 0; frame < updateFrames; frame++)
    {
        KRInputUpdate();
        const double start = Now();
        GameStateUpdate();
        updateOnly.push_back(Now() - start);
        KRSysUpdate();
    }

    // The drawn frames: the pointer circles the window's middle once every two seconds, turning the torch all the
    // way round; Esc opens the pause menu at a quarter of the frames and closes it at a half.
    const int first = KRScriptGetStep();
    for (int frame = 0; frame < warmUp + frames; frame++)
    {
        const double turn = 6.2831853 * (double)frame / 120.0;
        KRScriptSetCursor(first + frame, 400 + (int)(250.0 * std::cos(turn)), 300 + (int)(200.0 * std::sin(turn)));
    }
    const unsigned char escape = 27;
    KRScriptHoldKey(escape, first + warmUp + frames / 4, first + warmUp + frames / 4);
    KRScriptHoldKey(escape, first + warmUp + frames / 2, first + warmUp + frames / 2);
    int pausedFrames = 0;

    std::vector<double> update, whole;
    for (int frame = 0; frame < warmUp + frames; frame++)
    {
        const double start = Now();
        KRGfxStart();
        KRInputUpdate();
        const double updateStart = Now();
        GameStateUpdate();
        const double updateEnd = Now();
        GameStateDraw();
        KRGfxEnd();
        const double end = Now();
        KRSysUpdate();
        if (frame >= warmUp)
        {
            pausedFrames += pLevel->vars.sPaused ? 1 : 0;
            update.push_back(updateEnd - updateStart);
            whole.push_back(end - start);
        }
        if (gGameStateNext != gGameStateCurr)
        {
            std::printf("the level ended early\n");
            return 1;
        }
    }

    std::printf("level frame, %d live instances, %d frames drawn (%d of them paused, the torch turning) and %d not, "
                "uncapped, window 800x600\n",
                live, frames, pausedFrames, updateFrames);
    if (pausedFrames == 0)
    {
        std::printf("the pause menu never opened\n");
        return 1;
    }
    std::printf("%-28s %-12s %-12s\n", "", "median (ms)", "p99 (ms)");
    std::printf("%-28s %-12.4f %-12.4f\n", "Update", Percentile(update, 0.5), Percentile(update, 0.99));
    std::printf("%-28s %-12.4f %-12.4f\n", "Update + Draw + present", Percentile(whole, 0.5),
                Percentile(whole, 0.99));
    std::printf("%-28s %-12.4f %-12.4f\n", "Update, frames not drawn", Percentile(updateOnly, 0.5),
                Percentile(updateOnly, 0.99));
    KRSysExit();
    return 0;
}
