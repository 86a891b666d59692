// The window's place on the screen on the real SDL back-end, read from the X server as any other program sees it:
// centred at start-up, and back at that place when full screen ends. make test also runs these on screens of other
// sizes than its own 1920 by 1080.
#include "KRGraphics.h"
#include "KRSystem.h"
#include "TestEnv.h"

#include <SDL.h>
#include <SDL_syswm.h>
#include <chrono>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <thread>

namespace {

struct Geometry
{
    int x = -99999, y = -99999, width = 0, height = 0;
};

// What xwininfo says of the window: its client area's corner on the screen and its size.
Geometry ReadGeometry(unsigned long window)
{
    Geometry g;
    std::string command = "xwininfo -id " + std::to_string(window);
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe)
        return g;
    char line[256];
    while (std::fgets(line, sizeof line, pipe))
    {
        std::sscanf(line, " Absolute upper-left X: %d", &g.x);
        std::sscanf(line, " Absolute upper-left Y: %d", &g.y);
        std::sscanf(line, " Width: %d", &g.width);
        std::sscanf(line, " Height: %d", &g.height);
    }
    pclose(pipe);
    return g;
}

unsigned long XWindowOf(void* handle)
{
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    if (!SDL_GetWindowWMInfo((SDL_Window*)handle, &info) || info.subsystem != SDL_SYSWM_X11)
        return 0;
    return (unsigned long)info.info.x11.window;
}

// The X server takes the window's moves in its own time: the geometry is read again until it is the one wanted, for
// up to two seconds, and the last one read is given back.
Geometry AwaitGeometry(unsigned long window, int x, int y, int width, int height)
{
    Geometry g;
    for (int attempt = 0; attempt < 40; ++attempt)
    {
        KRSysUpdate();
        g = ReadGeometry(window);
        if (g.x == x && g.y == y && g.width == width && g.height == height)
            break;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return g;
}

void ScreenSize(int* pWidth, int* pHeight)
{
    SDL_DisplayMode mode;
    ASSERT_EQ(SDL_GetDesktopDisplayMode(0, &mode), 0) << SDL_GetError();
    *pWidth = mode.w;
    *pHeight = mode.h;
}

void ExpectAt(const Geometry& g, int x, int y, int width, int height)
{
    EXPECT_EQ(g.x, x);
    EXPECT_EQ(g.y, y);
    EXPECT_EQ(g.width, width);
    EXPECT_EQ(g.height, height);
}

} // namespace

TEST(WindowPlacement, StartUpCentresTheWindowOnTheScreen)
{
    KRPlatformUse(&gKRPlatformSDL);
    ASSERT_EQ(KRSysInit(nullptr, 1, 800, 600, 1, 60, nullptr), 1);
    int screenWidth = 0, screenHeight = 0;
    ScreenSize(&screenWidth, &screenHeight);
    unsigned long window = XWindowOf(KRSysGetWindowHandle());
    ASSERT_NE(window, 0u);

    // Centred by the logical size: (560, 240) on 1920 by 1080; the client area is one pixel smaller each way.
    int x = screenWidth / 2 - 400, y = screenHeight / 2 - 300;
    ExpectAt(AwaitGeometry(window, x, y, 799, 599), x, y, 799, 599);
    std::printf("screen %dx%d, window at %d,%d\n", screenWidth, screenHeight, x, y);
    KRSysExit();
}

TEST(WindowPlacement, LeavingFullScreenPutsTheWindowBackWhereItStarted)
{
    KRPlatformUse(&gKRPlatformSDL);
    ASSERT_EQ(KRSysInit(nullptr, 1, 800, 600, 1, 60, nullptr), 1);
    int screenWidth = 0, screenHeight = 0;
    ScreenSize(&screenWidth, &screenHeight);
    unsigned long window = XWindowOf(KRSysGetWindowHandle());
    ASSERT_NE(window, 0u);

    KRToogleFullScreen(true);
    ExpectAt(AwaitGeometry(window, 0, 0, screenWidth, screenHeight), 0, 0, screenWidth, screenHeight);

    KRToogleFullScreen(false);
    int x = screenWidth / 2 - 400, y = screenHeight / 2 - 300;
    ExpectAt(AwaitGeometry(window, x, y, 799, 599), x, y, 799, 599);
    KRSysExit();
}
