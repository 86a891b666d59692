// KRSystem.cpp -- console banner, the one window and its messages, the full-screen switch, engine start and end.
//
// Owns:    gKRWindowExists, gKRSysAppActive, gKRFullScreen, gKRWinScaleX, gKRWinScaleY, the window procedure.
// Fed by:  the platform back-end, which hands window messages to the window procedure while events are pumped.
// Read by: the main loop (window existence, full screen), KRInput and KRGraphics (the scales).
#include "KRSystem.h"

#include "KRFrameRateController.h"
#include "KRGraphics.h"
#include "KRInput.h"

#include <cstdio>

void* gKRInstance = nullptr;
void* gKRWindowHandle = nullptr;
int32_t gKRWindowExists = 0;
int32_t gKRSysAppActive = 0;
unsigned char gKRFullScreen = 0;
float gKRWinScaleX = 1.0f;
float gKRWinScaleY = 1.0f;

static const char* const kDefaultTitle = "Kestrel Runtime";
static const float kVersion = 3.03f;

static KRWindowProc sWindowProc = nullptr;

// Where the window's client area goes when it is not full screen: centred on the screen by the logical size.
static void CentredPosition(int screenWidth, int screenHeight, int width, int height, int* pX, int* pY)
{
    *pX = screenWidth / 2 - width / 2;
    *pY = screenHeight / 2 - height / 2;
}

// A start that cannot go on: one line with the platform library's own reason, on standard error.
static int32_t StartFailed(const char* what)
{
    std::fprintf(stderr, "Kestrel Runtime: %s: %s\n", what, gKRPlatform->GetLastError());
    std::fflush(stderr);
    return 0;
}

// The engine's window procedure: the window's end and its activation are all it records.
static long KRSysWindowProc(unsigned int message, long param)
{
    switch (message)
    {
    case KR_WM_DESTROY: gKRWindowExists = 0; break;
    case KR_WM_ACTIVATE: gKRSysAppActive = param != 0 ? 1 : 0; break;
    default: break; // create, move and paint need nothing
    }
    return 0;
}

int32_t KRSysInit(void* instance, int32_t showCommand, int32_t width, int32_t height, int32_t createConsole,
                  uint32_t frameRateMax, KRWindowProc windowProc)
{
    (void)showCommand;
    (void)createConsole; // standard output is the console, whether asked for or not
    gKRInstance = instance;

    std::printf("Kestrel Runtime version: %2.2f\n\n", kVersion);
    std::fflush(stdout);

    sWindowProc = windowProc ? windowProc : KRSysWindowProc;

    int screenWidth = 0, screenHeight = 0;
    gKRPlatform->GetScreenSize(&screenWidth, &screenHeight);
    int x = 0, y = 0;
    CentredPosition(screenWidth, screenHeight, width, height, &x, &y);

    // The client area comes out one pixel smaller than asked in each direction, as the window has always been
    // sized; the logical size stays width by height for all of the game.
    if (!gKRPlatform->CreateWindow(kDefaultTitle, x, y, width - 1, height - 1))
        return StartFailed("cannot open the window");
    gKRWindowHandle = gKRPlatform->GetWindowHandle();
    sWindowProc(KR_WM_CREATE, 0);
    gKRWindowExists = 1;

    // KRGfxInit reports its own failure, in the words of the OpenGL context or of GLEW.
    if (!KRGfxInit(width, height))
        return 0;
    if (!KRInputInit())
        return 0;
    KRFrameRateControllerInit(frameRateMax);
    return 1;
}

void KRSysReset()
{
    KRFrameRateControllerReset();
    KRInputReset();
}

void KRSysExit()
{
    // The window is not destroyed here: the process ends right after.
    KRInputExit();
    KRGfxExit();
}

void KRSysFrameStart()
{
    KRFrameRateControllerStart();
    KRGfxStart();
}

void KRSysFrameEnd()
{
    // Presenting first, the frame wait second, the message pump last: the pump falls between frames.
    KRGfxEnd();
    KRFrameRateControllerEnd();
    KRSysUpdate();
}

void KRSysUpdate()
{
    gKRPlatform->PumpEvents(sWindowProc ? sWindowProc : KRSysWindowProc);
}

void KRToogleFullScreen(bool on)
{
    gKRFullScreen = on ? 1 : 0;
    int screenWidth = 0, screenHeight = 0;
    gKRPlatform->GetScreenSize(&screenWidth, &screenHeight);

    if (on)
    {
        // Only the scales grow: the picture is stretched over the screen without regard to aspect ratio.
        gKRWinScaleX = (float)screenWidth / (float)KRGetWindowWidth();
        gKRWinScaleY = (float)screenHeight / (float)KRGetWindowHeight();
    }
    else
    {
        gKRWinScaleX = 1.0f;
        gKRWinScaleY = 1.0f;
    }
    // The way back goes to the place of start-up: centred by the logical size, the client area one pixel smaller.
    int x = 0, y = 0;
    CentredPosition(screenWidth, screenHeight, KRGetWindowWidth(), KRGetWindowHeight(), &x, &y);
    gKRPlatform->SetFullScreen(on ? 1 : 0, screenWidth, screenHeight, x, y, KRGetWindowWidth() - 1,
                               KRGetWindowHeight() - 1);
}

void* KRSysGetWindowHandle()
{
    return gKRWindowHandle;
}

void KRSysSetWindowTitle(const char* title)
{
    gKRPlatform->SetWindowTitle(title);
}

int32_t KRSysDoesWindowExist()
{
    return gKRWindowExists;
}
