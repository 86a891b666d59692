// HandPool.cpp -- the hand-made pool of the play routines' unit tests.
#include "HandPool.h"

void HandPool::SetUp()
{
    FakeKeys::SetUp();

    gFrameDelta = 1.0f / 60.0f;
    std::memset(&gPlay, 0, sizeof(gPlay));
    mPool.reset(new GameObjPool);
    GameObjPoolReset(mPool.get(), GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    for (u32 kind = 0; kind < LEVEL_GAME_OBJ_NUM; kind++)
        mPool->sGameObjList[kind].type = kind;
}

GameObjInst* HandPool::Character(f32 x, f32 y, f32 vx, f32 vy)
{
    GameObjInst* pC = Make(TYPE_CHARACTER, 50.0f, x, y, vx, vy);
    CollisionRefreshX(pC);
    CollisionRefreshY(pC);
    return pC;
}

GameObjInst* HandPool::Make(u32 kind, f32 scale, f32 x, f32 y, f32 vx, f32 vy)
{
    const KRVec2 pos = {x, y};
    const KRVec2 vel = {vx, vy};
    return gameObjInstCreate(mPool.get(), kind, scale, &pos, &vel, 0.0f, nullptr);
}

GameObjInst* HandPool::Platform(f32 x, f32 y, u32 kind, f32 vx, f32 vy)
{
    GameObjInst* pP = Make(kind, 1.0f, x, y, vx, vy);
    pP->boundingBox = {x - 50.0f, y - 10.0f, x + 50.0f, y + 10.0f};
    return pP;
}

GameObjInst* HandPool::Wall(f32 x, f32 y)
{
    GameObjInst* pW = Make(TYPE_WALL, 1.0f, x, y);
    pW->boundingBox = {x - 10.0f, y - 50.0f, x + 10.0f, y + 50.0f};
    return pW;
}

GameObjInst* HandPool::DropWall(f32 x, f32 y, f32 vy)
{
    GameObjInst* pD = Make(TYPE_DROP_WALL, 1.0f, x, y, 0.0f, vy);
    pD->boundingBox = {x - 10.0f, y - 50.0f, x + 10.0f, y + 50.0f};
    return pD;
}

void HandPool::PressSpace()
{
    gFakeKeys[32] = 0x80;
    KRInputUpdate();
}
