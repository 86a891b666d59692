// pointer.h -- the pointer pattern of the game's button screens: the main menu, the level selection and the
// level's pause menu.
//
// The system cursor is hidden (KRInputShowCursor(0) in the screen's Init) and a TYPE_CURSOR instance of scale 35
// stands in for it. Each frame the screen
//
//     PointerPlace(pCursor);                          // the instance goes to the pointer
//     ... rebuilds its boxes, the cursor's by its own box rule ...
//     u8 over = PointerOver(pCursor, pButton);         // the hit test of the whole game
//     alpha   = PointerAlpha(over, 0.5f);             // 1 when hot, else the screen's dim alpha
//     if (over && PointerClicked()) ...;              // a click is a press, tested in the frame of the hit test
//
// Who has the say, mouse or keyboard, is each screen's own: the main menu decides by time (PointerIdle below:
// a second without movement hands over to the keyboard), the level selection by event (PointerMoved clears its
// keyboard flag), the pause menu lets a hovering cursor override the keys every frame.
#pragma once

#include "KRTypes.h"
#include "gameobj.h"

// Where the cursor instance stands for a pointer at window pixels (x, y), y downward:
// (KRGfxGetWinMinX() + x + 10, KRGfxGetWinMaxY() - y - 47).
KRVec2 PointerWorldPosition(s32 x, s32 y);

// Reads the pointer and moves the cursor instance there.
void PointerPlace(GameObjInst* pCursor);

// Whether the button is under the cursor: CollisionIntersection_RectRect of the cursor's box and velocity
// against the button's. The screens test before they rebuild the boxes of the frame, so the boxes are the last
// frame's; build them once in Init too, for two zero boxes of a cleared pool meet each other.
u8 PointerOver(const GameObjInst* pCursor, const GameObjInst* pButton);

// The picture alpha of a button: 1 when under the cursor, else dim (0.5 on most screens, 0.3 for some).
f32 PointerAlpha(u8 over, f32 dim);

// A click: the left button pressed in this frame (KRInputCheckTriggered(1)).
u8 PointerClicked();

// The left button let go in this frame (KRInputCheckReleased(1)); the attribute buttons act on it.
u8 PointerReleased();

// Compares the pointer with the last position stored in *pLastX, *pLastY; when it moved, stores it and returns 1.
u8 PointerMoved(s32* pLastX, s32* pLastY);

// The main menu's decision by time: any movement makes the mouse active, one second without movement hands
// back to the keyboard.
struct PointerIdle
{
    s32 lastX;
    s32 lastY;
    u8 sMouseActive;      // the mouse moved in the last second
    f32 sMouseIdleTime;   // seconds since it last moved
};

// One frame of it: moved -> store, active, idle 0; else while active add gFrameDelta, and above 1.0 zero the
// time and clear the activity.
void PointerIdleUpdate(PointerIdle* pIdle);
