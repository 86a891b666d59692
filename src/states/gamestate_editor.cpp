// gamestate_editor.cpp -- the level editor as a game state: its life cycle, the order of a frame, the fades and
// what it tells a tester.
//
// Owns:    gEditor, gEditorHistory, gEditorPool, camera_scale.
// Fed by:  the mouse and keyboard (KRInput); the user level file through LOAD.
// The rules of each concern stand in src/states/editor (see editor_internal.h for the map).
#include "gamestate_editor.h"

#include "KRFrameRateController.h"
#include "KRGraphics.h"
#include "KRInput.h"
#include "editor_internal.h"
#include "gameobjdraw.h"
#include "gameobjmesh.h"
#include "gamestatemgr.h"
#include "stateprobe.h"
#include "userlevel.h"

EditorVars gEditor;
EditorHistory gEditorHistory;
GameObjPool gEditorPool;
f32 camera_scale = 1.0f;

namespace {

const unsigned char KEY_LBUTTON = 1;
const unsigned char KEY_RBUTTON = 2;
const unsigned char KEY_LCONTROL = 162;
const unsigned char KEY_Z = 'Z';

void Probe(std::string* pOut)
{
    u32 heldKind = 0;
    long placed = 0;
    for (const GameObjInst& inst : gEditorPool.sGameObjInstList)
    {
        if (!(inst.flag & FLAG_ACTIVE) || inst.isInterface)
            continue;
        if (inst.isHeld && heldKind == 0)
            heldKind = inst.pObject->type;
        if (!inst.isHeld && inst.pObject->type != TYPE_HAND)
            ++placed;
    }
    ProbeInt(pOut, "held", heldKind);
    ProbeInt(pOut, "placed", placed);
    ProbeInt(pOut, "sUndoCount", gEditorHistory.sUndoCount);
    ProbeText(pOut, "gUserLevelName", gUserLevelName);
    ProbeText(pOut, "message", gEditor.sMessage.c_str());
    ProbeInt(pOut, "sEditorTesting", gEditor.sEditorTesting);
}

void CursorFollowsPointer()
{
    KRInputGetCursorPosition(&gEditor.Pos_x, &gEditor.Pos_y);
    if (gEditor.pCursorInst)
    {
        gEditor.pCursorInst->posCurr.x = KRGfxGetWinMinX() + (f32)gEditor.Pos_x;
        gEditor.pCursorInst->posCurr.y = KRGfxGetWinMaxY() - (f32)gEditor.Pos_y;
    }
}

} // namespace

GameObjInst* EditorCreate(u32 type, f32 scale, const KRVec2* pPos, u8 held, u8 ui, const KRVec2* pAux, f32 texU,
                          f32 texV)
{
    KRVec2 zero = {0.0f, 0.0f};
    return gameObjInstCreate(&gEditorPool, type, scale, pPos, &zero, 0.0f, pAux ? pAux : &zero, held, ui, texU,
                             texV);
}

void EditorFadeIn(f32* pAlpha, u32* pState)
{
    if (*pAlpha > 0.0f && *pState == 0)
    {
        *pAlpha -= 0.01f;
        if (*pAlpha <= 0.0f)
        {
            *pAlpha = 0.0f;
            *pState = 1;
        }
    }
}

void EditorFadeOut(f32* pAlpha, u32* pState)
{
    if (*pAlpha < 1.0f && *pState == 2)
    {
        *pAlpha += 0.01f;
        if (*pAlpha >= 1.0f)
        {
            gGameStateNext = GS_LS;
            *pState = 0;
        }
    }
}

void GameStateEditorLoad()
{
    GameObjPoolReset(&gEditorPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    // The history is emptied with its count: every record then names a slot of this visit's pool, so undo never
    // reads a record left from an earlier visit.
    EditorUndoClear(&gEditorHistory);
    gEditor.pHandInst = nullptr;
    gEditor.pDarknessInst = nullptr;
    // A visit left while something was held or the box was up would otherwise refuse every pick on the next.
    gEditor.sHolding = 0;
    gEditor.sConfirmSave = 0;

    EditorRegisterKinds();
    EditorTexturesLoad();

    gEditor.sFrameTime = KRFrameRateControllerGetFrameTime();
    KRGfxSetCamPosition(0.0f, 0.0f);
    KRGfxGetCamPosition(&gEditor.sEditCameraX, &gEditor.sEditCameraY);
    KRInputShowCursor(0);
    KRGfxSetBackgroundColor(0.0f, 0.0f, 0.0f);

    GameStatePoolSet(&gEditorPool);
    GameStateProbeSet(Probe);
}

void GameStateEditorInit()
{
    EditorScreenCreate();
    gUserLevelName[0] = '\0';
    gEditor.sName.pPool = &gEditorPool;
    gEditor.sName.sNameLength = 0;
    // The caret of an earlier visit stood in a slot that Free released.
    gEditor.sName.sCaret = nullptr;
    gEditor.sCaretShown = 0;
    gEditor.sNameFocus = 0;
    gEditor.pCharacterInst = nullptr;
    gEditor.sCharacterPlaced = 0;
    gEditor.sFadeAlpha = 1.0f;
    gEditor.sFadeState = 0;
    gEditor.sMessage.clear();
}

void GameStateEditorUpdate()
{
    CursorFollowsPointer();
    if (gEditor.sFadeState == 0)
        EditorFadeIn(&gEditor.sFadeAlpha, &gEditor.sFadeState);
    else if (gEditor.sFadeState == 2)
        EditorFadeOut(&gEditor.sFadeAlpha, &gEditor.sFadeState);

    if (gEditor.sEditorTesting)
    {
        EditorTestPlayFrame();
        return;
    }

    KRGfxGetCamPosition(&gEditor.sEditCameraX, &gEditor.sEditCameraY);
    EditorPan();

    gEditor.sDroppedNow = 0;
    gEditor.sMayDrop = 1;
    KRInputGetCursorPosition(&gEditor.Pos_x, &gEditor.Pos_y);
    KRGfxSetCamPosition(gEditor.sEditCameraX, gEditor.sEditCameraY);

    EditorNameStep();
    EditorBoxes();
    if (KRInputCheckReleased(KEY_LBUTTON))
        EditorLeftClick();
    if (KRInputCheckReleased(KEY_RBUTTON))
        EditorRightClick();
    EditorConfirmStep();
    // Undo answers the release of Z with the left Control down; the right Control does nothing.
    if (KRInputCheckCurr(KEY_LCONTROL) && KRInputCheckReleased(KEY_Z))
        EditorUndoStep(&gEditorHistory, &gEditorPool);
    EditorTransforms();
}

void GameStateEditorDraw()
{
    EditorDraw();
}

void GameStateEditorFree()
{
    GameObjPoolDestroyAll(&gEditorPool);
}

void GameStateEditorUnload()
{
    GameObjPoolReleaseMeshes(&gEditorPool);
    EditorTexturesUnload();
    GameStatePoolSet(nullptr);
    GameStateProbeSet(nullptr);
}
