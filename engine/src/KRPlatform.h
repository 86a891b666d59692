// KRPlatform.h -- the one boundary between the Kestrel Runtime and the machine it runs on.
//
// Owns:    the back-end record (a table of plain functions) and the pointer to the one in use.
// Fed by:  KRPlatformSDL.cpp (the real game) and KRPlatformScripted.cpp (tests: input and time from a script).
// Read by: KRSystem, KRInput, KRFrameRateController and KRGraphics only. Game code never includes this.
//
// Back-ends translate; they never decide game rules. Keys are reported by the Windows virtual-key numbers the
// game speaks (65 'A', 13 Return, 0x70 F1, 1 and 2 the mouse buttons), bit 7 of a byte meaning "down".
#pragma once

#include <cstdint>

// Window messages the back-end hands to the window procedure, by their classic numbers.
enum
{
    KR_WM_CREATE   = 0x0001,
    KR_WM_DESTROY  = 0x0002,
    KR_WM_MOVE     = 0x0003,
    KR_WM_ACTIVATE = 0x0006,
    KR_WM_PAINT    = 0x000F,
};

// Called by the back-end for every window message while events are pumped. param: for KR_WM_ACTIVATE, non-zero
// when the window became the active one.
typedef long (*KRWindowProc)(unsigned int message, long param);

struct KRPlatform
{
    const char* name;

    // Window. Creates and shows the one window at (x, y) with the given client size; no resizing, no maximise.
    // 0 on failure, with the reason in GetLastError.
    int  (*CreateWindow)(const char* title, int x, int y, int clientWidth, int clientHeight);
    void (*SetWindowTitle)(const char* title);
    // The desktop's size; usable before the window exists. 0 by 0 when no screen can be reached.
    void (*GetScreenSize)(int* pWidth, int* pHeight);
    // Borderless, topmost, covering the screen (on), or bordered again at the given client size with its client
    // area's corner at (x, y) (off).
    void (*SetFullScreen)(int on, int screenWidth, int screenHeight, int x, int y, int clientWidth, int clientHeight);
    void (*GetClientSize)(int* pWidth, int* pHeight);
    void* (*GetWindowHandle)();
    // Runs pending window events without blocking, handing each message to proc.
    void (*PumpEvents)(KRWindowProc proc);
    void (*DestroyWindow)();

    // OpenGL. A 2.0-capable compatibility context on the window, double buffered, 32-bit colour, 24-bit depth,
    // 8-bit stencil; made current. 0 on failure, with the reason in GetLastError.
    int  (*CreateGLContext)();
    void (*DeleteGLContext)();
    void (*Present)();

    // Input, polled.
    void (*GetKeyboardState)(unsigned char keys[256]);
    void (*GetCursorPos)(int* pX, int* pY); // client pixels of the real window, y downward
    void (*SetCursorVisible)(int visible);

    // Time: a monotonic counter with its ticks per second, and a wait of about the given length that never
    // overshoots by more than the platform's timer slack (the caller re-reads the counter).
    uint64_t (*GetCounter)();
    uint64_t (*GetFrequency)();
    void (*Wait)(double seconds);

    // The platform library's own words for the last failure (for SDL, SDL_GetError()).
    const char* (*GetLastError)();
};

extern const KRPlatform* gKRPlatform;   // the back-end in use; the SDL one unless a test chose another
extern const KRPlatform gKRPlatformSDL;

void KRPlatformUse(const KRPlatform* pPlatform);

// Sets the generic Shift (0x10), Control (0x11) and Alt (0x12) keys down whenever the left or right one is.
void KRPlatformSetGenericModifiers(unsigned char keys[256]);
