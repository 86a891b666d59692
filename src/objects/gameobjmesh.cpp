// gameobjmesh.cpp -- the meshes of the kinds: building them from their shapes, registering and releasing them.
//
// Owns:    nothing; the meshes belong to the template array of the state that registered them.
// Used by: every state's Load (register) and Unload (release).
//
// Every mesh is centred on the instance's position unless its form says otherwise. Texture coordinates put v = 0
// at the top of the picture, as the engine uploads pictures top row first.
#include "gameobjmesh.h"

#include "KRDebug.h"
#include "KRGraphics.h"

const char* const GAME_OBJ_CHECK = "pObj->pMesh";
const char* const GAME_OBJ_CHECK_TORCH = "torchObj->pMesh";
const char* const GAME_OBJ_CHECK_ZOOM = "ZoomPObj->pMesh";
const char* const GAME_OBJ_CHECK_OBJ = "GameObj->pMesh";

// Spikes of a row.
static const int SPIKE_ROW_NUM = 11;

const char* GameObjShapeCheck(const GameObjShape* pShape)
{
    if (pShape->check)
        return pShape->check;
    if (pShape->kind == TYPE_DARKNESS || pShape->kind == TYPE_CURSOR)
        return GAME_OBJ_CHECK_TORCH;
    if (pShape->kind == TYPE_ZOOM_POWERUP)
        return GAME_OBJ_CHECK_ZOOM;
    return GAME_OBJ_CHECK;
}

// Two triangles over the rectangle; (u, v) runs from (0, 0) at the top left to (uMax, vMax) at the bottom right.
static void AddRect(f32 left, f32 bottom, f32 right, f32 top, u32 colour, f32 uMax, f32 vMax)
{
    KRGfxTriAdd(left, bottom, colour, 0.0f, vMax, right, bottom, colour, uMax, vMax, left, top, colour, 0.0f, 0.0f);
    KRGfxTriAdd(right, bottom, colour, uMax, vMax, right, top, colour, uMax, 0.0f, left, top, colour, 0.0f, 0.0f);
}

// count triangles side by side over -halfW to halfW, each with its apex at the top (up) or at the bottom.
static void AddSpikes(int count, f32 halfW, f32 halfH, u32 colour, bool up)
{
    f32 width = 2.0f * halfW / (f32)count;
    f32 base = up ? -halfH : halfH;
    f32 apex = up ? halfH : -halfH;
    for (int i = 0; i < count; i++)
    {
        f32 left = -halfW + width * (f32)i;
        KRGfxTriAdd(left, base, colour, 0.0f, 0.0f, left + width, base, colour, 0.0f, 0.0f, left + 0.5f * width,
                    apex, colour, 0.0f, 0.0f);
    }
}

KRGfxVertexList* GameObjMeshBuild(const GameObjShape* pShape)
{
    f32 w = pShape->halfW;
    f32 h = pShape->halfH;
    u32 c = pShape->colour;

    KRGfxMeshStart();
    switch (pShape->form)
    {
    case GAME_OBJ_FORM_QUAD:
        AddRect(-w, -h, w, h, c, 1.0f, 1.0f);
        break;
    case GAME_OBJ_FORM_QUAD_NO_UV:
        AddRect(-w, -h, w, h, c, 0.0f, 0.0f);
        break;
    case GAME_OBJ_FORM_GLYPH:
        AddRect(-w, -h, w, h, c, 1.0f / 26.0f, 1.0f / 3.0f);
        break;
    case GAME_OBJ_FORM_BUTTON:
        AddRect(-w, -h, w, 2.0f * h, c, 1.0f, 1.0f);
        break;
    case GAME_OBJ_FORM_SPIKE_UP:
        AddSpikes(1, w, h, c, true);
        break;
    case GAME_OBJ_FORM_SPIKE_DOWN:
        AddSpikes(1, w, h, c, false);
        break;
    case GAME_OBJ_FORM_SPIKE_ROW_UP:
        AddSpikes(SPIKE_ROW_NUM, w, h, c, true);
        break;
    case GAME_OBJ_FORM_SPIKE_ROW_DOWN:
        AddSpikes(SPIKE_ROW_NUM, w, h, c, false);
        break;
    }
    return KRGfxMeshEnd();
}

void GameObjRegister(GameObjPool* pPool, u32 kind, KRGfxVertexList* pMesh, const char* check, const char* func)
{
    KR_ASSERT_PARM(kind < pPool->sGameObjListNum);
    GameObj* pObj = pPool->sGameObjList + kind;
    pObj->type = kind;
    pObj->pMesh = pMesh;
    if (!pObj->pMesh)
        KRAssertMesgFail(check, __LINE__, func, __FILE__, "fail to create object!!");
}

void GameObjRegisterShapes(GameObjPool* pPool, const GameObjShape* pShapes, u32 count, const char* func)
{
    for (u32 i = 0; i < count; i++)
        GameObjRegister(pPool, pShapes[i].kind, GameObjMeshBuild(pShapes + i), GameObjShapeCheck(pShapes + i), func);
}

void GameObjPoolReleaseMeshes(GameObjPool* pPool)
{
    for (u32 i = 0; i < pPool->sGameObjListNum; i++)
    {
        GameObj* pObj = pPool->sGameObjList + i;
        if (pObj->pMesh)
            KRGfxMeshFree(pObj->pMesh);
        pObj->pMesh = nullptr;
    }
}
