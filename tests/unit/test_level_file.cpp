// Level files: the reader with its end-of-file pass and atoi reading, the scale by kind, the user level's file,
// and the editor's writer with its first save into a missing folder.
#include "ChildProcess.h"
#include "TestEnv.h"
#include "gameobj.h"
#include "levelfile.h"
#include "savefolder.h"
#include "userlevel.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace {

GameObjPool sFilePool;
GameObjInst* sPlayer;

// The six-argument create of a state, on the test's pool.
GameObjInst* PoolCreate(u32 type, f32 scale, const KRVec2* pPos, const KRVec2* pVel, f32 dir, const KRVec2* pAux)
{
    return gameObjInstCreate(&sFilePool, type, scale, pPos, pVel, dir, pAux);
}

std::vector<GameObjInst*> Live()
{
    std::vector<GameObjInst*> live;
    for (GameObjInst& inst : sFilePool.sGameObjInstList)
        if (inst.flag & FLAG_ACTIVE)
            live.push_back(&inst);
    return live;
}

u32 KindOf(const GameObjInst* pInst)
{
    return (u32)(pInst->pObject - sFilePool.sGameObjList);
}

bool FileExists(const std::string& path)
{
    struct stat info;
    return stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

class LevelFile : public ::testing::Test
{
protected:
    void SetUp() override
    {
        mHome = MakeTempDir("levelfile");
        ASSERT_FALSE(mHome.empty());
        PointHomeAt(mHome);
        GameObjPoolReset(&sFilePool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
        // What a level registers of the world kinds; kind 21 stays unregistered here.
        for (u32 kind : {2u, 3u, 4u, 6u, 8u, 9u, 10u, 12u, 20u, 27u, 32u})
            sFilePool.sGameObjList[kind].type = kind;
        sPlayer = nullptr;
    }

    // Writes the text to a file in the test's folder and reads it with the given scales.
    bool ReadText(const std::string& text, LevelFileScales table = LEVEL_FILE_SCALES_PLAY)
    {
        std::string path = mHome + "/level.txt";
        WriteFileText(path, text);
        return LevelFileRead(path.c_str(), PoolCreate, &sPlayer, table);
    }

    std::string SaveFolder() { return mHome + "/Documents/Varnholt/Mandrel"; }

    std::string mHome;
};

} // namespace

TEST_F(LevelFile, AnEmptyFileRunsTheLoopOnceAndCreatesNothingButCountsAsLoaded)
{
    EXPECT_TRUE(ReadText("")) << "the editor says Load successful";
    EXPECT_TRUE(Live().empty());
    EXPECT_EQ(sPlayer, nullptr);
}

TEST_F(LevelFile, AFileOfOneLineGivesNoObject)
{
    ReadText("8\n");
    EXPECT_TRUE(Live().empty());
    ReadText("8");
    EXPECT_TRUE(Live().empty());
}

TEST_F(LevelFile, OneCompleteRecordWithALineEndGivesOneObject)
{
    ReadText("3\n-120\n45\n");
    auto live = Live();
    ASSERT_EQ(live.size(), 1u);
    EXPECT_EQ(KindOf(live[0]), 3u);
    EXPECT_EQ(live[0]->posCurr.x, -120.0f);
    EXPECT_EQ(live[0]->posCurr.y, 45.0f);
}

TEST_F(LevelFile, OneCompleteRecordWithoutAFinalLineEndGivesOneObject)
{
    ReadText("3\n-120\n45");
    auto live = Live();
    ASSERT_EQ(live.size(), 1u);
    EXPECT_EQ(live[0]->posCurr.y, 45.0f);
}

TEST_F(LevelFile, EveryObjectReadIsAtRestWithDirectionZeroAndAZeroAuxVector)
{
    sFilePool.sGameObjInstList[0].velCurr = {9.0f, 9.0f};
    sFilePool.sGameObjInstList[0].vecAux = {9.0f, 9.0f};
    sFilePool.sGameObjInstList[0].dirCurr = 9.0f;
    ReadText("2\n10\n20\n");
    const GameObjInst& inst = sFilePool.sGameObjInstList[0];
    EXPECT_EQ(inst.velCurr.x, 0.0f);
    EXPECT_EQ(inst.velCurr.y, 0.0f);
    EXPECT_EQ(inst.vecAux.x, 0.0f);
    EXPECT_EQ(inst.vecAux.y, 0.0f);
    EXPECT_EQ(inst.dirCurr, 0.0f);
    EXPECT_EQ(inst.posStart.x, 10.0f);
}

TEST_F(LevelFile, AFileEndingInAnXLineWithItsLineEndRepeatsItAsY)
{
    ReadText("3\n10\n20\n8\n-300\n");
    auto live = Live();
    ASSERT_EQ(live.size(), 2u) << "the extra pass at the end completes the second record";
    EXPECT_EQ(KindOf(live[1]), 8u);
    EXPECT_EQ(live[1]->posCurr.x, -300.0f);
    EXPECT_EQ(live[1]->posCurr.y, -300.0f);
    EXPECT_EQ(sPlayer, live[1]);
}

TEST_F(LevelFile, AFileEndingInAnXLineWithoutALineEndStopsAtOnce)
{
    ReadText("3\n10\n20\n8\n-300");
    EXPECT_EQ(Live().size(), 1u);
    EXPECT_EQ(sPlayer, nullptr);
}

TEST_F(LevelFile, ABlankThirdLineGivesYZero)
{
    ReadText("2\n75\n\n");
    auto live = Live();
    ASSERT_EQ(live.size(), 1u);
    EXPECT_EQ(live[0]->posCurr.x, 75.0f);
    EXPECT_EQ(live[0]->posCurr.y, 0.0f);
}

TEST_F(LevelFile, ACrLfFileReadsLikeAnLfFile)
{
    const char* lf = "8\n-300\n150\n3\n0\n-90\n\n\n";
    const char* crlf = "8\r\n-300\r\n150\r\n3\r\n0\r\n-90\r\n\r\n\r\n";
    ReadText(lf);
    std::vector<unsigned char> fromLf(sizeof(sFilePool.sGameObjInstList));
    std::memcpy(fromLf.data(), sFilePool.sGameObjInstList, fromLf.size());

    GameObjPoolReset(&sFilePool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    ReadText(crlf);
    EXPECT_EQ(std::memcmp(fromLf.data(), sFilePool.sGameObjInstList, fromLf.size()), 0);
    EXPECT_EQ(Live().size(), 3u);
}

TEST_F(LevelFile, ACrLfFileEndingInAnXLineRepeatsItAsYLikeAnLfFile)
{
    ReadText("3\r\n10\r\n20\r\n8\r\n-300\r\n");
    auto live = Live();
    ASSERT_EQ(live.size(), 2u);
    EXPECT_EQ(live[1]->posCurr.y, -300.0f);
}

TEST_F(LevelFile, OneBlankLineBehindTheLastRecordMakesNoObject)
{
    ReadText("3\n10\n20\n\n");
    EXPECT_EQ(Live().size(), 1u);
}

TEST_F(LevelFile, TwoBlankLinesBehindTheLastRecordMakeAnObjectOfKindZeroAtTheOrigin)
{
    ReadText("3\n10\n20\n\n\n");
    auto live = Live();
    ASSERT_EQ(live.size(), 2u) << "the extra pass supplies the y of a record of two blank lines";
    EXPECT_EQ(live[1]->pObject, &sFilePool.sGameObjList[0]);
    EXPECT_EQ(live[1]->posCurr.x, 0.0f);
    EXPECT_EQ(live[1]->posCurr.y, 0.0f);
    EXPECT_EQ(live[1]->scale, 1.0f);
}

TEST_F(LevelFile, AnUnregisteredKindBelowTheBoundLoadsWithAnEmptyTemplate)
{
    ReadText("21\n5\n6\n");
    auto live = Live();
    ASSERT_EQ(live.size(), 1u);
    EXPECT_EQ(live[0]->pObject, &sFilePool.sGameObjList[21]);
    EXPECT_EQ(live[0]->pObject->type, 0u);
    EXPECT_EQ(live[0]->pObject->pMesh, nullptr);
}

TEST_F(LevelFile, KindThirtyTwoHasScaleFortyInALevelAndOneInTheMenuAndCredits)
{
    ReadText("32\n0\n0\n");
    EXPECT_EQ(Live().at(0)->scale, 40.0f);
    GameObjPoolReset(&sFilePool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    ReadText("32\n0\n0\n", LEVEL_FILE_SCALES_SCENE);
    EXPECT_EQ(Live().at(0)->scale, 1.0f);
}

TEST_F(LevelFile, EachKindGetsTheScaleOfItsRow)
{
    ReadText("8\n0\n0\n12\n0\n0\n10\n0\n0\n32\n0\n0\n3\n0\n0\n", LEVEL_FILE_SCALES_PLAY);
    auto live = Live();
    ASSERT_EQ(live.size(), 5u);
    EXPECT_EQ(live[0]->scale, 50.0f);
    EXPECT_EQ(live[1]->scale, 30.0f);
    EXPECT_EQ(live[2]->scale, 55.0f);
    EXPECT_EQ(live[3]->scale, 40.0f);
    EXPECT_EQ(live[4]->scale, 1.0f);
    EXPECT_EQ(LevelFileScale(8, LEVEL_FILE_SCALES_SCENE), 50.0f);
    EXPECT_EQ(LevelFileScale(12, LEVEL_FILE_SCALES_SCENE), 30.0f);
    EXPECT_EQ(LevelFileScale(10, LEVEL_FILE_SCALES_SCENE), 55.0f);
    EXPECT_EQ(LevelFileScale(9, LEVEL_FILE_SCALES_PLAY), 1.0f);
}

TEST_F(LevelFile, TheLastOfTwoCharactersIsStoredAndTheFirstStaysInThePool)
{
    ReadText("8\n-300\n150\n8\n100\n50\n");
    auto live = Live();
    ASSERT_EQ(live.size(), 2u);
    EXPECT_EQ(sPlayer, live[1]);
    EXPECT_EQ(KindOf(live[0]), 8u);
}

TEST_F(LevelFile, NumbersAreReadAsAtoiReadsThem)
{
    ReadText("  3 platform\n+47.9\n-12abc\n");
    auto live = Live();
    ASSERT_EQ(live.size(), 1u);
    EXPECT_EQ(KindOf(live[0]), 3u);
    EXPECT_EQ(live[0]->posCurr.x, 47.0f) << "a fraction is cut off at the point";
    EXPECT_EQ(live[0]->posCurr.y, -12.0f);
}

TEST_F(LevelFile, ALineLongerThan999CharactersArrivesAsTwoLinesAndShiftsTheRecord)
{
    // The x line is 1000 characters: 999 arrive as x, the last one as y, and the real y line starts a record.
    std::string longX = std::string(998, ' ') + "57";
    ReadText("3\n" + longX + "\n2\n");
    auto live = Live();
    ASSERT_EQ(live.size(), 1u);
    EXPECT_EQ(KindOf(live[0]), 3u);
    EXPECT_EQ(live[0]->posCurr.x, 5.0f);
    EXPECT_EQ(live[0]->posCurr.y, 7.0f);
}

TEST_F(LevelFile, AFileThatCantBeOpenedCreatesNothingAndLeavesTheCharacterNull)
{
    std::string path = mHome + "/missing.txt";
    EXPECT_FALSE(LevelFileRead(path.c_str(), PoolCreate, &sPlayer, LEVEL_FILE_SCALES_PLAY));
    EXPECT_TRUE(Live().empty());
    EXPECT_EQ(sPlayer, nullptr);
}

TEST_F(LevelFile, AFolderIsAFileThatCantBeOpened)
{
    std::string path = mHome + "/folder.txt";
    ASSERT_EQ(mkdir(path.c_str(), 0755), 0);
    EXPECT_FALSE(LevelFileRead(path.c_str(), PoolCreate, &sPlayer, LEVEL_FILE_SCALES_PLAY));
}

TEST_F(LevelFile, AKindAtTheBoundStopsTheProgramWithTheCreateAssertion)
{
    ChildResult result = RunInChild([this] { ReadText("100\n0\n0\n"); });
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out.rfind("KR_ASSERT_PARM: type < sGameObjNum\n", 0), 0u) << result.out;
}

TEST_F(LevelFile, ANegativeKindStopsTheProgramWithTheCreateAssertion)
{
    ChildResult result = RunInChild([this] { ReadText("-1\n0\n0\n"); });
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.out.find("Func: gameObjInstCreate\n"), std::string::npos) << result.out;
}

TEST_F(LevelFile, AFullPoolLosesTheRecordAndACharacterRecordLeavesThePointerNull)
{
    for (int i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
        gameObjInstCreate(&sFilePool, 3, 1.0f, nullptr, nullptr, 0.0f, nullptr);
    sPlayer = &sFilePool.sGameObjInstList[0];
    ReadText("8\n1\n2\n");
    EXPECT_EQ(sPlayer, nullptr);
    EXPECT_EQ(Live().size(), (size_t)GAME_OBJ_INST_NUM_MAX);
}

TEST_F(LevelFile, ObjectsOfTheFileLieBetweenWhatWasCreatedBeforeAndAfter)
{
    GameObjInst* pBackground = gameObjInstCreate(&sFilePool, 13, 1.0f, nullptr, nullptr, 0.0f, nullptr);
    ReadText("3\n0\n0\n8\n0\n0\n");
    GameObjInst* pHand = gameObjInstCreate(&sFilePool, 9, 15.0f, nullptr, nullptr, 0.0f, nullptr);
    EXPECT_EQ(pBackground, &sFilePool.sGameObjInstList[0]);
    EXPECT_EQ(sPlayer, &sFilePool.sGameObjInstList[2]);
    EXPECT_EQ(pHand, &sFilePool.sGameObjInstList[3]);
}

TEST_F(LevelFile, TheUserLevelIsReadByItsNameFromTheSaveFolder)
{
    std::strcpy(gUserLevelName, "My level_2");
    std::string folder = SaveFolder();
    ASSERT_EQ(system(("mkdir -p '" + folder + "'").c_str()), 0);
    WriteFileText(folder + "/My level_2.txt", "8\n-300\n150\n32\n5\n5\n");
    EXPECT_TRUE(LevelFileReadUser(PoolCreate, &sPlayer));
    auto live = Live();
    ASSERT_EQ(live.size(), 2u);
    EXPECT_EQ(sPlayer, live[0]);
    EXPECT_EQ(live[1]->scale, 40.0f);
}

TEST_F(LevelFile, AMissingUserLevelCreatesNothing)
{
    std::strcpy(gUserLevelName, "nothing");
    EXPECT_FALSE(LevelFileReadUser(PoolCreate, &sPlayer));
    EXPECT_TRUE(Live().empty());
}

// The writer.

namespace {

GameObjInst* Place(u32 kind, f32 x, f32 y, u8 ui = 0, u8 held = 0)
{
    KRVec2 pos = {x, y};
    return gameObjInstCreate(&sFilePool, kind, 1.0f, &pos, nullptr, 0.0f, nullptr, held, ui, 0.0f, 0.0f);
}

} // namespace

TEST_F(LevelFile, TheWriterWritesThreeLinesPerLevelObjectInSlotOrderPositionsCutTowardZero)
{
    Place(8, -300.0f, 150.0f);
    Place(3, 47.5f, -47.5f);
    Place(2, -0.9f, 0.9f);
    std::string path = mHome + "/out.txt";
    ASSERT_TRUE(LevelFileWrite(path.c_str(), &sFilePool));
    EXPECT_EQ(ReadFileText(path), "8\n-300\n150\n3\n47\n-47\n2\n0\n0\n");
}

TEST_F(LevelFile, TheWriterLeavesOutTheCursorTheHandFurnitureAndFreeSlots)
{
    Place(13, 0.0f, 0.0f, 1);  // background, furniture
    Place(8, 1.0f, 2.0f);      // character
    Place(9, 1.0f, -6.0f);     // hand beside it
    Place(20, 5.0f, 5.0f);     // cursor
    Place(3, 9.0f, 9.0f, 0, 1); // held at the cursor: written like any other
    GameObjInst* pGone = Place(2, 7.0f, 7.0f);
    gameObjInstDestroy(pGone);
    Place(21, 3.0f, 4.0f); // a kind without a template is written as the kind its template says
    std::string path = mHome + "/out.txt";
    ASSERT_TRUE(LevelFileWrite(path.c_str(), &sFilePool));
    EXPECT_EQ(ReadFileText(path), "8\n1\n2\n3\n9\n9\n0\n3\n4\n");
}

TEST_F(LevelFile, AnEmptyLevelWritesAnEmptyFile)
{
    Place(13, 0.0f, 0.0f, 1);
    std::string path = mHome + "/out.txt";
    WriteFileText(path, "old content\n");
    ASSERT_TRUE(LevelFileWrite(path.c_str(), &sFilePool));
    EXPECT_EQ(ReadFileText(path), "");
}

TEST_F(LevelFile, PositionsOutOfTheIntegerRangeAreWrittenAsTheLowestInteger)
{
    Place(3, 3.0e9f, -3.0e9f);
    std::string path = mHome + "/out.txt";
    ASSERT_TRUE(LevelFileWrite(path.c_str(), &sFilePool));
    EXPECT_EQ(ReadFileText(path), "3\n-2147483648\n-2147483648\n");
}

TEST_F(LevelFile, AReloadKeepsTheRelativeOrderAndClosesTheGaps)
{
    Place(8, -300.0f, 150.0f);
    GameObjInst* pGap = Place(3, 0.0f, 0.0f);
    Place(10, 200.0f, -90.5f);
    Place(32, 50.0f, 60.0f);
    gameObjInstDestroy(pGap);
    std::string path = mHome + "/out.txt";
    ASSERT_TRUE(LevelFileWrite(path.c_str(), &sFilePool));

    GameObjPoolReset(&sFilePool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    ASSERT_TRUE(LevelFileRead(path.c_str(), PoolCreate, &sPlayer, LEVEL_FILE_SCALES_PLAY));
    auto live = Live();
    ASSERT_EQ(live.size(), 3u);
    EXPECT_EQ(live[0], &sFilePool.sGameObjInstList[0]);
    EXPECT_EQ(KindOf(live[0]), 8u);
    EXPECT_EQ(KindOf(live[1]), 10u);
    EXPECT_EQ(live[1], &sFilePool.sGameObjInstList[1]);
    EXPECT_EQ(live[1]->posCurr.y, -90.0f) << "what was written, not what was shown";
    EXPECT_EQ(live[1]->scale, 55.0f);
    EXPECT_EQ(KindOf(live[2]), 32u);
    EXPECT_EQ(live[2]->scale, 40.0f);
    EXPECT_EQ(sPlayer, live[0]);
}

TEST_F(LevelFile, SavingTwiceUnderOneNameIntoAMissingFolderLeavesAFileOnlyAfterTheSecondSave)
{
    std::strcpy(gUserLevelName, "Tomb");
    Place(8, -300.0f, 150.0f);
    std::string file = SaveFolder() + "/Tomb.txt";

    LevelFileSaveUser(&sFilePool);
    EXPECT_FALSE(FileExists(file));
    struct stat info;
    EXPECT_EQ(stat(SaveFolder().c_str(), &info), 0) << "the first save makes the folders";

    LevelFileSaveUser(&sFilePool);
    EXPECT_TRUE(FileExists(file));
    EXPECT_EQ(ReadFileText(file), "8\n-300\n150\n");
}

TEST_F(LevelFile, SavingOverAnExistingFileReplacesItsContent)
{
    std::strcpy(gUserLevelName, "Tomb");
    ASSERT_EQ(system(("mkdir -p '" + SaveFolder() + "'").c_str()), 0);
    WriteFileText(SaveFolder() + "/Tomb.txt", "3\n1\n1\n3\n2\n2\n3\n3\n3\n");
    Place(2, 10.0f, 20.0f);
    LevelFileSaveUser(&sFilePool);
    EXPECT_EQ(ReadFileText(SaveFolder() + "/Tomb.txt"), "2\n10\n20\n");
}
