// gamestate_menu_internal.h -- what the units of the main menu share: its variables and its remembered
// instances. Nothing outside the main menu includes this.
//
// gamestate_menu.cpp      the scene: kinds, pictures, instances, the frame's order, boxes, drawing, probes
// menu_character.cpp      the walking character and the torch: movement, attachments, the six stretches
// menu_options.cpp        the buttons: main buttons by mouse, Return, the Options page, the exit confirmation
#pragma once

#include "gameobj.h"
#include "playcommon.h"
#include "pointer.h"

struct MenuState
{
    f32 sMenuFade;       // alpha of the black overlay
    s32 sMenuFadeAction; // 0 fade in; 1 nothing; 2 fade out to GS_LS; 3 open the Options page; 4 out to GS_QUIT
    s32 sMenuSelection;  // the button Return acts on: 1 start, 2 options, 3 exit, 0 none

    f32 startAlpha, controlAlpha, exitAlpha;
    f32 pageAlpha, fullScreenAlpha, volumeUpAlpha, volumeDownAlpha, backAlpha;

    PointerIdle mouse; // sMouseActive, sMouseIdleTime, the last cursor position

    u8 sOptionsOpen;
    u8 sOptionsLock; // buttons are deaf for half a second
    f32 sOptionsLockTime;
    s32 sOptionsIndex; // keyboard choice on the page: 0 none, 1 full screen, 2 volume up, 3 volume down, 4 back
    u8 sMenuFullScreen; // what this screen last asked of KRToogleFullScreen
    u8 sConfirmOpen;

    // The character's flags (sOnGround, sJumping, sWallBlocked) and the collision latches. The menu keeps its
    // own record and lends it to the play routines for its collision pass: what it does must not reach a level.
    PlayCommon play;
    u8 sFacingLeft;
    f32 friction;
    f32 sTorchAngle; // degrees
};

extern MenuState gMenu;

// The instances the menu's rules reach by name.
struct MenuInstances
{
    GameObjInst* pCharacter;
    GameObjInst* pHand;
    GameObjInst* pDarkness;
    GameObjInst* pStart;
    GameObjInst* pControl;
    GameObjInst* pQuit;
    GameObjInst* pOptionPage;
    GameObjInst* pFullScreen;
    GameObjInst* pVolumeUp;
    GameObjInst* pVolumeDown;
    GameObjInst* pCredits;
    GameObjInst* pBack;
    GameObjInst* pConfirmBox;
    GameObjInst* pYes;
    GameObjInst* pNo;
    GameObjInst* pCursor;
};

extern MenuInstances gMenuInst;

// menu_character.cpp
void MenuCharacterMove();   // facing, then the movement of normal gravity with the menu's 200.1
void MenuAttachmentsFollow(); // the hand 8 below the character, the darkness on it: a frame behind
void MenuTorchUpdate();     // sTorchAngle and, when the mouse is idle, the selection by stretch
void MenuCharacterCollide(GameObjPool* pPool); // the character against the platforms and walls of the scene

// menu_options.cpp
void MenuOptionsLockTick();
void MenuMainButtonsByMouse();
void MenuReturnKey();
void MenuOptionsPage();
void MenuConfirmation();
void MenuOptionsOpen();
