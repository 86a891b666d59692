// The system module on a real window: banner, window procedure, full-screen switch, window size and title.
#include "ChildProcess.h"
#include "GameRun.h"
#include "KRGraphics.h"
#include "KRPlatformScripted.h"
#include "KRSystem.h"
#include "gameloop.h"
#include "gamestatelist.h"

#include <SDL.h>
#include <gtest/gtest.h>

namespace {

std::vector<unsigned int> sMessages;

long CustomProc(unsigned int message, long)
{
    sMessages.push_back(message);
    return 0;
}

void InitScripted(const char* script, KRWindowProc proc, int console = 1)
{
    KRPlatformUse(&gKRPlatformScripted);
    KRScriptReset();
    ASSERT_EQ(KRScriptParse(script), 1);
    ASSERT_EQ(KRSysInit(nullptr, 1, 800, 600, console, 60, proc), 1);
}

} // namespace

TEST(Window, InitPrintsTheBannerAndTheGraphicsLine)
{
    ChildResult child = RunInChild([] { InitScripted("", nullptr); });
    EXPECT_EQ(child.exitCode, 0);
    EXPECT_EQ(child.out, "Kestrel Runtime version: 3.03\n\nGraphics: OpenGL\n");
}

TEST(Window, BannerIsPrintedWithoutAConsoleToo)
{
    ChildResult child = RunInChild([] { InitScripted("", nullptr, 0); });
    EXPECT_EQ(child.exitCode, 0);
    EXPECT_EQ(child.out, "Kestrel Runtime version: 3.03\n\nGraphics: OpenGL\n");
}

TEST(Window, EnginesProcedureEndsTheWindowOnClose)
{
    InitScripted("close 0\n", nullptr);
    EXPECT_EQ(KRSysDoesWindowExist(), 1);
    KRSysUpdate();
    EXPECT_EQ(KRSysDoesWindowExist(), 0);
    KRSysExit();
}

TEST(Window, AnotherProcedureReplacesTheEnginesEntirely)
{
    sMessages.clear();
    InitScripted("close 0\n", CustomProc);
    KRSysUpdate();
    EXPECT_EQ(KRSysDoesWindowExist(), 1) << "the engine's procedure did not see the close";
    ASSERT_EQ(sMessages.size(), 2u);
    EXPECT_EQ(sMessages[0], (unsigned)KR_WM_CREATE);
    EXPECT_EQ(sMessages[1], (unsigned)KR_WM_DESTROY);
    KRSysExit();
}

TEST(Window, ActivationIsRecordedAndChangesNothingElse)
{
    InitScripted("", nullptr);
    KRScriptActivateAt(0, 0);
    KRScriptActivateAt(1, 1);
    KRSysUpdate();
    EXPECT_EQ(gKRSysAppActive, 0);
    KRSysUpdate();
    EXPECT_EQ(gKRSysAppActive, 1);
    EXPECT_EQ(KRSysDoesWindowExist(), 1);
    KRSysExit();
}

TEST(Window, WindowedClientIsOnePixelSmallerThanTheLogicalSizeAndNotResizable)
{
    InitScripted("", nullptr);
    KRToogleFullScreen(false);
    SDL_Window* window = (SDL_Window*)KRSysGetWindowHandle();
    ASSERT_NE(window, nullptr);
    int w = 0, h = 0;
    SDL_GetWindowSize(window, &w, &h);
    EXPECT_EQ(w, 799);
    EXPECT_EQ(h, 599);
    EXPECT_EQ(SDL_GetWindowFlags(window) & SDL_WINDOW_RESIZABLE, 0u);
    EXPECT_EQ(KRGetWindowWidth(), 800) << "the logical size stays";
    EXPECT_EQ(KRGetWindowHeight(), 600);
    KRSysExit();
}

TEST(Window, FullScreenCoversTheScreenWithoutBorder)
{
    InitScripted("screen 1024 768\n", nullptr);
    KRToogleFullScreen(true);
    KRSysUpdate();
    SDL_Window* window = (SDL_Window*)KRSysGetWindowHandle();
    int w = 0, h = 0;
    SDL_GetWindowSize(window, &w, &h);
    EXPECT_EQ(w, 1024);
    EXPECT_EQ(h, 768);
    EXPECT_NE(SDL_GetWindowFlags(window) & SDL_WINDOW_BORDERLESS, 0u);
    EXPECT_EQ(gKRFullScreen, 1);
    EXPECT_FLOAT_EQ(gKRWinScaleX, 1.28f);
    EXPECT_FLOAT_EQ(gKRWinScaleY, 1.28f);
    KRSysExit();
}

TEST(Window, LeavingFullScreenTwiceIsHarmless)
{
    InitScripted("", nullptr);
    KRToogleFullScreen(true);
    KRToogleFullScreen(false);
    KRToogleFullScreen(false);
    SDL_Window* window = (SDL_Window*)KRSysGetWindowHandle();
    int w = 0, h = 0;
    SDL_GetWindowSize(window, &w, &h);
    EXPECT_EQ(w, 799);
    EXPECT_EQ(h, 599);
    EXPECT_EQ(SDL_GetWindowFlags(window) & SDL_WINDOW_BORDERLESS, 0u);
    EXPECT_EQ(gKRWinScaleX, 1.0f);
    EXPECT_EQ(gKRWinScaleY, 1.0f);
    KRSysExit();
}

TEST(Window, GameStartUpTitlesTheWindowQuillonAndGoesFullScreen)
{
    StartGameScripted(GS_SPLASH, "screen 1920 1080\n");
    SDL_Window* window = (SDL_Window*)KRSysGetWindowHandle();
    EXPECT_STREQ(SDL_GetWindowTitle(window), "Quillon");
    EXPECT_EQ(gKRFullScreen, 1);
    EXPECT_FLOAT_EQ(gKRWinScaleX, 2.4f);
    EXPECT_FLOAT_EQ(gKRWinScaleY, 1.8f);
    KRSysExit();
}
