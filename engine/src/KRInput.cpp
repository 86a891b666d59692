// KRInput.cpp -- the keyboard and cursor as two snapshots: this update's and the one before.
//
// Owns:    gKRInputKeyCurr, gKRInputKeyPrev, the cursor and its delta, the cursor's show count.
// Fed by:  the platform back-end, once per KRInputUpdate.
// Read by: every state, through KRInputCheck* and KRInputGetCursor*.
//
// Polled, never event driven: edges exist only between two updates, so an extra update inside a frame uses up
// that frame's edges.
#include "KRInput.h"

#include "KRPlatform.h"
#include "KRSystem.h"

#include <cstring>

unsigned char gKRInputKeyCurr[256];
unsigned char gKRInputKeyPrev[256];
int32_t gKRInputMouseX = 0;
int32_t gKRInputMouseY = 0;
int32_t gKRInputMouseDX = 0;
int32_t gKRInputMouseDY = 0;

static int32_t sCursorShowCount = 0;

int32_t KRInputInit()
{
    return 1;
}

void KRInputReset()
{
    std::memset(gKRInputKeyCurr, 0, sizeof(gKRInputKeyCurr));
    std::memset(gKRInputKeyPrev, 0, sizeof(gKRInputKeyPrev));
    gKRInputMouseX = 0;
    gKRInputMouseY = 0;
    gKRInputMouseDX = 0;
    gKRInputMouseDY = 0;
}

void KRInputUpdate()
{
    std::memcpy(gKRInputKeyPrev, gKRInputKeyCurr, sizeof(gKRInputKeyCurr));
    gKRPlatform->GetKeyboardState(gKRInputKeyCurr);

    int32_t x = 0, y = 0;
    gKRPlatform->GetCursorPos(&x, &y);
    // After a reset the stored position is zero, so the first delta is the absolute position.
    gKRInputMouseDX = x - gKRInputMouseX;
    gKRInputMouseDY = y - gKRInputMouseY;
    gKRInputMouseX = x;
    gKRInputMouseY = y;
}

void KRInputExit()
{
}

unsigned char KRInputCheckCurr(unsigned char key)
{
    return (gKRInputKeyCurr[key] & 0x80) ? 1 : 0;
}

unsigned char KRInputCheckPrev(unsigned char key)
{
    return (gKRInputKeyPrev[key] & 0x80) ? 1 : 0;
}

unsigned char KRInputCheckTriggered(unsigned char key)
{
    return ((gKRInputKeyCurr[key] & 0x80) && !(gKRInputKeyPrev[key] & 0x80)) ? 1 : 0;
}

unsigned char KRInputCheckReleased(unsigned char key)
{
    return (!(gKRInputKeyCurr[key] & 0x80) && (gKRInputKeyPrev[key] & 0x80)) ? 1 : 0;
}

void KRInputGetCursorPosition(int32_t* pX, int32_t* pY)
{
    *pX = (int32_t)((float)gKRInputMouseX / gKRWinScaleX);
    *pY = (int32_t)((float)gKRInputMouseY / gKRWinScaleY);
}

void KRInputGetCursorPositionDelta(int32_t* pDX, int32_t* pDY)
{
    *pDX = (int32_t)((float)gKRInputMouseDX / gKRWinScaleX);
    // The vertical delta is divided by the horizontal scale too; callers rely on it.
    *pDY = (int32_t)((float)gKRInputMouseDY / gKRWinScaleX);
}

int32_t KRInputShowCursor(int32_t show)
{
    sCursorShowCount += show ? 1 : -1;
    gKRPlatform->SetCursorVisible(sCursorShowCount >= 0);
    return sCursorShowCount;
}
