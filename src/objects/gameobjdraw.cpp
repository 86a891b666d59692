// gameobjdraw.cpp -- the walks over a pool that every state makes: transforms and drawing in slot order.
#include "gameobjdraw.h"

#include "KRGraphics.h"
#include "KRMtx33.h"

static GameObjPool* sLivePool = nullptr;

void GameStatePoolSet(GameObjPool* pPool)
{
    sLivePool = pPool;
}

GameObjPool* GameStatePoolGet()
{
    return sLivePool;
}

void GameObjPoolForEachLive(GameObjPool* pPool, GameObjInstFn fn)
{
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        GameObjInst* pInst = &pPool->sGameObjInstList[i];
        if (pInst->flag & FLAG_ACTIVE)
            fn(pInst);
    }
}

void GameObjBuildTransform(GameObjInst* pInst, f32 x, f32 y, f32 angle)
{
    KRMtx33 scale, rot, trans, rotScale;
    KRMtx33Scale(&scale, pInst->scale, pInst->scale);
    KRMtx33Rot(&rot, angle);
    KRMtx33Trans(&trans, x, y);
    KRMtx33Concat(&rotScale, &rot, &scale);
    KRMtx33Concat(&pInst->transform, &trans, &rotScale);
}

static void BuildPlain(GameObjInst* pInst)
{
    GameObjBuildTransform(pInst, pInst->posCurr.x, pInst->posCurr.y, pInst->dirCurr);
}

void GameObjPoolBuildTransforms(GameObjPool* pPool)
{
    GameObjPoolForEachLive(pPool, BuildPlain);
}

void GameObjPoolDraw(GameObjPool* pPool, GameObjInstFn fn)
{
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        GameObjInst* pInst = &pPool->sGameObjInstList[i];
        if (!(pInst->flag & FLAG_ACTIVE))
            continue;
        KRGfxSetBlendMode(KR_GFX_BM_NONE);
        KRGfxSetRenderMode(KR_GFX_RM_TEXTURE);
        KRGfxSetPosition(0.0f, 0.0f);
        KRGfxSetTintColor(1.0f, 1.0f, 1.0f, 1.0f);
        fn(pInst);
    }
}

void GameObjDrawTextured(const GameObjInst* pInst, KRGfxTexture* pTexture, f32 alpha, s32 blendMode)
{
    KRGfxSetRenderMode(KR_GFX_RM_TEXTURE);
    KRGfxSetBlendMode(blendMode);
    KRGfxTextureSet(pTexture, pInst->texU, pInst->texV);
    KRGfxSetTransparency(alpha);
    KRGfxSetTransform(&pInst->transform);
    KRGfxMeshDraw(pInst->pObject->pMesh, KR_GFX_MDM_TRIANGLES);
}

void GameObjDrawColoured(const GameObjInst* pInst, f32 alpha, s32 blendMode)
{
    KRGfxSetRenderMode(KR_GFX_RM_COLOR);
    KRGfxSetBlendMode(blendMode);
    KRGfxSetTransparency(alpha);
    KRGfxSetTransform(&pInst->transform);
    KRGfxMeshDraw(pInst->pObject->pMesh, KR_GFX_MDM_TRIANGLES);
}
