// editor_internal.h -- what the files of the level editor share: its pool, its variables, its undo history and
// the routines one file offers the others. Nothing outside src/states/editor and gamestate_editor.cpp includes it.
//
// The editor's files, by concern:
//   gamestate_editor.cpp   the six state functions, the fades, the order of a frame, the probe
//   editor_screen.cpp      kinds, textures, the furniture of the screen and the two draw passes
//   editor_place.cpp       boxes, panning, left click (placing, picking, buttons), right click, CLEAR
//   editor_snap.cpp        the snapping tables
//   editor_undo.cpp        the undo history
//   editor_prompts.cpp     name field, messages, SAVE and its confirmation box, the file's save and load
//   editor_testplay.cpp    the level running in place on the editor's pool
#pragma once

#include "KRVec2.h"
#include "gameobj.h"
#include "levelvars.h"
#include "nameentry.h"

#include <string>

// ---- Undo history ----------------------------------------------------------------------------------------------

const u32 EDITOR_UNDO_MAX = 2048;
const u32 EDITOR_UNDO_DELETED = 0;
const u32 EDITOR_UNDO_PLACED = 1;

// A record keeps no copy of the object: undoing a delete reads the dead slot, which destroy leaves as it was.
struct EditorUndoRecord
{
    u32 op;             // EDITOR_UNDO_PLACED or EDITOR_UNDO_DELETED
    GameObjInst* pInst; // the slot concerned
};

// sUndoStore[0] is the sentinel in front of the list: it stays zero, so that undo at count 0 reads a record
// with op 0 and finds the count 0. sUndoList is sUndoStore + 1.
struct EditorHistory
{
    EditorUndoRecord sUndoStore[EDITOR_UNDO_MAX + 1];
    u32 sUndoCount;
};

// The sentinel and every record zeroed, count 0.
void EditorUndoClear(EditorHistory* pHistory);

// Appends a record. A full history (2048 records) forgets its oldest record to make room: the last 2048 steps
// stay undoable and nothing is ever written outside the list.
void EditorUndoPush(EditorHistory* pHistory, u32 op, GameObjInst* pInst);

// One undo step on the pool: the last record is taken back. A delete is undone by creating, from the record's
// slot, an instance of the slot's kind and scale at its position (held 0, interface 0); a placing by destroying
// the slot. A record that names a reused slot acts on what stands there now. Nothing at count 0.
void EditorUndoStep(EditorHistory* pHistory, GameObjPool* pPool);

// ---- Snapping --------------------------------------------------------------------------------------------------

// The direction from the target's centre to the held one's, in degrees from 0 to 360, as the snapping tables
// read it (with their slightly low pi).
f32 EditorSnapAngle(const GameObjInst* pTarget, const GameObjInst* pHeld);

// Puts the held instance flush against the target by the tables of the target's kind; every position set pushes
// one record (placed, held). A pair with no row leaves the held instance where it is.
void EditorSnap(const GameObjInst* pTarget, GameObjInst* pHeld, EditorHistory* pHistory);

// ---- The editor's variables --------------------------------------------------------------------------------------

const u32 EDITOR_FURNITURE_NUM = 21;

struct EditorVars
{
    u8 sEditorTesting;
    u8 sNameFocus;
    u8 sCaretShown;
    u8 sHolding;
    u8 sCharacterPlaced;
    u8 sConfirmSave;
    f32 sFadeAlpha;
    u32 sFadeState; // 0 fading in, 1 idle, 2 fading out to leave
    f32 sEditCameraX;
    f32 sEditCameraY;
    f64 sFrameTime; // fetched once at Load; the editing integration uses it

    // This frame's left release.
    u8 sDroppedNow;
    u8 sMayDrop;
    s32 Pos_x;
    s32 Pos_y;

    GameObjInst* pCharacterInst;
    GameObjInst* pHandInst;
    GameObjInst* pCursorInst;
    GameObjInst* pNameFieldInst;
    GameObjInst* pPlayBtnInst;
    GameObjInst* pSaveBtnInst;
    GameObjInst* pYesBtnInst;
    GameObjInst* pNoBtnInst;
    GameObjInst* pDarknessInst;
    GameObjInst* pFurniture[EDITOR_FURNITURE_NUM]; // what pans with the camera, beside glyphs and caret

    NameField sName; // sNameLength and sCaret of the name field

    // Test play: the flip's freeze, cooldown and arrows, the facing and the zoom, in the record the common
    // play routines take (sFlipFrozen, sFlipFreezeTime, sFlipCooldown, sFlipCooldownTime, sArrowSweep,
    // sArrowOffset, sFacingLeft, sZoomActive, sZoomReturning, sTorchAngle).
    LevelVars sEditPlay;

    std::string sMessage; // the last message written, for testers
};

extern EditorVars gEditor;
extern EditorHistory gEditorHistory;
extern GameObjPool gEditorPool;
extern f32 camera_scale; // the test play's zoom, 1.0 at program start, kept between tests

// The long form of create on the editor's pool.
GameObjInst* EditorCreate(u32 type, f32 scale, const KRVec2* pPos, u8 held, u8 ui, const KRVec2* pAux = nullptr,
                          f32 texU = 0.0f, f32 texV = 0.0f);

// ---- Screen (editor_screen.cpp) ----------------------------------------------------------------------------------

void EditorRegisterKinds();
void EditorTexturesLoad();
void EditorTexturesUnload();
void EditorScreenCreate();
void EditorDraw();

// ---- Placing (editor_place.cpp) --------------------------------------------------------------------------------

void EditorPan();
void EditorBoxes();
void EditorLeftClick();
void EditorRightClick();
void EditorClearLevel();
void EditorTransforms();
bool EditorBoxesMeet(const GameObjInst* pA, const GameObjInst* pB);

// ---- Prompts (editor_prompts.cpp) ------------------------------------------------------------------------------

void EditorNameStep();
void EditorSaveClicked();
void EditorConfirmStep();
void EditorMessage(const char* text);
void EditorSaveLevel();
void EditorLoadLevel();

// ---- Test play (editor_testplay.cpp) ---------------------------------------------------------------------------

void EditorTestPlayFrame();
