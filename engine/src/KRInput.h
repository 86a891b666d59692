// KRInput.h -- the keyboard and cursor as two snapshots: this update's and the one before.
//
// Keys are virtual-key numbers: 1 the left mouse button, 2 the right one, 13 Return, 27 Escape, 32 Space,
// 0x70 F1, letters their upper-case codes ('A' is 65). Bit 7 of a byte means down; the low bit (the toggle state
// of keys such as Caps Lock) never counts.
#pragma once

#include <cstdint>

extern unsigned char gKRInputKeyCurr[256];
extern unsigned char gKRInputKeyPrev[256];
extern int32_t gKRInputMouseX;   // client pixels of the real window, y downward
extern int32_t gKRInputMouseY;
extern int32_t gKRInputMouseDX;  // change between the last two updates
extern int32_t gKRInputMouseDY;

int32_t KRInputInit();
void KRInputReset();
void KRInputUpdate();
void KRInputExit();

unsigned char KRInputCheckCurr(unsigned char key);
unsigned char KRInputCheckPrev(unsigned char key);
unsigned char KRInputCheckTriggered(unsigned char key);
unsigned char KRInputCheckReleased(unsigned char key);

// The cursor and its movement in logical window pixels (divided by the full-screen scales).
void KRInputGetCursorPosition(int32_t* pX, int32_t* pY);
void KRInputGetCursorPositionDelta(int32_t* pDX, int32_t* pDY);

// Shows (non-zero) or hides the cursor with a counter: each hide needs its own show. Gives the new count; the
// cursor is visible while the count is 0 or more.
int32_t KRInputShowCursor(int32_t show);
