// gameloop.cpp -- start-up and the two nested loops, every call in its fixed order.
//
// Owns:    gFrameDelta, gAppTime.
// Drives:  sound start before the engine; the state manager's slots; per visit of a state: reset, the music pump,
//          input twice, Load (not on restart), Init, frames, Free, Unload (not before a restart); per frame: timer
//          and clear, input, F1, Update, Draw, present and wait and pump, the window's end, the frame time.
#include "gameloop.h"

#include "KRGraphics.h"
#include "KRInput.h"
#include "KRFrameRateController.h"
#include "KRSystem.h"
#include "fmodsound.h"
#include "gamestatemgr.h"

#include <cstdlib>

float gFrameDelta = 0.0f;
double gAppTime = 0.0;

static const unsigned char kKeyF1 = 0x70;

// Whether the running state's Load and Init have run and its Free and Unload have not: a visit is open.
static bool sVisitOpen = false;

void GameStartUp(int32_t firstState)
{
    // Sound comes up before the window exists.
    MusicInit();
    // Without a window, an OpenGL context or GLEW there is nothing to draw on: the engine has said why in one line,
    // and the process ends with status 1 rather than crash in its first frame.
    if (!KRSysInit(nullptr, 1, 800, 600, 1, 60, nullptr))
        std::exit(1);
    KRSysSetWindowTitle("Quillon");
    // The game always starts in full screen.
    KRToogleFullScreen(true);
    KRGfxSetBackgroundColor(0.0f, 0.0f, 0.0f);
    GameStateMgrInit(firstState);
    // A new start of the game opens a new visit, also when a test starts it again in the same process.
    sVisitOpen = false;
}

static void RunFrame()
{
    KRSysFrameStart();
    // Keys and cursor are sampled once, here, before anything else of the frame looks at them.
    KRInputUpdate();
    // Before Update, so that the frame's Draw already sees the new window size.
    if (KRInputCheckTriggered(kKeyF1))
        KRToogleFullScreen(!gKRFullScreen);
    GameStateUpdate();
    // A state change asked for by Update does not cut the frame short.
    GameStateDraw();
    KRSysFrameEnd();
    if (KRSysDoesWindowExist() == 0)
        gGameStateNext = GS_QUIT;
    gFrameDelta = (float)KRFrameRateControllerGetFrameTime();
    gAppTime += gFrameDelta;
}

static void VisitBegin()
{
    KRSysReset();
    // The loop's own sound pump, once per visit; states that have music pump it every frame themselves.
    MusicUpdate();
    KRInputUpdate();

    if (gGameStateCurr == GS_RESTART)
    {
        // The slots keep their content and Load is not called again.
        gGameStateCurr = gGameStatePrev;
        gGameStateNext = gGameStateCurr;
    }
    else
    {
        GameStateMgrUpdate();
        GameStateLoad();
    }

    GameStateInit();
    KRInputUpdate();
    sVisitOpen = true;
}

static void VisitEnd()
{
    GameStateFree();
    if (gGameStateNext != GS_RESTART)
        GameStateUnload();

    gGameStatePrev = gGameStateCurr;
    gGameStateCurr = gGameStateNext;
    sVisitOpen = false;
}

bool GameLoopStep()
{
    while (gGameStateCurr != GS_QUIT)
    {
        if (!sVisitOpen)
            VisitBegin();
        if (gGameStateCurr == gGameStateNext)
        {
            RunFrame();
            // A visit whose state asked to leave ends with the frame that asked, as the inner loop would end it.
            if (gGameStateCurr != gGameStateNext)
                VisitEnd();
            return true;
        }
        // An Init that already chose another state runs no frame.
        VisitEnd();
    }
    KRSysExit();
    return false;
}

void GameMainLoop()
{
    while (GameLoopStep())
    {
    }
}
