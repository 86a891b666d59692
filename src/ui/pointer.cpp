// pointer.cpp -- the pointer pattern shared by the button screens: the cursor instance, the hit test and alphas
// of buttons, clicks, and the two ways of telling whether the mouse has the say.
#include "pointer.h"

#include "KRGraphics.h"
#include "KRInput.h"
#include "collision_rect.h"
#include "gameloop.h"

KRVec2 PointerWorldPosition(s32 x, s32 y)
{
    KRVec2 pos;
    pos.x = KRGfxGetWinMinX() + (f32)x + 10.0f;
    pos.y = KRGfxGetWinMaxY() - (f32)y - 47.0f;
    return pos;
}

void PointerPlace(GameObjInst* pCursor)
{
    s32 x = 0, y = 0;
    KRInputGetCursorPosition(&x, &y);
    pCursor->posCurr = PointerWorldPosition(x, y);
}

u8 PointerOver(const GameObjInst* pCursor, const GameObjInst* pButton)
{
    return CollisionIntersection_RectRect(&pCursor->boundingBox, &pCursor->velCurr, &pButton->boundingBox,
                                          &pButton->velCurr)
               ? 1
               : 0;
}

f32 PointerAlpha(u8 over, f32 dim)
{
    return over ? 1.0f : dim;
}

u8 PointerClicked()
{
    return KRInputCheckTriggered(1) ? 1 : 0;
}

u8 PointerReleased()
{
    return KRInputCheckReleased(1) ? 1 : 0;
}

u8 PointerMoved(s32* pLastX, s32* pLastY)
{
    s32 x = 0, y = 0;
    KRInputGetCursorPosition(&x, &y);
    if (x == *pLastX && y == *pLastY)
        return 0;
    *pLastX = x;
    *pLastY = y;
    return 1;
}

void PointerIdleUpdate(PointerIdle* pIdle)
{
    if (PointerMoved(&pIdle->lastX, &pIdle->lastY))
    {
        pIdle->sMouseActive = 1;
        pIdle->sMouseIdleTime = 0.0f;
    }
    else if (pIdle->sMouseActive)
    {
        pIdle->sMouseIdleTime += gFrameDelta;
        if (pIdle->sMouseIdleTime > 1.0f)
        {
            pIdle->sMouseIdleTime = 0.0f;
            pIdle->sMouseActive = 0;
        }
    }
}
