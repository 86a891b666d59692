// The instance pool: creating, destroying, the bound on kinds, a full pool and slot reuse.
#include "ChildProcess.h"
#include "Pattern.h"
#include "gameobj.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace {

GameObjPool sPool;

// A level state's pool as its Load leaves it: nothing registered but the platform kind.
void ResetLevelPool()
{
    GameObjPoolReset(&sPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    sPool.sGameObjList[TYPE_PLATFORM].type = TYPE_PLATFORM;
}

GameObjInst* Create(u32 type, f32 x = 0.0f, f32 y = 0.0f)
{
    KRVec2 pos = {x, y};
    return gameObjInstCreate(&sPool, type, 1.0f, &pos, nullptr, 0.0f, nullptr);
}

int LiveCount()
{
    int count = 0;
    for (const GameObjInst& inst : sPool.sGameObjInstList)
        count += (inst.flag & FLAG_ACTIVE) ? 1 : 0;
    return count;
}

} // namespace

TEST(GameObjPool, ResetClearsEveryTemplateAndSlotAndSetsTheBound)
{
    std::memset(&sPool, 0x5a, sizeof(sPool));
    GameObjPoolReset(&sPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    EXPECT_EQ(sPool.sGameObjNum, 100u);
    EXPECT_EQ(sPool.sGameObjListNum, 128u);
    for (const GameObj& obj : sPool.sGameObjList)
    {
        EXPECT_EQ(obj.type, 0u);
        EXPECT_EQ(obj.pMesh, nullptr);
    }
    EXPECT_EQ(LiveCount(), 0);
    EXPECT_EQ(sPool.sGameObjInstList[2047].scale, 0.0f);
}

TEST(GameObjPool, CreateWithNullPositionVelocityAndAuxGivesAnInstanceAtRestAtTheOrigin)
{
    ResetLevelPool();
    GameObjInst* pInst = gameObjInstCreate(&sPool, TYPE_PLATFORM, 2.5f, nullptr, nullptr, 0.75f, nullptr);
    ASSERT_NE(pInst, nullptr);
    EXPECT_EQ(pInst->posCurr.x, 0.0f);
    EXPECT_EQ(pInst->posCurr.y, 0.0f);
    EXPECT_EQ(pInst->velCurr.x, 0.0f);
    EXPECT_EQ(pInst->velCurr.y, 0.0f);
    EXPECT_EQ(pInst->posStart.x, 0.0f);
    EXPECT_EQ(pInst->posStart.y, 0.0f);
    EXPECT_EQ(pInst->vecAux.x, 0.0f);
    EXPECT_EQ(pInst->vecAux.y, 0.0f);
    EXPECT_EQ(pInst->scale, 2.5f);
    EXPECT_EQ(pInst->dirCurr, 0.75f);
    EXPECT_EQ(pInst->flag, FLAG_ACTIVE);
    EXPECT_EQ(pInst->pObject, &sPool.sGameObjList[TYPE_PLATFORM]);
    EXPECT_EQ(pInst->pObject->type, (u32)TYPE_PLATFORM);
}

TEST(GameObjPool, CreateStoresItsArgumentsAndCopiesThePositionToTheStart)
{
    ResetLevelPool();
    KRVec2 pos = {-300.0f, 150.0f}, vel = {4.0f, -2.0f}, aux = {7.0f, 8.0f};
    GameObjInst* pInst = gameObjInstCreate(&sPool, TYPE_PLATFORM, 50.0f, &pos, &vel, 3.0f, &aux);
    ASSERT_NE(pInst, nullptr);
    EXPECT_EQ(pInst, &sPool.sGameObjInstList[0]);
    EXPECT_EQ(pInst->posCurr.x, -300.0f);
    EXPECT_EQ(pInst->posCurr.y, 150.0f);
    EXPECT_EQ(pInst->posStart.x, -300.0f);
    EXPECT_EQ(pInst->posStart.y, 150.0f);
    EXPECT_EQ(pInst->velCurr.x, 4.0f);
    EXPECT_EQ(pInst->velCurr.y, -2.0f);
    EXPECT_EQ(pInst->vecAux.x, 7.0f);
    EXPECT_EQ(pInst->vecAux.y, 8.0f);
}

TEST(GameObjPool, CreateLeavesTheBoxTheTransformAndTheEditorWordsAsTheSlotHeldThem)
{
    ResetLevelPool();
    GameObjInst* pSlot = &sPool.sGameObjInstList[0];
    pSlot->boundingBox = {1.0f, 2.0f, 3.0f, 4.0f};
    pSlot->transform.m[1][2] = 9.0f;
    pSlot->isInterface = 1;
    pSlot->texU = 0.5f;
    GameObjInst* pInst = Create(TYPE_PLATFORM, 10.0f, 20.0f);
    ASSERT_EQ(pInst, pSlot);
    EXPECT_EQ(pInst->boundingBox.minX, 1.0f);
    EXPECT_EQ(pInst->boundingBox.maxY, 4.0f);
    EXPECT_EQ(pInst->transform.m[1][2], 9.0f);
    EXPECT_EQ(pInst->isInterface, 1);
    EXPECT_EQ(pInst->texU, 0.5f);
}

TEST(GameObjPool, TheLongCreateAlsoStoresTheHeldAndInterfaceFlagsAndTheTextureOffset)
{
    ResetLevelPool();
    KRVec2 pos = {5.0f, 6.0f};
    GameObjInst* pInst =
        gameObjInstCreate(&sPool, TYPE_PLATFORM, 10.0f, &pos, nullptr, 0.0f, nullptr, 1, 1, 3.0f / 26, 2.0f / 3);
    ASSERT_NE(pInst, nullptr);
    EXPECT_EQ(pInst->isHeld, 1);
    EXPECT_EQ(pInst->isInterface, 1);
    EXPECT_EQ(pInst->texU, 3.0f / 26);
    EXPECT_EQ(pInst->texV, 2.0f / 3);
    EXPECT_EQ(pInst->posStart.x, 5.0f);
}

TEST(GameObjPool, CreatingAKindEqualToTheBoundStopsWithTheAssertionAndStatusOne)
{
    ResetLevelPool();
    ChildResult result = RunInChild([] { Create(LEVEL_GAME_OBJ_NUM); });
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(MatchesWhole(
        result.out, "KR_ASSERT_PARM: type < sGameObjNum\nLine: [0-9]+\nFunc: gameObjInstCreate\nFile: .*gameobj.cpp\n"))
        << result.out;
}

TEST(GameObjPool, TheLongCreateStopsOnTheSameBoundWithTheSameReport)
{
    ResetLevelPool();
    ChildResult result = RunInChild(
        [] { gameObjInstCreate(&sPool, 127, 1.0f, nullptr, nullptr, 0.0f, nullptr, 0, 1, 0.0f, 0.0f); });
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out.rfind("KR_ASSERT_PARM: type < sGameObjNum\n", 0), 0u) << result.out;
    EXPECT_NE(result.out.find("Func: gameObjInstCreate\n"), std::string::npos) << result.out;
}

TEST(GameObjPool, KindNinetyNinePassesTheBoundThoughNothingRegisteredIt)
{
    ResetLevelPool();
    GameObjInst* pInst = Create(99);
    ASSERT_NE(pInst, nullptr);
    EXPECT_EQ(pInst->pObject, &sPool.sGameObjList[99]);
}

TEST(GameObjPool, AnUnregisteredKindHasAnEmptyTemplateOfTypeZeroYetHoldsASlot)
{
    ResetLevelPool();
    GameObjInst* pInst = Create(21);
    ASSERT_NE(pInst, nullptr);
    EXPECT_EQ(pInst->pObject->pMesh, nullptr);
    EXPECT_EQ(pInst->pObject->type, 0u) << "it matches none of the kind tests";
    EXPECT_EQ(LiveCount(), 1);
    EXPECT_EQ(Create(TYPE_PLATFORM), &sPool.sGameObjInstList[1]) << "its slot is taken";
}

TEST(GameObjPool, The2049thCreateReturnsNullAndLeavesEverySlotUnchanged)
{
    ResetLevelPool();
    for (int i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
        ASSERT_NE(Create(TYPE_PLATFORM, (f32)i, 0.0f), nullptr);
    std::vector<unsigned char> before(sizeof(sPool.sGameObjInstList));
    std::memcpy(before.data(), sPool.sGameObjInstList, before.size());

    EXPECT_EQ(Create(TYPE_PLATFORM, -1.0f, -1.0f), nullptr);
    EXPECT_EQ(std::memcmp(before.data(), sPool.sGameObjInstList, before.size()), 0);
    EXPECT_EQ(LiveCount(), GAME_OBJ_INST_NUM_MAX);
}

TEST(GameObjPool, ACreateAfterADestroyReusesThatSlotWhenItIsTheLowestFree)
{
    ResetLevelPool();
    GameObjInst* pA = Create(TYPE_PLATFORM, 1.0f);
    GameObjInst* pB = Create(TYPE_PLATFORM, 2.0f);
    GameObjInst* pC = Create(TYPE_PLATFORM, 3.0f);
    gameObjInstDestroy(pB);
    gameObjInstDestroy(pC);

    GameObjInst* pD = Create(TYPE_PLATFORM, 4.0f);
    EXPECT_EQ(pD, pB) << "the lowest free slot is taken again";
    EXPECT_EQ(pB->posCurr.x, 4.0f) << "a pointer to the destroyed instance now means the new one";
    EXPECT_EQ(Create(TYPE_PLATFORM, 5.0f), pC);
    EXPECT_EQ(pA->posCurr.x, 1.0f);
}

TEST(GameObjPool, CreatesNeverCompactThePool)
{
    ResetLevelPool();
    Create(TYPE_PLATFORM);
    GameObjInst* pB = Create(TYPE_PLATFORM);
    GameObjInst* pC = Create(TYPE_PLATFORM, 3.0f);
    gameObjInstDestroy(pB);
    EXPECT_EQ(pC, &sPool.sGameObjInstList[2]);
    EXPECT_EQ(pC->posCurr.x, 3.0f);
    EXPECT_EQ(sPool.sGameObjInstList[1].flag, 0u);
    EXPECT_EQ(Create(TYPE_PLATFORM), &sPool.sGameObjInstList[1]);
    EXPECT_EQ(Create(TYPE_PLATFORM), &sPool.sGameObjInstList[3]);
}

TEST(GameObjPool, DestroyClearsOnlyTheFlagAndLeavesTheRestInTheSlot)
{
    ResetLevelPool();
    KRVec2 vel = {2.0f, 3.0f};
    GameObjInst* pInst = gameObjInstCreate(&sPool, TYPE_PLATFORM, 7.0f, nullptr, &vel, 1.0f, nullptr);
    gameObjInstDestroy(pInst);
    EXPECT_EQ(pInst->flag, 0u);
    EXPECT_EQ(pInst->scale, 7.0f);
    EXPECT_EQ(pInst->velCurr.y, 3.0f);
    EXPECT_EQ(pInst->pObject, &sPool.sGameObjList[TYPE_PLATFORM]);
}

TEST(GameObjPool, DestroyOnAFreeSlotChangesNothing)
{
    ResetLevelPool();
    GameObjInst* pInst = Create(TYPE_PLATFORM, 8.0f);
    gameObjInstDestroy(pInst);
    std::vector<unsigned char> before(sizeof(sPool));
    std::memcpy(before.data(), &sPool, sizeof(sPool));
    gameObjInstDestroy(pInst);
    gameObjInstDestroy(&sPool.sGameObjInstList[2047]);
    EXPECT_EQ(std::memcmp(before.data(), &sPool, sizeof(sPool)), 0);
}

TEST(GameObjPool, DestroyAllFreesEverySlot)
{
    ResetLevelPool();
    for (int i = 0; i < 10; i++)
        Create(TYPE_PLATFORM);
    gameObjInstDestroy(&sPool.sGameObjInstList[4]);
    GameObjPoolDestroyAll(&sPool);
    EXPECT_EQ(LiveCount(), 0);
    EXPECT_EQ(Create(TYPE_PLATFORM), &sPool.sGameObjInstList[0]);
}

TEST(GameObjPool, SlotOrderIsCreationOrderSoWhatComesFirstIsDrawnBehind)
{
    ResetLevelPool();
    GameObjInst* pBack = Create(TYPE_PLATFORM);
    GameObjInst* pMiddle = Create(TYPE_PLATFORM);
    GameObjInst* pFront = Create(TYPE_PLATFORM);
    EXPECT_LT(pBack, pMiddle);
    EXPECT_LT(pMiddle, pFront);
}
