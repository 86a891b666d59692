// ls_name.cpp -- the level selection's name field: the caret that comes and goes with the focus, typing and
// backspace, through the name entry routines shared with the editor.
#include "gamestate_ls_internal.h"

#include "KRInput.h"
#include "userlevel.h"

#include <cstring>

void LSNameField()
{
    f32 fieldX = gLSNameField->posCurr.x;
    f32 fieldY = gLSNameField->posCurr.y;
    if (gLS.sNameFocus && !gLS.sCaretShown)
    {
        CaretCreate(&gLS.field, fieldX, fieldY, 100.0f, 10.0f, 0);
        gLS.sCaretShown = 1;
    }
    if (!gLS.sNameFocus && gLS.sCaretShown)
    {
        gameObjInstDestroy(gLS.field.sCaret);
        gLS.field.sCaret = nullptr;
        gLS.sCaretShown = 0;
    }
    // Typing a or d moves the selection as well: the keys are read by both.
    if (std::strlen(gUserLevelName) < (size_t)USER_LEVEL_NAME_MAX && gLS.sNameFocus && gLS.field.sCaret)
        NameEntry(&gLS.field, fieldX, fieldY);
    if (KRInputCheckTriggered(8) && gLS.sNameFocus && gLS.field.sCaret)
        NameBackspace(&gLS.field);
}
