// gameobjmesh.h -- registering kinds: the mesh of each kind, built once in a state's Load and freed in its Unload.
//
// A state describes the kinds it registers as rows of shapes (most states take their rows from the tables of
// gameobjshapes.h) and registers them in its Load:
//
//     GameObjPoolReset(&sPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
//     GameObjRegisterShapes(&sPool, sShapes, SHAPE_NUM, __FUNCTION__);
//
// and releases them in its Unload with GameObjPoolReleaseMeshes(&sPool).
#pragma once

#include "gameobj.h"

struct KRGfxVertexList;

enum GameObjForm
{
    GAME_OBJ_FORM_QUAD,           // two triangles centred on the origin, the whole picture over them
    GAME_OBJ_FORM_QUAD_NO_UV,     // the same with every texture coordinate 0
    GAME_OBJ_FORM_GLYPH,          // the same with the picture's top left cell of 26 by 3
    GAME_OBJ_FORM_BUTTON,         // x from -halfW to halfW, y from -halfH to 2 halfH: off centre on purpose
    GAME_OBJ_FORM_SPIKE_UP,       // one triangle with its apex at the top
    GAME_OBJ_FORM_SPIKE_DOWN,     // one triangle with its apex at the bottom
    GAME_OBJ_FORM_SPIKE_ROW_UP,   // eleven such triangles side by side, apexes up
    GAME_OBJ_FORM_SPIKE_ROW_DOWN, // the same, apexes down
};

// The condition texts a mesh that can't be made is reported with.
extern const char* const GAME_OBJ_CHECK;       // "pObj->pMesh", most kinds
extern const char* const GAME_OBJ_CHECK_TORCH; // "torchObj->pMesh", the darkness and the cursor
extern const char* const GAME_OBJ_CHECK_ZOOM;  // "ZoomPObj->pMesh", the zoom power-up
extern const char* const GAME_OBJ_CHECK_OBJ;   // "GameObj->pMesh"

// One kind's mesh. Half-sizes are the mesh's own extent in world units at scale 1.
struct GameObjShape
{
    u32 kind;
    GameObjForm form;
    f32 halfW;
    f32 halfH;
    u32 colour;        // vertex colour, 0xAARRGGBB; white for textured kinds
    const char* check; // null: the text that goes with the kind
};

// The condition text of a row: its own, else "torchObj->pMesh" for kinds 11 and 20, "ZoomPObj->pMesh" for 12,
// "pObj->pMesh" for the rest.
const char* GameObjShapeCheck(const GameObjShape* pShape);

// Builds the mesh of the row with KRGfxMeshStart, KRGfxTriAdd and KRGfxMeshEnd.
KRGfxVertexList* GameObjMeshBuild(const GameObjShape* pShape);

// Stores the mesh and the kind in the kind's template. A null mesh stops the program: the report gives check as
// the failed condition, func as the function and "fail to create object!!" as the message.
void GameObjRegister(GameObjPool* pPool, u32 kind, KRGfxVertexList* pMesh, const char* check, const char* func);

// Builds and registers every row, in order. func is the name of the state's Load, for the report.
void GameObjRegisterShapes(GameObjPool* pPool, const GameObjShape* pShapes, u32 count, const char* func);

// Frees the mesh of every template entry of the state (128, or 148 in the menu and level selection) that has
// one, and forgets it.
void GameObjPoolReleaseMeshes(GameObjPool* pPool);
