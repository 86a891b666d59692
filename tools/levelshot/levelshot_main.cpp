// levelshot_main.cpp -- quillon-levelshot: a whole level drawn to a picture by the game's own renderer.
//
//   quillon-levelshot --state GS_LEVEL_N --out FILE.png [--width W] [--height H] [--assets DIR] [--supersample N]
//
// Starts the level state on the scripted back-end, lets it run two frames so that every object of its file and
// of its Init stands where play begins, then draws the level's world kinds once more without the darkness, the
// HUD and the overlays, every transform scaled about the world origin so that the camera's whole range fits the
// picture. The frame is drawn N times larger (3 by default) and averaged down, so thin platforms keep their
// colour at a tenth of their size. Status 0 when the picture was written, 1 when the level did not start or the
// file could not be written, 2 for options it cannot read.
#include "levelshot.h"
#include "replayframe.h"
#include "replayprobe.h"
#include "toolpath.h"

#include "KRGraphics.h"
#include "KRMtx33.h"
#include "KRPlatform.h"
#include "KRPlatformScripted.h"
#include "KRSystem.h"
#include "gameloop.h"
#include "gameobjdraw.h"
#include "gamestatemgr.h"
#include "level_state.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unistd.h>

namespace {

struct ShotOptions
{
    int32_t state = -1;
    std::string out;
    std::string assets = "assets/";
    int width = 308;
    int height = 225;
    int supersample = 3;
};

const char* const kUsage = "usage: quillon-levelshot --state GS_LEVEL_N --out FILE.png [--width W] [--height H]\n"
                           "                         [--assets DIR] [--supersample N]\n";

int Fail(int status, const std::string& message)
{
    std::fprintf(stderr, "quillon-levelshot: %s\n", message.c_str());
    return status;
}

bool ReadCount(const std::string& text, int low, int high, int* pValue)
{
    char* end = nullptr;
    long value = std::strtol(text.c_str(), &end, 10);
    if (end == text.c_str() || *end != 0 || value < low || value > high)
        return false;
    *pValue = (int)value;
    return true;
}

int ReadOptions(int argc, char** argv, ShotOptions* pOptions)
{
    for (int i = 1; i < argc; ++i)
    {
        std::string option = argv[i];
        if (option == "--help" || option == "-h")
        {
            std::fputs(kUsage, stdout);
            std::exit(0);
        }
        if (i + 1 >= argc || argv[i + 1][0] == 0)
            return Fail(2, option + " needs a value\n" + kUsage);
        std::string value = argv[++i];
        if (option == "--state")
        {
            pOptions->state = ReplayStateFromName(value.c_str());
            if (pOptions->state < GS_LEVEL_0 || pOptions->state > GS_LEVEL_5)
                return Fail(2, "--state wants one of GS_LEVEL_0 to GS_LEVEL_5, not " + value);
        }
        else if (option == "--out")
            pOptions->out = value;
        else if (option == "--assets")
            pOptions->assets = value;
        else if (option == "--width")
        {
            if (!ReadCount(value, 16, 2048, &pOptions->width))
                return Fail(2, "--width wants a whole number from 16 to 2048, not " + value);
        }
        else if (option == "--height")
        {
            if (!ReadCount(value, 16, 2048, &pOptions->height))
                return Fail(2, "--height wants a whole number from 16 to 2048, not " + value);
        }
        else if (option == "--supersample")
        {
            if (!ReadCount(value, 1, 8, &pOptions->supersample))
                return Fail(2, "--supersample wants a whole number from 1 to 8, not " + value);
        }
        else
            return Fail(2, "unknown option " + option + "\n" + kUsage);
    }
    if (pOptions->state < 0 || pOptions->out.empty())
        return Fail(2, std::string("--state and --out are required\n") + kUsage);
    return 0;
}

KRMtx33 sFit;

void FitOne(GameObjInst* pInst)
{
    KRMtx33 fitted;
    KRMtx33Concat(&fitted, &sFit, &pInst->transform);
    pInst->transform = fitted;
}

} // namespace

int main(int argc, char** argv)
{
    ShotOptions options;
    int status = ReadOptions(argc, argv, &options);
    if (status != 0)
        return status;
    options.out = ToolAbsolutePath(options.out);

    // Whatever the level reads or writes in the save folder stays in a scratch folder.
    char documents[] = "/tmp/quillon-levelshot-XXXXXX";
    if (mkdtemp(documents))
        setenv("XDG_DOCUMENTS_DIR", documents, 1);
    if (chdir(options.assets.c_str()) != 0)
        return Fail(1, "cannot enter the assets folder " + options.assets + ": " + std::strerror(errno));

    const int drawnWidth = options.width * options.supersample;
    const int drawnHeight = options.height * options.supersample;
    KRPlatformUse(&gKRPlatformScripted);
    KRScriptReset();
    const std::string script = "screen " + std::to_string(drawnWidth) + " " + std::to_string(drawnHeight) + "\n";
    if (!KRScriptParse(script.c_str()))
        return Fail(2, "the picture size cannot be a screen");
    GameStartUp(options.state);
    for (int frame = 0; frame < 2; ++frame)
        GameLoopStep();

    LevelState* pLevel = LevelStateLive();
    if (gGameStateCurr != options.state || pLevel == nullptr)
    {
        gGameStateNext = GS_QUIT;
        while (GameLoopStep())
        {
        }
        return Fail(1, std::string("the level ") + ReplayStateName(options.state) +
                           " did not start: is its level file in " + options.assets + "?");
    }
    int clientWidth = 0, clientHeight = 0;
    gKRPlatform->GetClientSize(&clientWidth, &clientHeight);
    if (clientWidth != drawnWidth || clientHeight != drawnHeight)
        std::fprintf(stderr, "quillon-levelshot: the window is %d by %d, not %d by %d\n", clientWidth, clientHeight,
                     drawnWidth, drawnHeight);

    LevelShotFit(drawnWidth, drawnHeight, gKRWinScaleX, gKRWinScaleY, &sFit);
    KRGfxStart();
    KRGfxSetCamPosition(0.0f, 0.0f);
    GameObjPoolForEachLive(&pLevel->pool, FitOne);
    LevelDrawWorld(pLevel);
    std::vector<unsigned char> pixels = ReplayReadFrame(drawnWidth, drawnHeight);
    pixels = LevelShotShrink(pixels, drawnWidth, drawnHeight, options.supersample);
    bool written = ReplayWritePng(options.out, options.width, options.height, pixels, PngPacking::kSmall);

    gGameStateNext = GS_QUIT;
    while (GameLoopStep())
    {
    }
    rmdir(documents);
    if (!written)
        return Fail(1, "cannot write " + options.out);
    std::fprintf(stderr, "quillon-levelshot: %s drawn to %s (%d by %d)\n", ReplayStateName(options.state),
                 options.out.c_str(), options.width, options.height);
    return 0;
}
