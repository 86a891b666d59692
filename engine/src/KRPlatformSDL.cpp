// KRPlatformSDL.cpp -- the real back-end: one SDL2 window with an OpenGL context, polled keyboard and mouse,
// SDL's performance counter.
//
// Owns:    the SDL window and GL context, the cursor visibility.
// Read by: the engine through gKRPlatformSDL; the scripted back-end borrows its window and context functions.
//
// Only this back-end includes <SDL.h>.
#include "KRPlatform.h"
#include "KRPlatformSDLKeys.h"

#include <GL/glx.h>
#include <SDL.h>
#include <cstring>

static SDL_Window* sWindow = nullptr;
static SDL_GLContext sContext = nullptr;

// The video subsystem on the X server that DISPLAY names. The OpenGL entry points come through GLX, so the window
// lives on an X server (a Wayland desktop offers one too); SDL_VIDEODRIVER in the environment still decides when
// it is set. One try: a server that refuses is reported, not tried again.
static int SDLStartVideo()
{
    if (SDL_WasInit(SDL_INIT_VIDEO))
        return 1;
    SDL_SetHintWithPriority(SDL_HINT_VIDEODRIVER, "x11", SDL_HINT_DEFAULT);
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) == 0)
        return 1;
    // SDL's reason, with the display it was asked for, which its words leave out.
    char reason[512];
    SDL_strlcpy(reason, SDL_GetError(), sizeof reason);
    const char* display = SDL_getenv("DISPLAY");
    if (display && *display)
        SDL_SetError("%s (DISPLAY is %s)", reason, display);
    else
        SDL_SetError("%s (DISPLAY is not set)", reason);
    return 0;
}

static int SDLCreateWindow(const char* title, int x, int y, int clientWidth, int clientHeight)
{
    if (!SDLStartVideo())
        return 0;
    // One window per process; a second start-up (tests run several in one process) replaces the first.
    if (sWindow)
        SDL_DestroyWindow(sWindow);

    // A full-screen look is a borderless window, so losing the focus must not minimise it.
    SDL_SetHint(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0");

    SDL_GL_SetAttribute(SDL_GL_DOUBLEBUFFER, 1);
    SDL_GL_SetAttribute(SDL_GL_RED_SIZE, 8);
    SDL_GL_SetAttribute(SDL_GL_GREEN_SIZE, 8);
    SDL_GL_SetAttribute(SDL_GL_BLUE_SIZE, 8);
    SDL_GL_SetAttribute(SDL_GL_ALPHA_SIZE, 8);
    SDL_GL_SetAttribute(SDL_GL_DEPTH_SIZE, 24);
    SDL_GL_SetAttribute(SDL_GL_STENCIL_SIZE, 8);

    // Not resizable and without a maximise button: the window never resizes by user action.
    sWindow = SDL_CreateWindow(title, x, y, clientWidth, clientHeight, SDL_WINDOW_OPENGL | SDL_WINDOW_SHOWN);
    return sWindow != nullptr;
}

static void SDLSetWindowTitle(const char* title)
{
    if (sWindow)
        SDL_SetWindowTitle(sWindow, title);
}

static void SDLGetScreenSize(int* pWidth, int* pHeight)
{
    // The window is placed by the screen's size, so the screen is reached before the window exists.
    SDL_DisplayMode mode;
    if (!SDLStartVideo())
    {
        *pWidth = 0;
        *pHeight = 0;
        return;
    }
    int display = sWindow ? SDL_GetWindowDisplayIndex(sWindow) : 0;
    if (display < 0 || SDL_GetDesktopDisplayMode(display, &mode) != 0)
    {
        *pWidth = 0;
        *pHeight = 0;
        return;
    }
    *pWidth = mode.w;
    *pHeight = mode.h;
}

static void SDLSetFullScreen(int on, int screenWidth, int screenHeight, int x, int y, int clientWidth,
                             int clientHeight)
{
    if (!sWindow)
        return;
    if (on)
    {
        // No display-mode change: a borderless, topmost window the size of the desktop.
        SDL_SetWindowBordered(sWindow, SDL_FALSE);
        SDL_SetWindowAlwaysOnTop(sWindow, SDL_TRUE);
        SDL_SetWindowSize(sWindow, screenWidth, screenHeight);
        SDL_SetWindowPosition(sWindow, 0, 0);
        // A window manager takes the border away in its own time and may place the window by its old frame;
        // it is put at the corner again until it stays there.
        for (int check = 0; check < 10; ++check)
        {
            SDL_Delay(10);
            SDL_PumpEvents();
            int x = 0, y = 0;
            SDL_GetWindowPosition(sWindow, &x, &y);
            if (x == 0 && y == 0)
                break;
            SDL_SetWindowPosition(sWindow, 0, 0);
        }
    }
    else
    {
        // The way back keeps the topmost attribute, as the full-screen switch always has.
        SDL_SetWindowBordered(sWindow, SDL_TRUE);
        SDL_SetWindowSize(sWindow, clientWidth, clientHeight);
        SDL_SetWindowPosition(sWindow, x, y);
    }
}

static void SDLGetClientSize(int* pWidth, int* pHeight)
{
    *pWidth = 0;
    *pHeight = 0;
    if (sWindow)
        SDL_GetWindowSize(sWindow, pWidth, pHeight);
}

static void* SDLGetWindowHandle()
{
    return sWindow;
}

static void SDLPumpEvents(KRWindowProc proc)
{
    SDL_Event event;
    while (SDL_PollEvent(&event))
    {
        if (event.type == SDL_QUIT)
        {
            // An interrupt from the terminal ends the run as closing the window does.
            proc(KR_WM_DESTROY, 0);
            continue;
        }
        if (event.type != SDL_WINDOWEVENT)
            continue;
        switch (event.window.event)
        {
        case SDL_WINDOWEVENT_CLOSE: proc(KR_WM_DESTROY, 0); break;
        case SDL_WINDOWEVENT_MOVED: proc(KR_WM_MOVE, 0); break;
        case SDL_WINDOWEVENT_FOCUS_GAINED: proc(KR_WM_ACTIVATE, 1); break;
        case SDL_WINDOWEVENT_FOCUS_LOST: proc(KR_WM_ACTIVATE, 0); break;
        case SDL_WINDOWEVENT_EXPOSED: proc(KR_WM_PAINT, 0); break;
        default: break;
        }
    }
}

static void SDLDestroyWindow()
{
    if (sWindow)
        SDL_DestroyWindow(sWindow);
    sWindow = nullptr;
}

static int SDLCreateGLContext()
{
    if (!sWindow)
        return 0;
    sContext = SDL_GL_CreateContext(sWindow);
    if (!sContext)
        return 0;
    if (SDL_GL_MakeCurrent(sWindow, sContext) != 0)
        return 0;
    // The OpenGL entry points are loaded for GLX: a context of another kind (EGL) cannot be drawn with.
    if (glXGetCurrentContext() == nullptr)
    {
        SDL_SetError("the OpenGL context is not a GLX context, and the game loads OpenGL through GLX");
        return 0;
    }
    // The frame rate controller paces the frames; the swap must not wait for the display as well.
    SDL_GL_SetSwapInterval(0);
    return 1;
}

static void SDLDeleteGLContext()
{
    if (sContext)
        SDL_GL_DeleteContext(sContext);
    sContext = nullptr;
}

static void SDLPresent()
{
    if (sWindow)
        SDL_GL_SwapWindow(sWindow);
}

static void SDLGetKeyboardState(unsigned char keys[256])
{
    std::memset(keys, 0, 256);

    int count = 0;
    const Uint8* state = SDL_GetKeyboardState(&count);
    for (int scancode = 0; scancode < count; ++scancode)
    {
        if (!state[scancode])
            continue;
        int key = KRPlatformSDLKeyFromScancode(scancode);
        if (key > 0 && key < 256)
            keys[key] = 0x80;
    }
    KRPlatformSetGenericModifiers(keys);

    // Toggle keys carry their state in the low bit, which no key test looks at.
    SDL_Keymod mod = SDL_GetModState();
    if (mod & KMOD_CAPS) keys[0x14] |= 0x01;
    if (mod & KMOD_NUM) keys[0x90] |= 0x01;

    Uint32 buttons = SDL_GetMouseState(nullptr, nullptr);
    if (buttons & SDL_BUTTON(SDL_BUTTON_LEFT)) keys[0x01] = 0x80;
    if (buttons & SDL_BUTTON(SDL_BUTTON_RIGHT)) keys[0x02] = 0x80;
    if (buttons & SDL_BUTTON(SDL_BUTTON_MIDDLE)) keys[0x04] = 0x80;
    if (buttons & SDL_BUTTON(SDL_BUTTON_X1)) keys[0x05] = 0x80;
    if (buttons & SDL_BUTTON(SDL_BUTTON_X2)) keys[0x06] = 0x80;
}

static void SDLGetCursorPos(int* pX, int* pY)
{
    // The screen position less the client origin, so that a cursor outside the window reads outside too.
    int screenX = 0, screenY = 0, windowX = 0, windowY = 0;
    SDL_GetGlobalMouseState(&screenX, &screenY);
    if (sWindow)
        SDL_GetWindowPosition(sWindow, &windowX, &windowY);
    *pX = screenX - windowX;
    *pY = screenY - windowY;
}

static void SDLSetCursorVisible(int visible)
{
    SDL_ShowCursor(visible ? SDL_ENABLE : SDL_DISABLE);
}

static uint64_t SDLGetCounter()
{
    return SDL_GetPerformanceCounter();
}

static uint64_t SDLGetFrequency()
{
    return SDL_GetPerformanceFrequency();
}

static void SDLWait(double seconds)
{
    // Sleep while more than about 2 ms remain; the caller spins on the counter for the rest.
    if (seconds > 0.002)
        SDL_Delay((Uint32)((seconds - 0.002) * 1000.0));
}

static const char* SDLGetLastError()
{
    return SDL_GetError();
}

const KRPlatform gKRPlatformSDL = {
    "sdl",
    SDLCreateWindow,
    SDLSetWindowTitle,
    SDLGetScreenSize,
    SDLSetFullScreen,
    SDLGetClientSize,
    SDLGetWindowHandle,
    SDLPumpEvents,
    SDLDestroyWindow,
    SDLCreateGLContext,
    SDLDeleteGLContext,
    SDLPresent,
    SDLGetKeyboardState,
    SDLGetCursorPos,
    SDLSetCursorVisible,
    SDLGetCounter,
    SDLGetFrequency,
    SDLWait,
    SDLGetLastError,
};

