// editor_place.cpp -- the editing face of a frame: panning, boxes, the left click (placing and snapping what is
// held, picking a held copy, the buttons), the right click, CLEAR and the transforms.
//
// Owns:    the rules of placing, picking and deleting.
// Changes: gEditor, the editor's pool, the undo history.
// Used by: the editor's Update while no test play runs.
#include "editor_internal.h"

#include "KRGraphics.h"
#include "KRInput.h"
#include "collision_rect.h"
#include "gameobjdraw.h"
#include "gamestatelist.h"

namespace {

const f32 PAN_STEP = 4.0f;

// The cursor and all that it holds stand 35 units under the pointer, and every hit test uses that place.
const f32 CURSOR_DROP = 35.0f;

GameObjInst* Slot(u32 i)
{
    return &gEditorPool.sGameObjInstList[i];
}

bool Live(const GameObjInst* pInst)
{
    return pInst && (pInst->flag & FLAG_ACTIVE);
}

u32 KindOf(const GameObjInst* pInst)
{
    return pInst->pObject->type;
}

void Shift(GameObjInst* pInst, f32 dx, f32 dy)
{
    if (!pInst)
        return;
    pInst->posCurr.x += dx;
    pInst->posCurr.y += dy;
}

// The camera and the furniture move together, so only the world seems to move.
void PanBy(f32 dx, f32 dy)
{
    gEditor.sEditCameraX += dx;
    gEditor.sEditCameraY += dy;
    for (GameObjInst* pInst : gEditor.pFurniture)
        Shift(pInst, dx, dy);
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; ++i)
    {
        GameObjInst* pInst = Slot(i);
        if (!Live(pInst))
            continue;
        u32 kind = KindOf(pInst);
        if (kind == TYPE_NAME_GLYPH || kind == TYPE_SPARE_GLYPH || kind == TYPE_TEXT_GLYPH || kind == TYPE_CARET)
            Shift(pInst, dx, dy);
    }
}

void BoxOf(GameObjInst* pInst)
{
    f32 x = pInst->posCurr.x;
    f32 y = pInst->posCurr.y;
    GameObjBox& b = pInst->boundingBox;
    u32 kind = KindOf(pInst);
    f32 halfW = pInst->scale * 0.5f;
    f32 halfH = pInst->scale * 0.5f;
    f32 bottom = y - halfH;
    f32 top = y + halfH;

    if (kind == TYPE_SPIKE_UP)
        halfW = 5.5f, bottom = y - 11.5f, top = y;
    else if (kind == TYPE_SPIKE_DOWN)
        // Its top is first y + 11.5 and then y again: a box of no height, kept.
        halfW = 5.5f, bottom = y, top = y;
    else if (kind == TYPE_SPIKE_ROW_UP)
        halfW = 5.5f * 11.0f, bottom = y - 11.5f, top = y;
    else if (kind == TYPE_SPIKE_ROW_DOWN)
        halfW = 5.5f * 11.0f, bottom = y, top = y + 11.5f;
    else if (kind == TYPE_PLATFORM)
        halfW = 50.0f, bottom = y - 10.0f, top = y + 10.0f;
    else if (kind == TYPE_NAME_FIELD)
        halfW = 100.0f, bottom = y - 10.0f, top = y + 10.0f;
    else if (kind == TYPE_PLATFORM_LONG)
        halfW = 75.0f, bottom = y - 10.0f, top = y + 10.0f;
    else if (kind == TYPE_WALL)
        halfW = 10.0f, bottom = y - 50.0f, top = y + 50.0f;
    else if (kind == TYPE_YES_BTN || kind == TYPE_NO_BTN)
        // The box of the mesh at scale 1, though they are drawn at 0.5: they answer on twice their picture.
        halfW = 65.0f, bottom = y - 25.0f, top = y + 25.0f;

    b.minX = x - halfW;
    b.maxX = x + halfW;
    b.minY = bottom;
    b.maxY = top;
}

bool MayBePicked(u32 kind)
{
    // Message glyphs (38), the darkness and the ornament are not in this list: a click on them takes a copy.
    static const u32 sNotPicked[] = {TYPE_CURSOR, TYPE_SAVE_BTN, TYPE_LOAD_BTN, TYPE_CLEAR_BTN, TYPE_PLAY_BTN,
                                     TYPE_BACKGROUND, TYPE_EDITOR_EXIT_BTN, TYPE_TOOLBAR, TYPE_NAME_FIELD,
                                     TYPE_NAME_GLYPH, TYPE_SPARE_GLYPH, TYPE_CARET, TYPE_PAUSE_DIM, TYPE_HAND,
                                     TYPE_INVERT_UP, TYPE_INVERT_DOWN, TYPE_YES_BTN, TYPE_NO_BTN,
                                     TYPE_ARE_YOU_SURE};
    for (u32 notPicked : sNotPicked)
        if (kind == notPicked)
            return false;
    return true;
}

// The first placed object, in slot order, that the held one meets.
GameObjInst* TargetOf(const GameObjInst* pHeld)
{
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; ++i)
    {
        GameObjInst* pInst = Slot(i);
        if (!Live(pInst) || KindOf(pInst) == TYPE_CURSOR || pInst->isHeld == 1 || pInst->isInterface == 1)
            continue;
        if (EditorBoxesMeet(pHeld, pInst))
            return pInst;
    }
    return nullptr;
}

bool CursorOn(const GameObjInst* pButton)
{
    return Live(pButton) && Live(gEditor.pCursorInst) && EditorBoxesMeet(gEditor.pCursorInst, pButton);
}

void ReleaseHeld(GameObjInst* pHeld)
{
    GameObjInst* pTarget = TargetOf(pHeld);
    if (pTarget)
    {
        u32 kind = KindOf(pHeld);
        // The character, the power-up and the exit can't be put down on something: they stay held.
        if (kind == TYPE_CHARACTER || kind == TYPE_ZOOM_POWERUP || kind == TYPE_EXIT_PORTAL)
        {
            gEditor.sMayDrop = 0;
        }
        else
        {
            EditorSnap(pTarget, pHeld, &gEditorHistory);
            pHeld->isHeld = 0;
            gEditor.sMayDrop = 0;
            gEditor.sDroppedNow = 1;
            gEditor.sHolding = 0;
        }
    }

    // Over PLAY and SAVE, and only those, the click keeps the object held; the button acts on the same click.
    if (gEditor.sMayDrop == 1 && !CursorOn(gEditor.pPlayBtnInst) && !CursorOn(gEditor.pSaveBtnInst))
    {
        pHeld->isHeld = 0;
        pHeld->posCurr.x = KRGfxGetWinMinX() + (f32)gEditor.Pos_x;
        pHeld->posCurr.y = KRGfxGetWinMaxY() - (f32)gEditor.Pos_y - CURSOR_DROP;
        if (KindOf(pHeld) == TYPE_CHARACTER)
        {
            gEditor.sCharacterPlaced = 1;
            if (gEditor.pHandInst)
            {
                gEditor.pHandInst->posCurr.y -= 8.0f;
                gEditor.pHandInst->isHeld = 0;
            }
        }
        gEditor.sDroppedNow = 1;
        gEditor.sHolding = 0;
        EditorUndoPush(&gEditorHistory, EDITOR_UNDO_PLACED, pHeld);
    }
}

void PickUp()
{
    GameObjInst* pCursor = gEditor.pCursorInst;
    if (!Live(pCursor))
        return;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; ++i)
    {
        GameObjInst* pInst = Slot(i);
        if (!Live(pInst) || !MayBePicked(KindOf(pInst)) || !EditorBoxesMeet(pCursor, pInst))
            continue;
        u32 kind = KindOf(pInst);
        KRVec2 at = pCursor->posCurr;
        if (kind != TYPE_CHARACTER)
        {
            EditorCreate(kind, pInst->scale, &at, 1, 0);
            gEditor.sHolding = 1;
            return;
        }
        if (!gEditor.sCharacterPlaced)
        {
            KRVec2 aux = {0.0f, 200.1f};
            gEditor.pCharacterInst = EditorCreate(kind, pInst->scale, &at, 1, 0, &aux);
            KRVec2 handAt = {at.x, at.y - 8.0f};
            gEditor.pHandInst = EditorCreate(TYPE_HAND, 15.0f, &handAt, 1, 0, &aux);
            gEditor.sHolding = 1;
            return;
        }
        // A second character is refused in silence: the search goes on behind it.
    }
}

void Buttons()
{
    GameObjInst* pCursor = gEditor.pCursorInst;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; ++i)
    {
        GameObjInst* pInst = Slot(i);
        if (!Live(pInst) || !Live(pCursor))
            continue;
        u32 kind = KindOf(pInst);
        bool button = kind == TYPE_SAVE_BTN || kind == TYPE_LOAD_BTN || kind == TYPE_CLEAR_BTN ||
                      kind == TYPE_PLAY_BTN || kind == TYPE_EDITOR_EXIT_BTN || kind == TYPE_NAME_FIELD;
        if (!button || !EditorBoxesMeet(pInst, pCursor))
            continue;

        if (kind == TYPE_SAVE_BTN)
            EditorSaveClicked();
        else if (kind == TYPE_LOAD_BTN)
        {
            EditorClearLevel();
            EditorLoadLevel();
        }
        else if (kind == TYPE_CLEAR_BTN)
            EditorClearLevel();
        else if (kind == TYPE_PLAY_BTN)
        {
            if (Live(gEditor.pCharacterInst))
                gEditor.sEditorTesting = gEditor.sEditorTesting ? 0 : 1;
        }
        else if (kind == TYPE_EDITOR_EXIT_BTN)
            gEditor.sFadeState = 2;
        else if (kind == TYPE_NAME_FIELD)
            gEditor.sNameFocus = 1;
    }
}

} // namespace

bool EditorBoxesMeet(const GameObjInst* pA, const GameObjInst* pB)
{
    return CollisionIntersection_RectRect(&pA->boundingBox, &pA->velCurr, &pB->boundingBox, &pB->velCurr);
}

void EditorPan()
{
    const GameObjInst* pCursor = gEditor.pCursorInst;
    if (!pCursor)
        return;
    f32 x = pCursor->posCurr.x;
    f32 y = pCursor->posCurr.y;
    // Four tests on the edges of the moment, in this order, so that a corner pans both ways.
    if (y + 40.0f >= KRGfxGetWinMaxY())
        PanBy(0.0f, PAN_STEP);
    if (y - 20.0f <= KRGfxGetWinMinY())
        PanBy(0.0f, -PAN_STEP);
    if (x + 30.0f >= KRGfxGetWinMaxX())
        PanBy(PAN_STEP, 0.0f);
    if (x <= KRGfxGetWinMinX())
        PanBy(-PAN_STEP, 0.0f);
}

void EditorBoxes()
{
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; ++i)
    {
        GameObjInst* pInst = Slot(i);
        if (!Live(pInst))
            continue;
        if (pInst == gEditor.pCursorInst || KindOf(pInst) == TYPE_CURSOR || pInst->isHeld == 1)
        {
            f32 x = KRGfxGetWinMinX() + (f32)gEditor.Pos_x;
            f32 y = KRGfxGetWinMaxY() - (f32)gEditor.Pos_y - CURSOR_DROP;
            pInst->posCurr.x = x;
            pInst->posCurr.y = y;
            if (gEditor.pCursorInst)
            {
                gEditor.pCursorInst->posCurr.x = x;
                gEditor.pCursorInst->posCurr.y = y;
            }
        }
        else
        {
            pInst->posCurr.x += (f32)gEditor.sFrameTime * pInst->velCurr.x;
            pInst->posCurr.y += (f32)gEditor.sFrameTime * pInst->velCurr.y;
        }
        BoxOf(pInst);
    }
}

void EditorLeftClick()
{
    // Every left click ends name entry; the click on the field sets it again below.
    gEditor.sNameFocus = 0;

    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; ++i)
    {
        GameObjInst* pInst = Slot(i);
        if (Live(pInst) && pInst->isHeld == 1 && pInst != gEditor.pCursorInst)
            ReleaseHeld(pInst);
    }

    if (!gEditor.sDroppedNow && !gEditor.sHolding)
        PickUp();

    // All six run on every left release, so that a click on a button with nothing held always acts.
    Buttons();
}

void EditorRightClick()
{
    GameObjInst* pCursor = gEditor.pCursorInst;
    if (!Live(pCursor))
        return;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; ++i)
    {
        GameObjInst* pInst = Slot(i);
        if (!Live(pInst) || pInst->isInterface != 0 || !EditorBoxesMeet(pCursor, pInst))
            continue;

        EditorUndoPush(&gEditorHistory, EDITOR_UNDO_DELETED, pInst);
        gameObjInstDestroy(pInst);
        if (KindOf(pInst) == TYPE_CHARACTER)
        {
            gEditor.sCharacterPlaced = 0;
            if (gEditor.pHandInst)
                gameObjInstDestroy(gEditor.pHandInst);
            gEditor.pHandInst = nullptr;
            gEditor.pCharacterInst = nullptr;
        }
        gEditor.sHolding = 0;
        gEditor.sConfirmSave = 0;
        return;
    }
}

void EditorClearLevel()
{
    // The character and hand pointers and the history are left as they are: after CLEAR the character pointer
    // names a dead slot, so PLAY does nothing and SAVE no longer says the character is missing.
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; ++i)
    {
        GameObjInst* pInst = Slot(i);
        if (!Live(pInst) || pInst->isInterface != 0)
            continue;
        if (KindOf(pInst) == TYPE_CHARACTER)
            gEditor.sCharacterPlaced = 0;
        if (pInst->isHeld)
            gEditor.sHolding = 0;
        gameObjInstDestroy(pInst);
    }
}

void EditorTransforms()
{
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; ++i)
    {
        GameObjInst* pInst = Slot(i);
        if (Live(pInst))
            GameObjBuildTransform(pInst, pInst->posCurr.x, pInst->posCurr.y, pInst->dirCurr);
    }
}
