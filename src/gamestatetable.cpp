// gamestatetable.cpp -- the state table: which module's six functions run for each state number.
//
// A state that is not built yet runs the blank state: it draws nothing and leaves the game on Escape. Its row is
// replaced by the module's own functions when the module lands.
#include "gamestatemgr.h"

#include "KRInput.h"

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
    kBlankState, // GS_EDITOR
    kBlankState, // GS_LEVEL_0
    kBlankState, // GS_LEVEL_1
    kBlankState, // GS_LEVEL_2
    kBlankState, // GS_LEVEL_3
    kBlankState, // GS_LEVEL_4
    kBlankState, // GS_LEVEL_5
    kBlankState, // GS_LEVEL_USER
    kBlankState, // GS_MENU
    kBlankState, // GS_LS
    kBlankState, // GS_SPLASH
    kBlankState, // GS_CREDITS
};
