// gamestatetable.cpp -- the state table: which module's six functions run for each state number.
//
// A state that is not built yet runs the blank state: it draws nothing and leaves the game on Escape. Its row is
// replaced by the module's own functions when the module lands.
#include "gamestatemgr.h"

#include "KRInput.h"
#include "credits.h"
#include "gamestate_editor.h"
#include "gamestate_ls.h"
#include "gamestate_menu.h"
#include "level_states.h"
#include "varnholt.h"

static void BlankNothing()
{
}

static void BlankUpdate()
{
    if (KRInputCheckTriggered(27))
        gGameStateNext = GS_QUIT;
}

static const GameStateFuncs kBlankState = {BlankNothing, BlankNothing, BlankUpdate,
                                           BlankNothing, BlankNothing, BlankNothing};

GameStateFuncs gGameStateTable[GS_STATE_NUM] = {
    {GameStateEditorLoad, GameStateEditorInit, GameStateEditorUpdate, GameStateEditorDraw, GameStateEditorFree,
     GameStateEditorUnload}, // GS_EDITOR
    LEVEL_STATE_ROW(0), // GS_LEVEL_0
    LEVEL_STATE_ROW(1), // GS_LEVEL_1
    LEVEL_STATE_ROW(2), // GS_LEVEL_2
    LEVEL_STATE_ROW(3), // GS_LEVEL_3
    LEVEL_STATE_ROW(4), // GS_LEVEL_4
    LEVEL_STATE_ROW(5), // GS_LEVEL_5
    LEVEL_STATE_ROW(User), // GS_LEVEL_USER
    {GameStateMenuLoad, GameStateMenuInit, GameStateMenuUpdate, GameStateMenuDraw, GameStateMenuFree,
     GameStateMenuUnload}, // GS_MENU
    {GameStateLSLoad, GameStateLSInit, GameStateLSUpdate, GameStateLSDraw, GameStateLSFree,
     GameStateLSUnload}, // GS_LS
    {VarnholtLoad, VarnholtInit, VarnholtUpdate, VarnholtDraw, VarnholtFree, VarnholtUnload}, // GS_SPLASH
    {CreditsLoad, CreditsInit, CreditsUpdate, CreditsDraw, CreditsFree, CreditsUnload}, // GS_CREDITS
};
