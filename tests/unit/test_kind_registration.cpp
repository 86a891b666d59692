// Registering kinds without a context: what a missing mesh or texture reports, and which condition text goes with
// which kind.
#include "ChildProcess.h"
#include "Pattern.h"
#include "gameobj.h"
#include "gameobjmesh.h"
#include "gameobjshapes.h"
#include "gametextures.h"

#include <gtest/gtest.h>

#include <string>

namespace {

GameObjPool sKindPool;

const char* CheckOf(u32 kind)
{
    GameObjShape shape = {kind, GAME_OBJ_FORM_QUAD, 1.0f, 1.0f, GAME_OBJ_WHITE, nullptr};
    return GameObjShapeCheck(&shape);
}

} // namespace

TEST(KindRegistration, AMissingMeshStopsTheProgramReportingTheConditionTheLoadAndTheMessage)
{
    GameObjPoolReset(&sKindPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    ChildResult result =
        RunInChild([] { GameObjRegister(&sKindPool, TYPE_WALL, nullptr, GAME_OBJ_CHECK, "GameStateLevel_0Load"); });
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(MatchesWhole(result.out, "KR_ASSERT_MESG: pObj->pMesh\nLine: [0-9]+\nFunc: "
                                         "GameStateLevel_0Load\nFile: .*\nMesg: fail to create object!!\n"))
        << result.out;
}

TEST(KindRegistration, TheDarknessAndTheCursorReportAsTheTorchAndTheZoomPowerUpAsItself)
{
    EXPECT_STREQ(CheckOf(TYPE_DARKNESS), "torchObj->pMesh");
    EXPECT_STREQ(CheckOf(TYPE_CURSOR), "torchObj->pMesh");
    EXPECT_STREQ(CheckOf(TYPE_ZOOM_POWERUP), "ZoomPObj->pMesh");
    EXPECT_STREQ(CheckOf(TYPE_WALL), "pObj->pMesh");
    EXPECT_STREQ(CheckOf(TYPE_CHARACTER), "pObj->pMesh");
    GameObjShape own = {TYPE_WALL, GAME_OBJ_FORM_QUAD, 1.0f, 1.0f, GAME_OBJ_WHITE, GAME_OBJ_CHECK_OBJ};
    EXPECT_STREQ(GameObjShapeCheck(&own), "GameObj->pMesh");
}

TEST(KindRegistration, ARegisteredKindStoresItsNumberAndMeshInItsOwnEntry)
{
    GameObjPoolReset(&sKindPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    KRGfxVertexList* pFake = reinterpret_cast<KRGfxVertexList*>(&sKindPool); // never drawn nor freed here
    GameObjRegister(&sKindPool, TYPE_EXIT_PORTAL, pFake, GAME_OBJ_CHECK, "GameStateLevel_0Load");
    EXPECT_EQ(sKindPool.sGameObjList[TYPE_EXIT_PORTAL].type, (u32)TYPE_EXIT_PORTAL);
    EXPECT_EQ(sKindPool.sGameObjList[TYPE_EXIT_PORTAL].pMesh, pFake);
    EXPECT_EQ(sKindPool.sGameObjList[TYPE_EXIT_PORTAL - 1].pMesh, nullptr);
}

TEST(KindRegistration, ATextureThatCantBeMadeStopsTheProgramWithTheNameItReportsUnder)
{
    ChildResult result = RunInChild([] {
        static KRGfxTexture* verTEX = nullptr;
        static const std::string longPath(300, 'x'); // the engine refuses paths over 255 characters
        const GameTexture rows[] = {{&verTEX, longPath.c_str(), "horiTEX"}};
        GameTexturesLoad(rows, 1, "GameStateEditorLoad");
    });
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(MatchesWhole(result.out, "KR_ASSERT_MESG: horiTEX\nLine: [0-9]+\nFunc: "
                                         "GameStateEditorLoad\nFile: .*\nMesg: Failed to create texture1!!\n"))
        << result.out;
}

TEST(KindRegistration, TheLevelTableHoldsEveryKindOfThePlayWorldOnce)
{
    const u32 kinds[] = {2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16, 17, 18,
                         19, 20, 27, 28, 29, 30, 32, 33, 34, 35, 39, 40, 41, 46, 68, 69, 70,
                         71, 72, 75, 76, 77, 78, 79, 80, 82, 83, 90, 95, 96, 97, 98};
    EXPECT_EQ(gGameObjLevelShapeNum, sizeof(kinds) / sizeof(kinds[0]));
    for (u32 kind : kinds)
        EXPECT_NE(GameObjShapeFind(gGameObjLevelShapes, gGameObjLevelShapeNum, kind), nullptr) << kind;
    EXPECT_EQ(GameObjShapeFind(gGameObjLevelShapes, gGameObjLevelShapeNum, 21), nullptr);
    EXPECT_EQ(GameObjShapeFind(gGameObjLevelShapes, gGameObjLevelShapeNum, 31), nullptr);
}
