// Registering kinds on a real context: every kind's mesh has its shape, unregistered kinds stay empty, Unload
// frees every mesh and texture, and a level's pool filled from a level file draws what the file says.
#include "DrawKit.h"
#include "KRGraphics.h"
#include "KRMtx33.h"
#include "KRSystem.h"
#include "TestEnv.h"
#include "gameobj.h"
#include "gameobjmesh.h"
#include "gameobjshapes.h"
#include "gametextures.h"
#include "levelfile.h"

#include <GL/glew.h>
#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace {

GameObjPool sPool;

std::vector<float> BufferFloats(u32 buffer, u32 count)
{
    std::vector<float> values(count, -9.0f);
    glBindBuffer(GL_ARRAY_BUFFER, buffer);
    glGetBufferSubData(GL_ARRAY_BUFFER, 0, (GLsizeiptr)(count * sizeof(float)), values.data());
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    return values;
}

struct Extent
{
    float minX, minY, maxX, maxY;
};

Extent PositionsExtent(const KRGfxVertexList* pMesh)
{
    std::vector<float> xyz = BufferFloats(pMesh->vbo[0], pMesh->vtxNum * 3);
    Extent e = {1e9f, 1e9f, -1e9f, -1e9f};
    for (u32 i = 0; i < pMesh->vtxNum; i++)
    {
        e.minX = std::min(e.minX, xyz[i * 3]);
        e.maxX = std::max(e.maxX, xyz[i * 3]);
        e.minY = std::min(e.minY, xyz[i * 3 + 1]);
        e.maxY = std::max(e.maxY, xyz[i * 3 + 1]);
    }
    return e;
}

u32 VerticesOf(GameObjForm form)
{
    if (form == GAME_OBJ_FORM_SPIKE_UP || form == GAME_OBJ_FORM_SPIKE_DOWN)
        return 3;
    if (form == GAME_OBJ_FORM_SPIKE_ROW_UP || form == GAME_OBJ_FORM_SPIKE_ROW_DOWN)
        return 33;
    return 6;
}

// The (u, v) of the vertex at the given corner of a rectangle mesh.
std::vector<float> UvAt(const KRGfxVertexList* pMesh, float x, float y)
{
    std::vector<float> xyz = BufferFloats(pMesh->vbo[0], pMesh->vtxNum * 3);
    std::vector<float> uv = BufferFloats(pMesh->vbo[2], pMesh->vtxNum * 2);
    for (u32 i = 0; i < pMesh->vtxNum; i++)
        if (xyz[i * 3] == x && xyz[i * 3 + 1] == y)
            return {uv[i * 2], uv[i * 2 + 1]};
    return {};
}

GameObjInst* PoolCreate(u32 type, f32 scale, const KRVec2* pPos, const KRVec2* pVel, f32 dir, const KRVec2* pAux)
{
    return gameObjInstCreate(&sPool, type, scale, pPos, pVel, dir, pAux);
}

} // namespace

TEST(KindMeshes, EveryLevelKindIsRegisteredWithAMeshOfItsShape)
{
    StartGraphicsWindowed();
    GameObjPoolReset(&sPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    GameObjRegisterShapes(&sPool, gGameObjLevelShapes, gGameObjLevelShapeNum, "GameStateLevel_0Load");
    EXPECT_EQ(gGameObjLevelShapeNum, 49u);
    for (u32 i = 0; i < gGameObjLevelShapeNum; i++)
    {
        const GameObjShape& shape = gGameObjLevelShapes[i];
        const GameObj& obj = sPool.sGameObjList[shape.kind];
        SCOPED_TRACE(shape.kind);
        EXPECT_EQ(obj.type, shape.kind);
        ASSERT_NE(obj.pMesh, nullptr);
        EXPECT_EQ(obj.pMesh->vtxNum, VerticesOf(shape.form));
        Extent e = PositionsExtent(obj.pMesh);
        EXPECT_FLOAT_EQ(e.minX, -shape.halfW);
        EXPECT_FLOAT_EQ(e.maxX, shape.halfW);
        EXPECT_FLOAT_EQ(e.minY, -shape.halfH);
        EXPECT_FLOAT_EQ(e.maxY, shape.halfH);
    }
    GameObjPoolReleaseMeshes(&sPool);
    KRSysExit();
}

TEST(KindMeshes, KindsNoRowRegistersKeepAnEmptyTemplate)
{
    StartGraphicsWindowed();
    GameObjPoolReset(&sPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    GameObjRegisterShapes(&sPool, gGameObjLevelShapes, gGameObjLevelShapeNum, "GameStateLevel_0Load");
    for (u32 kind : {0u, 1u, 21u, 31u, 36u, 67u, 99u, 100u, 127u})
    {
        EXPECT_EQ(sPool.sGameObjList[kind].pMesh, nullptr) << kind;
        EXPECT_EQ(sPool.sGameObjList[kind].type, 0u) << kind;
    }
    GameObjPoolReleaseMeshes(&sPool);
    KRSysExit();
}

TEST(KindMeshes, AQuadShowsTheWholePictureWithTheTopOfThePictureAtTheTop)
{
    StartGraphicsWindowed();
    GameObjShape wall = *GameObjShapeFind(gGameObjLevelShapes, gGameObjLevelShapeNum, TYPE_WALL);
    KRGfxVertexList* pMesh = GameObjMeshBuild(&wall);
    EXPECT_EQ(UvAt(pMesh, -10.0f, 50.0f), std::vector<float>({0.0f, 0.0f}));
    EXPECT_EQ(UvAt(pMesh, 10.0f, 50.0f), std::vector<float>({1.0f, 0.0f}));
    EXPECT_EQ(UvAt(pMesh, -10.0f, -50.0f), std::vector<float>({0.0f, 1.0f}));
    EXPECT_EQ(UvAt(pMesh, 10.0f, -50.0f), std::vector<float>({1.0f, 1.0f}));
    std::vector<float> colours = BufferFloats(pMesh->vbo[1], 24);
    EXPECT_TRUE(std::all_of(colours.begin(), colours.end(), [](float c) { return c == 1.0f; }));
    KRGfxMeshFree(pMesh);
    KRSysExit();
}

TEST(KindMeshes, TheBatteryBarIsGreenWithEveryTextureCoordinateZero)
{
    StartGraphicsWindowed();
    KRGfxVertexList* pMesh =
        GameObjMeshBuild(GameObjShapeFind(gGameObjLevelShapes, gGameObjLevelShapeNum, TYPE_BATTERY_BAR));
    std::vector<float> uv = BufferFloats(pMesh->vbo[2], 12);
    EXPECT_TRUE(std::all_of(uv.begin(), uv.end(), [](float c) { return c == 0.0f; }));
    EXPECT_EQ(BufferFloats(pMesh->vbo[1], 4), std::vector<float>({0.0f, 1.0f, 0.0f, 1.0f}));
    KRGfxMeshFree(pMesh);
    KRSysExit();
}

TEST(KindMeshes, ASpikePointsUpOrDownAndARowHasElevenSpikesSideBySide)
{
    StartGraphicsWindowed();
    KRGfxVertexList* pUp = GameObjMeshBuild(GameObjShapeFind(gGameObjLevelShapes, gGameObjLevelShapeNum, 6));
    KRGfxVertexList* pDown = GameObjMeshBuild(GameObjShapeFind(gGameObjLevelShapes, gGameObjLevelShapeNum, 7));
    EXPECT_EQ(BufferFloats(pUp->vbo[0], 9), std::vector<float>({-5.5f, -11.5f, 0, 5.5f, -11.5f, 0, 0, 11.5f, 0}));
    EXPECT_EQ(BufferFloats(pDown->vbo[0], 9), std::vector<float>({-5.5f, 11.5f, 0, 5.5f, 11.5f, 0, 0, -11.5f, 0}));
    std::vector<float> colour = BufferFloats(pUp->vbo[1], 4);
    EXPECT_FLOAT_EQ(colour[0], 0xe6 / 255.0f);
    EXPECT_FLOAT_EQ(colour[2], 0xfa / 255.0f);

    KRGfxVertexList* pRow = GameObjMeshBuild(GameObjShapeFind(gGameObjLevelShapes, gGameObjLevelShapeNum, 27));
    std::vector<float> xyz = BufferFloats(pRow->vbo[0], 99);
    for (int spike = 0; spike < 11; spike++)
    {
        SCOPED_TRACE(spike);
        EXPECT_FLOAT_EQ(xyz[spike * 9 + 0], -60.5f + 11.0f * spike);
        EXPECT_FLOAT_EQ(xyz[spike * 9 + 3], -60.5f + 11.0f * (spike + 1));
        EXPECT_FLOAT_EQ(xyz[spike * 9 + 6], -55.0f + 11.0f * spike);
        EXPECT_FLOAT_EQ(xyz[spike * 9 + 7], 11.5f);
    }
    KRGfxVertexList* pRowDown = GameObjMeshBuild(GameObjShapeFind(gGameObjLevelShapes, gGameObjLevelShapeNum, 28));
    EXPECT_FLOAT_EQ(BufferFloats(pRowDown->vbo[0], 9)[7], -11.5f);
    for (KRGfxVertexList* pMesh : {pUp, pDown, pRow, pRowDown})
        KRGfxMeshFree(pMesh);
    KRSysExit();
}

TEST(KindMeshes, TheEditorsButtonsAreOffCentreAndItsGlyphsCoverOneCellOfTheFont)
{
    StartGraphicsWindowed();
    GameObjPoolReset(&sPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    GameObjRegisterShapes(&sPool, gGameObjEditorShapes, gGameObjEditorShapeNum, "GameStateEditorLoad");
    for (u32 kind : {22u, 23u, 24u, 25u, 26u})
    {
        Extent e = PositionsExtent(sPool.sGameObjList[kind].pMesh);
        EXPECT_EQ(e.minX, -1.0f);
        EXPECT_EQ(e.maxX, 1.0f);
        EXPECT_EQ(e.minY, -0.5f);
        EXPECT_EQ(e.maxY, 1.0f);
    }
    for (u32 kind : {36u, 37u, 38u})
    {
        const KRGfxVertexList* pGlyph = sPool.sGameObjList[kind].pMesh;
        EXPECT_EQ(UvAt(pGlyph, -0.5f, 0.5f), std::vector<float>({0.0f, 0.0f}));
        EXPECT_EQ(UvAt(pGlyph, 0.5f, -0.5f), std::vector<float>({1.0f / 26.0f, 1.0f / 3.0f}));
    }
    Extent field = PositionsExtent(sPool.sGameObjList[TYPE_NAME_FIELD].pMesh);
    EXPECT_EQ(field.maxX, 100.0f);
    EXPECT_EQ(field.maxY, 10.0f);
    Extent toolbar = PositionsExtent(sPool.sGameObjList[TYPE_TOOLBAR].pMesh);
    EXPECT_EQ(toolbar.maxY, 70.0f);
    EXPECT_EQ(sPool.sGameObjList[TYPE_CARET].pMesh->vtxNum, 6u);
    GameObjPoolReleaseMeshes(&sPool);
    KRSysExit();
}

TEST(KindMeshes, ReleaseFreesTheMeshOfEveryEntryOfTheStateAndForgetsIt)
{
    StartGraphicsWindowed();
    GameObjPoolReset(&sPool, GAME_OBJ_NUM_MAX_FRONT, LEVEL_GAME_OBJ_NUM);
    GameObjRegisterShapes(&sPool, gGameObjLevelShapes, gGameObjLevelShapeNum, "GameStateMenuLoad");
    // A mesh in an entry above the bound of kinds, as only the menu's longer array can hold.
    GameObjShape high = {140, GAME_OBJ_FORM_QUAD, 1.0f, 1.0f, GAME_OBJ_WHITE, nullptr};
    GameObjRegister(&sPool, 140, GameObjMeshBuild(&high), GAME_OBJ_CHECK, "GameStateMenuLoad");
    std::vector<u32> buffers;
    for (const GameObj& obj : sPool.sGameObjList)
        if (obj.pMesh)
            buffers.insert(buffers.end(), obj.pMesh->vbo, obj.pMesh->vbo + 3);
    ASSERT_EQ(buffers.size(), 150u);

    GameObjPoolReleaseMeshes(&sPool);
    for (u32 buffer : buffers)
        EXPECT_FALSE(glIsBuffer(buffer)) << buffer;
    for (const GameObj& obj : sPool.sGameObjList)
        EXPECT_EQ(obj.pMesh, nullptr);
    KRSysExit();
}

TEST(KindMeshes, TexturesLoadInTheirOrderAndAreAllUnloaded)
{
    StartGraphicsWindowed();
    KRGfxTexture* verTEX = nullptr;
    KRGfxTexture* horiTEX = nullptr;
    KRGfxTexture* charTEX = nullptr;
    const GameTexture textures[] = {
        {&verTEX, "VERTPLATFORMTEXT.png", "verTEX"},
        {&horiTEX, "HORIPLATFORMTEXT.png", "horiTEX"},
        {&charTEX, "CHARACTER.png", "charTEX"},
    };
    GameTexturesLoad(textures, 3, "GameStateLevel_0Load");
    ASSERT_NE(verTEX, nullptr);
    ASSERT_NE(charTEX, nullptr);
    EXPECT_STREQ(horiTEX->name, "HORIPLATFORMTEXT.png");
    EXPECT_LT(*verTEX->glId, *horiTEX->glId) << "loaded in table order";
    EXPECT_LT(*horiTEX->glId, *charTEX->glId);
    std::vector<u32> ids = {*verTEX->glId, *horiTEX->glId, *charTEX->glId};
    for (u32 id : ids)
        EXPECT_TRUE(glIsTexture(id));

    GameTexturesUnload(textures, 3);
    for (u32 id : ids)
        EXPECT_FALSE(glIsTexture(id));
    EXPECT_EQ(verTEX, nullptr);
    EXPECT_EQ(charTEX, nullptr);
    KRSysExit();
}

// A level's pool, filled as a level's Load and Init fill it, drawn slot by slot.
TEST(KindMeshes, ALevelPoolFilledFromALevelFileDrawsWhatTheFileSays)
{
    StartGraphicsWindowed();
    KRGfxTexture* horiTEX = nullptr;
    KRGfxTexture* charTEX = nullptr;
    const GameTexture textures[] = {
        {&horiTEX, "HORIPLATFORMTEXT.png", "horiTEX"},
        {&charTEX, "CHARACTER.png", "charTEX"},
    };
    GameObjPoolReset(&sPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    GameObjRegisterShapes(&sPool, gGameObjLevelShapes, gGameObjLevelShapeNum, "GameStateLevel_0Load");
    GameTexturesLoad(textures, 2, "GameStateLevel_0Load");

    std::string path = MakeTempDir("kindmeshes") + "/Level.txt";
    WriteFileText(path, "3\n-200\n0\n27\n200\n0\n8\n0\n150\n");
    GameObjInst* pPlayer = nullptr;
    ASSERT_TRUE(LevelFileRead(path.c_str(), PoolCreate, &pPlayer, LEVEL_FILE_SCALES_PLAY));
    ASSERT_NE(pPlayer, nullptr);
    EXPECT_EQ(pPlayer->scale, 50.0f);

    BeginTexturedFrame();
    for (GameObjInst& inst : sPool.sGameObjInstList)
    {
        if (!(inst.flag & FLAG_ACTIVE))
            continue;
        KRMtx33 trans, scale;
        KRMtx33Trans(&trans, inst.posCurr.x, inst.posCurr.y);
        KRMtx33Scale(&scale, inst.scale, inst.scale);
        KRMtx33Concat(&inst.transform, &trans, &scale);
        u32 kind = inst.pObject->type;
        KRGfxSetRenderMode(kind == TYPE_SPIKE_ROW_UP ? KR_GFX_RM_COLOR : KR_GFX_RM_TEXTURE);
        if (kind != TYPE_SPIKE_ROW_UP)
            KRGfxTextureSet(kind == TYPE_PLATFORM ? horiTEX : charTEX, 0.0f, 0.0f);
        KRGfxSetTransform(&inst.transform);
        KRGfxMeshDraw(inst.pObject->pMesh, KR_GFX_MDM_TRIANGLES);
    }
    // World (x, y) lies on pixel (x + 400, y + 300).
    EXPECT_NE(Rgb(ReadRegion(200, 300, 1, 1)[0]), 0u) << "the platform";
    EXPECT_EQ(Rgb(ReadRegion(600, 291, 1, 1)[0]), 0xE6E6FAu) << "the spike row near its base";
    EXPECT_EQ(Rgb(ReadRegion(600, 320, 1, 1)[0]), 0u) << "above the spikes";
    EXPECT_NE(Rgb(ReadRegion(400, 450, 1, 1)[0]), 0u) << "the character";
    EXPECT_EQ(Rgb(ReadRegion(400, 500, 1, 1)[0]), 0u) << "beyond the character's 50 by 50";
    SaveScreenshot(TestOutputDir() + "/level-pool-from-file.png", 799, 599);
    KRGfxEnd();

    GameObjPoolDestroyAll(&sPool);
    GameObjPoolReleaseMeshes(&sPool);
    GameTexturesUnload(textures, 2);
    KRSysExit();
}
