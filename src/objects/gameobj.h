// gameobj.h -- object templates, object instances and the fixed pool of instances.
//
// Every game state keeps its own pool record (templates, instances and the bound on kind numbers) as a file
// static, fills it afresh at each Load, and reaches it through the free functions below. A state also declares
// its own thin gameObjInstCreate without the pool argument that forwards to these, so its code reads as if the
// pool were its alone (it is):
//
//     static GameObjPool sPool;
//     static GameObjInst* gameObjInstCreate(u32 type, f32 scale, const KRVec2* pPos, const KRVec2* pVel,
//                                           f32 dir, const KRVec2* pAux)
//     {
//         return gameObjInstCreate(&sPool, type, scale, pPos, pVel, dir, pAux);
//     }
//
// Load:   GameObjPoolReset(&sPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM), then register kinds (gameobjmesh.h).
// Init:   create; the level file readers take the state's gameObjInstCreate (levelfile.h).
// Free:   GameObjPoolDestroyAll(&sPool).
// Unload: release the meshes and textures (gameobjmesh.h).
#pragma once

#include "KRMtx33.h"
#include "KRTypes.h"
#include "KRVec2.h"
#include "gameobjkinds.h"

struct KRGfxVertexList;

enum
{
    GAME_OBJ_NUM_MAX = 128,        // template entries of a level state, the editor, the splash and the credits
    GAME_OBJ_NUM_MAX_FRONT = 148,  // template entries of the main menu and level selection
    GAME_OBJ_INST_NUM_MAX = 2048,  // instance slots of every state
    LEVEL_GAME_OBJ_NUM = 100,      // the bound on kind numbers that every state sets before registering
};

// Bit 0 of GameObjInst::flag: the slot is live.
const u32 FLAG_ACTIVE = 0x00000001;

// A template: one per kind, at the index of its kind. pMesh is null for a kind the state did not register, and
// then type is 0 as well.
struct GameObj
{
    u32 type;
    KRGfxVertexList* pMesh;
};

struct GameObjBox
{
    f32 minX;
    f32 minY;
    f32 maxX;
    f32 maxY;
};

// An instance. Fields stand in this order; the last three words (two flag bytes and a texture offset) are
// read and written only by the editor and level selection.
struct GameObjInst
{
    GameObj* pObject;       // its template; the kind of an instance is pObject->type
    u32 flag;               // FLAG_ACTIVE while live; 0 marks a free slot
    f32 scale;              // uniform scale
    KRVec2 posCurr;         // world units, y upward
    KRVec2 velCurr;         // world units per second
    KRVec2 posStart;        // the position at creation; nothing in play reads it
    f32 dirCurr;            // rotation in radians
    KRVec2 vecAux;          // the last vector given at creation; nothing in play reads it
    GameObjBox boundingBox; // rebuilt every frame by the state
    KRMtx33 transform;      // rebuilt every frame by the state

    u8 isHeld;      // editor: sticks to the cursor, not yet placed
    u8 isInterface; // editor and level selection: furniture, not part of the level
    f32 texU;       // texture offset, for glyphs
    f32 texV;
};

// The record is 112 bytes where pointers take four; a wider pointer widens it by its padding only.
static_assert(sizeof(void*) != 4 || sizeof(GameObjInst) == 112, "instance record layout");

// One state's templates, instances and bound. The names are those the states speak of.
struct GameObjPool
{
    GameObj sGameObjList[GAME_OBJ_NUM_MAX_FRONT]; // indexed by kind; only the first sGameObjListNum are the state's
    u32 sGameObjListNum;                          // GAME_OBJ_NUM_MAX, or GAME_OBJ_NUM_MAX_FRONT
    GameObjInst sGameObjInstList[GAME_OBJ_INST_NUM_MAX];
    u32 sGameObjNum; // bound on kind numbers that gameObjInstCreate checks
};

// Clears every template and every slot to zero bytes and sets the number of template entries and the bound.
// What a state's Load does before it registers anything.
void GameObjPoolReset(GameObjPool* pPool, u32 listNum, u32 objNum);

// Stops the program unless type < sGameObjNum; then takes the lowest free slot, or returns null without a word
// when all 2048 are live. Null pPos, pVel, pAux mean (0, 0). boundingBox and transform keep what the slot held,
// and so do the three editor words.
GameObjInst* gameObjInstCreate(GameObjPool* pPool, u32 type, f32 scale, const KRVec2* pPos, const KRVec2* pVel,
                               f32 dir, const KRVec2* pAux);

// The long form of the editor and level selection: as above, then stores the held flag, the interface flag and
// the texture offset.
GameObjInst* gameObjInstCreate(GameObjPool* pPool, u32 type, f32 scale, const KRVec2* pPos, const KRVec2* pVel,
                               f32 dir, const KRVec2* pAux, u8 held, u8 ui, f32 texU, f32 texV);

// Frees the slot: clears flag and nothing else.
void gameObjInstDestroy(GameObjInst* pInst);

// What every state's Free does: gameObjInstDestroy on all 2048 slots.
void GameObjPoolDestroyAll(GameObjPool* pPool);

// The six-argument creation routine as a state hands it to the level file readers.
typedef GameObjInst* (*GameObjCreateFn)(u32 type, f32 scale, const KRVec2* pPos, const KRVec2* pVel, f32 dir,
                                        const KRVec2* pAux);
