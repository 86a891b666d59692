// gameobj.cpp -- creating and destroying instances in a state's fixed pool.
//
// Owns:    nothing; every state owns its GameObjPool record and hands it in.
// Used by: every game state, through its own thin gameObjInstCreate, and the level file readers.
//
// The pool has no free list and no live count: a create scans for the lowest free slot, a destroy only clears
// the flag, and slots are never compacted. Nothing here allocates.
#include "gameobj.h"

#include "KRDebug.h"

#include <cstring>

void GameObjPoolReset(GameObjPool* pPool, u32 listNum, u32 objNum)
{
    std::memset(pPool, 0, sizeof(*pPool));
    pPool->sGameObjListNum = listNum;
    pPool->sGameObjNum = objNum;
}

GameObjInst* gameObjInstCreate(GameObjPool* pPool, u32 type, f32 scale, const KRVec2* pPos, const KRVec2* pVel,
                               f32 dir, const KRVec2* pAux)
{
    // The bound belongs to the state's pool; the report names it as the states know it.
    const u32 sGameObjNum = pPool->sGameObjNum;
    KR_ASSERT_PARM(type < sGameObjNum);

    const KRVec2 zero = {0.0f, 0.0f};
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        GameObjInst* pInst = pPool->sGameObjInstList + i;
        if (pInst->flag != 0)
            continue;

        pInst->pObject = pPool->sGameObjList + type;
        pInst->flag = FLAG_ACTIVE;
        pInst->scale = scale;
        pInst->posCurr = pPos ? *pPos : zero;
        pInst->velCurr = pVel ? *pVel : zero;
        pInst->dirCurr = dir;
        pInst->vecAux = pAux ? *pAux : zero;
        pInst->posStart = pInst->posCurr;
        return pInst;
    }

    // A full pool is not reported: the object simply does not exist.
    return nullptr;
}

GameObjInst* gameObjInstCreate(GameObjPool* pPool, u32 type, f32 scale, const KRVec2* pPos, const KRVec2* pVel,
                               f32 dir, const KRVec2* pAux, u8 held, u8 ui, f32 texU, f32 texV)
{
    GameObjInst* pInst = gameObjInstCreate(pPool, type, scale, pPos, pVel, dir, pAux);
    if (pInst)
    {
        pInst->isHeld = held;
        pInst->isInterface = ui;
        pInst->texU = texU;
        pInst->texV = texV;
    }
    return pInst;
}

void gameObjInstDestroy(GameObjInst* pInst)
{
    // The other fields stay in the slot until a create overwrites them.
    if (pInst->flag != 0)
        pInst->flag = 0;
}

void GameObjPoolDestroyAll(GameObjPool* pPool)
{
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
        gameObjInstDestroy(pPool->sGameObjInstList + i);
}
