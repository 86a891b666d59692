// editor_prompts.cpp -- the text side of the editor: the name field, the one-line messages, SAVE with its
// confirmation box, and the level's save and load.
//
// Owns:    the five messages and where they stand.
// Changes: gEditor (focus, caret, the box), gUserLevelName through the name entry routines, the user level file.
// Used by: the editing face of the editor's Update; LOAD and SAVE clicks.
#include "editor_internal.h"

#include "KRGraphics.h"
#include "KRInput.h"
#include "levelfile.h"
#include "userlevel.h"

#include <cstring>

namespace {

const f32 NAME_CARET_WIDTH = 100.0f;
const f32 NAME_GLYPH_SIZE = 10.0f;

// txtpos: right of the EXIT button in the row of buttons, taken at the moment of the message.
KRVec2 MessagePosition()
{
    KRVec2 txtpos = {KRGfxGetWinMinX() + 495.0f, KRGfxGetWinMinY() + 25.0f};
    return txtpos;
}

// The reader's creation routine: a level object, and for a character also its hand at the same place. A file
// with two characters makes two of both and keeps the last.
GameObjInst* LoadCreate(u32 type, f32 scale, const KRVec2* pPos, const KRVec2* pVel, f32 dir, const KRVec2* pAux)
{
    (void)pVel;
    (void)dir;
    GameObjInst* pInst = EditorCreate(type, scale, pPos, 0, 0, pAux);
    if (type == TYPE_CHARACTER)
    {
        gEditor.pCharacterInst = pInst;
        gEditor.pHandInst = EditorCreate(TYPE_HAND, 15.0f, pPos, 0, 0, pAux);
        gEditor.sCharacterPlaced = 1;
    }
    return pInst;
}

} // namespace

void EditorMessage(const char* text)
{
    WriteText(&gEditorPool, MessagePosition(), text, NAME_GLYPH_SIZE, 0, TEXT_FONT_FULL);
    gEditor.sMessage = text;
}

void EditorNameStep()
{
    const GameObjInst* pField = gEditor.pNameFieldInst;
    if (!pField)
        return;
    f32 fieldX = pField->posCurr.x;
    f32 fieldY = pField->posCurr.y;

    if (gEditor.sNameFocus && !gEditor.sCaretShown)
    {
        CaretCreate(&gEditor.sName, fieldX, fieldY, NAME_CARET_WIDTH, NAME_GLYPH_SIZE, 0);
        gEditor.sCaretShown = 1;
    }
    else if (!gEditor.sNameFocus && gEditor.sCaretShown)
    {
        if (gEditor.sName.sCaret)
            gameObjInstDestroy(gEditor.sName.sCaret);
        gEditor.sName.sCaret = nullptr;
        gEditor.sCaretShown = 0;
    }

    if (std::strlen(gUserLevelName) < (size_t)USER_LEVEL_NAME_MAX && gEditor.sNameFocus && gEditor.sName.sCaret)
        NameEntry(&gEditor.sName, fieldX, fieldY);
    if (KRInputCheckTriggered(8) && gEditor.sNameFocus && gEditor.sName.sCaret)
        NameBackspace(&gEditor.sName);
}

void EditorSaveClicked()
{
    // The character test asks only for the pointer: after CLEAR or an undo it passes without a character.
    if (gUserLevelName[0] == '\0')
        EditorMessage("Required file name");
    else if (!gEditor.pCharacterInst)
        EditorMessage("Character is missing");
    else
        gEditor.sConfirmSave = 1;
}

void EditorConfirmStep()
{
    if (!gEditor.sConfirmSave)
        return;
    GameObjInst* pCursor = gEditor.pCursorInst;
    if (!pCursor)
        return;
    // Yes and No answer the press of the button, unlike everything else in the editor, which acts on release.
    // The box is not modal: the release of the same click goes through the left click as usual.
    if (gEditor.pYesBtnInst && EditorBoxesMeet(pCursor, gEditor.pYesBtnInst) && KRInputCheckTriggered(1))
    {
        EditorSaveLevel();
        EditorMessage("Save successful");
        gEditor.sConfirmSave = 0;
    }
    else if (gEditor.pNoBtnInst && EditorBoxesMeet(pCursor, gEditor.pNoBtnInst) && KRInputCheckTriggered(1))
    {
        gEditor.sConfirmSave = 0;
    }
}

void EditorSaveLevel()
{
    // A save into a missing folder makes the folder and writes nothing; the message says it saved either way.
    LevelFileSaveUser(&gEditorPool);
}

void EditorLoadLevel()
{
    GameObjInst* pCharacter = nullptr;
    if (LevelFileReadUser(LoadCreate, &pCharacter))
        EditorMessage("Load successful");
    else
        EditorMessage("File not found");
}
