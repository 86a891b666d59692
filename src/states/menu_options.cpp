// menu_options.cpp -- the main menu's buttons: the three main buttons by mouse and their reaches, Return by the
// selection, the Options page by mouse and by keyboard with its half-second lock, and the exit confirmation.
//
// The keyboard's exit skips the confirmation that the mouse goes through; that difference is kept.
#include "gamestate_menu_internal.h"

#include "KRInput.h"
#include "KRSystem.h"
#include "fmodsound.h"
#include "gamestatemgr.h"
#include "gameloop.h"

void MenuOptionsLockTick()
{
    if (!gMenu.sOptionsLock)
        return;
    gMenu.sOptionsLockTime += gFrameDelta;
    if (gMenu.sOptionsLockTime > 0.5f)
    {
        gMenu.sOptionsLock = 0;
        gMenu.sOptionsLockTime = 0.0f;
    }
}

// Opening and closing both lock the buttons for half a second. An open page shows its rows dimmed at first.
static void OptionsPageShow(u8 open)
{
    gMenu.sOptionsOpen = open;
    gMenu.pageAlpha = open ? 1.0f : 0.0f;
    f32 rows = open ? 0.5f : 0.0f;
    gMenu.fullScreenAlpha = rows;
    gMenu.volumeUpAlpha = rows;
    gMenu.volumeDownAlpha = rows;
    gMenu.backAlpha = rows;
    gMenu.sOptionsLock = 1;
}

void MenuOptionsOpen()
{
    OptionsPageShow(1);
    // The fade alpha stays: a page opened before the fade-in ended lets it finish.
    gMenu.sMenuFadeAction = 0;
}

static void OptionsClose()
{
    OptionsPageShow(0);
}

static void ToggleFullScreen()
{
    // What this screen last asked for, not the window's real state: it starts clear at each entry.
    gMenu.sMenuFullScreen = gMenu.sMenuFullScreen ? 0 : 1;
    KRToogleFullScreen(gMenu.sMenuFullScreen != 0);
}

// A main button: hot and clickable only while under the cursor, with the character in its reach and the
// buttons not locked.
static u8 MainButton(GameObjInst* pButton, u8 inReach, f32* pAlpha)
{
    u8 hot = inReach && !gMenu.sOptionsLock && PointerOver(gMenuInst.pCursor, pButton);
    *pAlpha = PointerAlpha(hot, 0.5f);
    return hot && PointerClicked();
}

void MenuMainButtonsByMouse()
{
    if (!gMenu.mouse.sMouseActive || gMenu.sOptionsOpen)
        return;
    f32 x = gMenuInst.pCharacter->posCurr.x;
    // The reaches overlap, the keyboard's stretches do not.
    if (MainButton(gMenuInst.pStart, x <= -80.0f, &gMenu.startAlpha))
        gMenu.sMenuFadeAction = 2;
    if (MainButton(gMenuInst.pControl, x > -250.0f && x <= 240.0f, &gMenu.controlAlpha))
        gMenu.sMenuFadeAction = 3;
    if (MainButton(gMenuInst.pQuit, x > 80.0f, &gMenu.exitAlpha))
        gMenu.sConfirmOpen = 1;
}

void MenuReturnKey()
{
    if (gMenu.sOptionsOpen || gMenu.sOptionsLock || !KRInputCheckTriggered(13))
        return;
    if (gMenu.sMenuSelection == 1)
        gMenu.sMenuFadeAction = 2;
    else if (gMenu.sMenuSelection == 2)
        gMenu.sMenuFadeAction = 3;
    else if (gMenu.sMenuSelection == 3)
        gMenu.sMenuFadeAction = 4; // no question asked
}

static void OptionsByMouse()
{
    GameObjInst* pCursor = gMenuInst.pCursor;
    u8 over = PointerOver(pCursor, gMenuInst.pFullScreen);
    gMenu.fullScreenAlpha = PointerAlpha(over, 0.5f);
    if (over && PointerClicked())
        ToggleFullScreen();

    over = PointerOver(pCursor, gMenuInst.pVolumeUp);
    gMenu.volumeUpAlpha = PointerAlpha(over, 0.5f);
    if (over && PointerClicked())
        MusicVolumeUp();

    over = PointerOver(pCursor, gMenuInst.pVolumeDown);
    gMenu.volumeDownAlpha = PointerAlpha(over, 0.5f);
    if (over && PointerClicked())
        MusicVolumeDown();

    over = PointerOver(pCursor, gMenuInst.pBack);
    gMenu.backAlpha = PointerAlpha(over, 0.5f);
    if (over && PointerClicked())
        OptionsClose();
}

static void OptionsByKeyboard()
{
    if (KRInputCheckTriggered('D'))
    {
        gMenu.sOptionsIndex++;
        if (gMenu.sOptionsIndex > 4)
            gMenu.sOptionsIndex = 0;
    }
    if (KRInputCheckTriggered('A'))
    {
        gMenu.sOptionsIndex--;
        if (gMenu.sOptionsIndex < 0)
            gMenu.sOptionsIndex = 4;
    }
    s32 index = gMenu.sOptionsIndex;
    gMenu.fullScreenAlpha = index == 1 ? 1.0f : 0.5f;
    gMenu.volumeUpAlpha = index == 2 ? 1.0f : 0.5f;
    gMenu.volumeDownAlpha = index == 3 ? 1.0f : 0.5f;
    gMenu.backAlpha = index == 4 ? 1.0f : 0.5f;

    if (!KRInputCheckTriggered(13))
        return;
    // The volume rows light up, but Return does nothing on them: the keyboard can't change the volume here.
    if (index == 1)
        ToggleFullScreen();
    else if (index == 4)
    {
        OptionsClose();
        gMenu.sOptionsIndex = 0;
    }
}

void MenuOptionsPage()
{
    if (!gMenu.sOptionsOpen)
        return;
    if (gMenu.mouse.sMouseActive && !gMenu.sOptionsLock)
        OptionsByMouse();
    else
        OptionsByKeyboard();

    // The credits button answers whatever the mouse and the lock are doing, and has no keyboard path.
    if (gMenu.sOptionsOpen && PointerOver(gMenuInst.pCursor, gMenuInst.pCredits) && PointerClicked())
        gGameStateNext = GS_CREDITS;
}

void MenuConfirmation()
{
    if (!gMenu.sConfirmOpen)
        return;
    // Yes and No answer on their own boxes, whether or not the mouse counts as active.
    if (PointerOver(gMenuInst.pCursor, gMenuInst.pYes) && PointerClicked())
        gGameStateNext = GS_QUIT;
    else if (PointerOver(gMenuInst.pCursor, gMenuInst.pNo) && PointerClicked())
        gMenu.sConfirmOpen = 0;
    if (KRInputCheckReleased(113))
        gMenu.sConfirmOpen = 0;
}
