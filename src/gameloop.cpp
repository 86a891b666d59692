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

float gFrameDelta = 0.0f;
double gAppTime = 0.0;

static const unsigned char kKeyF1 = 0x70;

void GameStartUp(int32_t firstState)
{
    // Sound comes up before the window exists.
    MusicInit();
    // The result is deliberately not looked at: a failed start carries on unless the engine halted itself.
    KRSysInit(nullptr, 1, 800, 600, 1, 60, nullptr);
    KRSysSetWindowTitle("Quillon");
    // The game always starts in full screen.
    KRToogleFullScreen(true);
    KRGfxSetBackgroundColor(0.0f, 0.0f, 0.0f);
    GameStateMgrInit(firstState);
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

void GameMainLoop()
{
    while (gGameStateCurr != GS_QUIT)
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

        while (gGameStateCurr == gGameStateNext)
            RunFrame();

        GameStateFree();
        if (gGameStateNext != GS_RESTART)
            GameStateUnload();

        gGameStatePrev = gGameStateCurr;
        gGameStateCurr = gGameStateNext;
    }
    KRSysExit();
}
