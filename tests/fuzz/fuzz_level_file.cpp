// fuzz_level_file.cpp -- any bytes as a level file: the reader must stay inside its buffer and the pool, keep
// the character pointer on a live character or null, and what the editor's writer makes of the result must
// read back as the same objects.
#include "FuzzFiles.h"
#include "gameobj.h"
#include "levelfile.h"

#include <cstdlib>
#include <string>
#include <vector>

static GameObjPool sPool;
static std::string sInputPath;
static std::string sOutputPath;

// Kinds at or above the bound stop the program by design (the unit tests check the report); here they are
// skipped so that the run goes on through the rest of the file.
static GameObjInst* PoolCreate(u32 type, f32 scale, const KRVec2* pPos, const KRVec2* pVel, f32 dir,
                               const KRVec2* pAux)
{
    if (type >= sPool.sGameObjNum)
        return nullptr;
    return gameObjInstCreate(&sPool, type, scale, pPos, pVel, dir, pAux);
}

static void ResetPool()
{
    GameObjPoolReset(&sPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    for (u32 kind = 0; kind < LEVEL_GAME_OBJ_NUM; kind++)
        sPool.sGameObjList[kind].type = kind;
}

struct Record
{
    u32 kind;
    f32 x, y;
};

// The live objects the writer writes, in slot order.
static std::vector<Record> Written()
{
    std::vector<Record> records;
    for (const GameObjInst& inst : sPool.sGameObjInstList)
    {
        if (!(inst.flag & FLAG_ACTIVE))
            continue;
        FuzzCheck(inst.pObject >= sPool.sGameObjList && inst.pObject < sPool.sGameObjList + LEVEL_GAME_OBJ_NUM,
                  "every template lies below the bound");
        u32 kind = inst.pObject->type;
        if (kind != TYPE_CURSOR && kind != TYPE_HAND && !inst.isInterface)
            records.push_back({kind, inst.posCurr.x, inst.posCurr.y});
    }
    return records;
}

// Integers this small survive the trip through a float unchanged.
static bool Exact(f32 value)
{
    return value > -16777216.0f && value < 16777216.0f;
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    std::string home = FuzzHome();
    sInputPath = home + "/level.txt";
    sOutputPath = home + "/written.txt";
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzWriteFile(sInputPath, data, size);
    ResetPool();
    GameObjInst* pPlayer = nullptr;
    LevelFileScales table = (size & 1) ? LEVEL_FILE_SCALES_SCENE : LEVEL_FILE_SCALES_PLAY;
    FuzzCheck(LevelFileRead(sInputPath.c_str(), PoolCreate, &pPlayer, table), "an existing file opens");
    FuzzCheck(pPlayer == nullptr || ((pPlayer->flag & FLAG_ACTIVE) && pPlayer->pObject->type == TYPE_CHARACTER),
              "the character pointer is null or a live character");
    for (const GameObjInst& inst : sPool.sGameObjInstList)
        if (inst.flag & FLAG_ACTIVE)
            FuzzCheck(inst.scale == LevelFileScale((s32)inst.pObject->type, table), "scale by kind");

    std::vector<Record> before = Written();
    FuzzCheck(LevelFileWrite(sOutputPath.c_str(), &sPool), "the writer's file opens");
    ResetPool();
    pPlayer = nullptr;
    FuzzCheck(LevelFileRead(sOutputPath.c_str(), PoolCreate, &pPlayer, table), "the written file opens");
    std::vector<Record> after = Written();

    FuzzCheck(before.size() == after.size(), "a written level reads back as as many objects");
    for (size_t i = 0; i < before.size(); i++)
    {
        FuzzCheck(before[i].kind == after[i].kind, "a written level reads back with the same kinds");
        if (Exact(before[i].x))
            FuzzCheck(before[i].x == after[i].x, "x reads back");
        if (Exact(before[i].y))
            FuzzCheck(before[i].y == after[i].y, "y reads back");
    }
    return 0;
}
