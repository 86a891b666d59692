// gameobjshapes.h -- the meshes of the kinds as the design gives them, for states to register.
//
// A state registers the rows it needs (GameObjShapeFind), or copies a table and changes the rows it draws
// otherwise (a level's larger darkness, the boulder of the last level).
#pragma once

#include "gameobjmesh.h"

// Every kind of the play world and the level HUD, in kind order, with its usual mesh: the darkness 400 x 300,
// the moving wall 10 x 50.
extern const GameObjShape gGameObjLevelShapes[];
extern const u32 gGameObjLevelShapeNum;

// The editor's own kinds: toolbar, the five buttons, name field, glyphs and caret.
extern const GameObjShape gGameObjEditorShapes[];
extern const u32 gGameObjEditorShapeNum;

// The vertex colour of textured meshes and the colours of the untextured ones.
const u32 GAME_OBJ_WHITE = 0xFFFFFFFF;
const u32 GAME_OBJ_SPIKE_COLOUR = 0x00E6E6FA; // no alpha byte: spikes draw without blending
const u32 GAME_OBJ_BATTERY_GREEN = 0xFF00FF00;
const u32 GAME_OBJ_BLACK = 0xFF000000;

// The row of the kind in the table, or null.
const GameObjShape* GameObjShapeFind(const GameObjShape* pShapes, u32 count, u32 kind);
