// KRSystem.h -- the process-wide things: console output, the one window, its message pump, the full-screen
// switch; starts and ends the other engine modules.
#pragma once

#include "KRPlatform.h"

#include <cstdint>

extern void* gKRInstance;            // what the entry point handed to KRSysInit
extern void* gKRWindowHandle;        // the one window
extern int32_t gKRWindowExists;      // 1 from the end of window creation until the window is destroyed
extern int32_t gKRSysAppActive;      // 1 while the window is the active one; nothing in the game reads it
extern unsigned char gKRFullScreen;  // 1 in full screen
extern float gKRWinScaleX;           // screen size / logical size in full screen, 1.0 in a window
extern float gKRWinScaleY;

// Console (its output is standard output), window, graphics, input and frame timer. A null window procedure
// means the engine's own; another one replaces it entirely. Gives 1, or 0 when graphics or input fail to start.
int32_t KRSysInit(void* instance, int32_t showCommand, int32_t width, int32_t height, int32_t createConsole,
                  uint32_t frameRateMax, KRWindowProc windowProc);
void KRSysReset();
void KRSysExit();
void KRSysFrameStart();
void KRSysFrameEnd();
void KRSysUpdate();
// Full screen is a borderless screen-sized window; no display mode changes. The name keeps its double o.
void KRToogleFullScreen(bool on);
void* KRSysGetWindowHandle();
void KRSysSetWindowTitle(const char* title);
int32_t KRSysDoesWindowExist();
