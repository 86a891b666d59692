// The editor's snapping tables and its undo history, on a pool of their own.
#include "editor_internal.h"
#include "gamestate_editor.h"
#include "gamestatemgr.h"

#include <gtest/gtest.h>

namespace {

GameObjPool sPool;
EditorHistory sHistory;

class EditorSnapTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        GameObjPoolReset(&sPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
        for (u32 kind = 0; kind < LEVEL_GAME_OBJ_NUM; ++kind)
            sPool.sGameObjList[kind].type = kind;
        EditorUndoClear(&sHistory);
    }

    static GameObjInst* Make(u32 kind, f32 x, f32 y, f32 scale = 1.0f)
    {
        KRVec2 pos = {x, y};
        return gameObjInstCreate(&sPool, kind, scale, &pos, nullptr, 0.0f, nullptr, 0, 0, 0.0f, 0.0f);
    }

    // Snaps a held kind released at (x, y) on the target; gives where it lands.
    static KRVec2 SnapAt(const GameObjInst* pTarget, u32 kind, f32 x, f32 y)
    {
        GameObjInst* pHeld = Make(kind, x, y);
        EditorSnap(pTarget, pHeld, &sHistory);
        KRVec2 at = pHeld->posCurr;
        gameObjInstDestroy(pHeld);
        return at;
    }
};

struct Row
{
    u32 held;
    f32 x, y;     // released at, relative to the target at (0, 0)
    f32 toX, toY; // lands at
};

void ExpectRows(const GameObjInst* pTarget, const Row* pRows, size_t count)
{
    for (size_t i = 0; i < count; ++i)
    {
        const Row& r = pRows[i];
        KRVec2 pos = {r.x, r.y};
        GameObjInst* pHeld = gameObjInstCreate(&sPool, r.held, 1.0f, &pos, nullptr, 0.0f, nullptr, 0, 0, 0.0f, 0.0f);
        EditorSnap(pTarget, pHeld, &sHistory);
        EXPECT_EQ(pHeld->posCurr.x, r.toX) << "row " << i << ", kind " << r.held << " at " << r.x << ", " << r.y;
        EXPECT_EQ(pHeld->posCurr.y, r.toY) << "row " << i << ", kind " << r.held << " at " << r.x << ", " << r.y;
        gameObjInstDestroy(pHeld);
    }
}

} // namespace

TEST_F(EditorSnapTest, ThePlatformTableSetsEveryRowForPlatformsWallsAndSpikes)
{
    GameObjInst* pT = Make(TYPE_PLATFORM, 0.0f, 0.0f);
    const Row rows[] = {
        {TYPE_PLATFORM, 60.0f, 1.0f, 100.0f, 0.0f},    // right
        {TYPE_PLATFORM, 10.0f, 15.0f, 10.0f, 20.0f},   // above, at its own x
        {TYPE_PLATFORM, -60.0f, 1.0f, -100.0f, 0.0f},  // left
        {TYPE_PLATFORM, 10.0f, -15.0f, 10.0f, -20.0f}, // below
        {TYPE_WALL, 60.0f, -1.0f, 60.0f, 0.0f},
        {TYPE_WALL, -5.0f, 30.0f, -5.0f, 60.0f},
        {TYPE_WALL, -60.0f, 2.0f, -60.0f, 0.0f},
        {TYPE_WALL, 5.0f, -30.0f, 5.0f, -60.0f},
        {TYPE_SPIKE_UP, 20.0f, 5.0f, 20.0f, 21.5f},
        {TYPE_SPIKE_ROW_UP, -30.0f, -5.0f, -30.0f, 21.5f},
        {TYPE_SPIKE_DOWN, 20.0f, 5.0f, 20.0f, -21.5f},
        {TYPE_SPIKE_ROW_DOWN, 40.0f, -5.0f, 40.0f, -21.5f},
        {TYPE_EXIT_PORTAL, 3.0f, 4.0f, 3.0f, 4.0f}, // no row
    };
    ExpectRows(pT, rows, sizeof(rows) / sizeof(rows[0]));
}

TEST_F(EditorSnapTest, ThePlatformTableIsOpenAtItsBoundariesSoAnExactDirectionSetsNothing)
{
    GameObjInst* pT = Make(TYPE_PLATFORM, 0.0f, 0.0f);
    GameObjInst* pH = Make(TYPE_PLATFORM, 50.0f, 0.0f);
    // Find a place whose angle comes out at exactly 5, 175, 185 or 355 degrees in the table's own arithmetic.
    bool found = false;
    for (int x = 1; x <= 400 && !found; ++x)
    {
        for (int y = 1; y <= 64 * 40 && !found; ++y)
        {
            for (int quadrant = 0; quadrant < 4 && !found; ++quadrant)
            {
                pH->posCurr.x = (quadrant & 1) ? -(f32)x : (f32)x;
                pH->posCurr.y = ((quadrant & 2) ? -(f32)y : (f32)y) / 64.0f;
                f32 angle = EditorSnapAngle(pT, pH);
                found = angle == 5.0f || angle == 175.0f || angle == 185.0f || angle == 355.0f;
            }
        }
    }
    ASSERT_TRUE(found) << "a place exactly on a boundary of the table";
    KRVec2 before = pH->posCurr;
    u32 count = sHistory.sUndoCount;
    EditorSnap(pT, pH, &sHistory);
    EXPECT_EQ(pH->posCurr.x, before.x);
    EXPECT_EQ(pH->posCurr.y, before.y);
    EXPECT_EQ(sHistory.sUndoCount, count);
}

TEST_F(EditorSnapTest, TheWallTableKeepsItsAsymmetries)
{
    GameObjInst* pT = Make(TYPE_WALL, 0.0f, 0.0f);
    const Row rows[] = {
        {TYPE_WALL, 15.0f, 7.0f, 20.0f, 0.0f},     // right: the wall's y
        {TYPE_WALL, 1.0f, 80.0f, 0.0f, 100.0f},    // above
        {TYPE_WALL, -15.0f, 7.0f, -20.0f, 7.0f},   // left: its own y
        {TYPE_WALL, -1.0f, -80.0f, 0.0f, -100.0f}, // below
        {TYPE_PLATFORM, 40.0f, 9.0f, 60.0f, 9.0f},
        {TYPE_PLATFORM, 3.0f, 55.0f, 3.0f, 60.0f},     // above: its own x
        {TYPE_PLATFORM, -40.0f, 9.0f, -60.0f, 9.0f},
        {TYPE_PLATFORM, 3.0f, -55.0f, 0.0f, -60.0f},   // below: the wall's x
    };
    ExpectRows(pT, rows, sizeof(rows) / sizeof(rows[0]));
}

TEST_F(EditorSnapTest, APlatformOnTheCharacterComesToRestAboveItWithTwoRecords)
{
    GameObjInst* pT = Make(TYPE_CHARACTER, 0.0f, 0.0f, 50.0f);
    KRVec2 platform = SnapAt(pT, TYPE_PLATFORM, 10.0f, 10.0f);
    EXPECT_EQ(platform.x, 0.0f);
    EXPECT_EQ(platform.y, 60.0f);
    EXPECT_EQ(sHistory.sUndoCount, 2u);
    KRVec2 wall = SnapAt(pT, TYPE_WALL, 10.0f, 10.0f);
    EXPECT_EQ(wall.x, 0.0f);
    EXPECT_EQ(wall.y, 100.0f);
    EXPECT_EQ(sHistory.sUndoCount, 4u);
}

TEST_F(EditorSnapTest, SpikesLineUpAtElevenOnEitherSide)
{
    GameObjInst* pUp = Make(TYPE_SPIKE_UP, 0.0f, 0.0f);
    const Row rows[] = {
        {TYPE_SPIKE_UP, 5.0f, 2.0f, 11.0f, 0.0f},
        {TYPE_SPIKE_UP, 5.0f, -2.0f, 11.0f, 0.0f}, // at least 270
        {TYPE_SPIKE_UP, -5.0f, -2.0f, -11.0f, 0.0f},
        {TYPE_SPIKE_ROW_UP, -5.0f, 0.0f, -11.0f, 0.0f}, // straight left
        {TYPE_PLATFORM, 30.0f, 5.0f, 30.0f, -21.5f},
        {TYPE_SPIKE_DOWN, 5.0f, 2.0f, 5.0f, 2.0f}, // no row
    };
    ExpectRows(pUp, rows, sizeof(rows) / sizeof(rows[0]));

    // Straight left the table's low pi gives a hair above 180, so only the left row runs, with one record.
    u32 count = sHistory.sUndoCount;
    GameObjInst* pLeft = Make(TYPE_SPIKE_UP, -5.0f, 0.0f);
    EXPECT_GT(EditorSnapAngle(pUp, pLeft), 180.0f);
    EditorSnap(pUp, pLeft, &sHistory);
    EXPECT_EQ(sHistory.sUndoCount, count + 1);

    GameObjInst* pDown = Make(TYPE_SPIKE_DOWN, 100.0f, 0.0f);
    const Row downRows[] = {
        {TYPE_SPIKE_DOWN, 104.0f, 1.0f, 111.0f, 0.0f},
        {TYPE_SPIKE_DOWN, 96.0f, -1.0f, 89.0f, 0.0f},
        {TYPE_SPIKE_ROW_DOWN, 104.0f, 1.0f, 104.0f, 1.0f}, // only the single spike has rows
    };
    ExpectRows(pDown, downRows, sizeof(downRows) / sizeof(downRows[0]));
}

TEST_F(EditorSnapTest, TheAngleRunsCounterClockwiseFromTheRightOverAFullTurn)
{
    GameObjInst* pT = Make(TYPE_PLATFORM, 0.0f, 0.0f);
    GameObjInst* pH = Make(TYPE_PLATFORM, 0.0f, 10.0f);
    EXPECT_NEAR(EditorSnapAngle(pT, pH), 90.0f, 0.001f);
    pH->posCurr = KRVec2{-10.0f, 0.0f};
    EXPECT_NEAR(EditorSnapAngle(pT, pH), 180.0f, 0.001f);
    pH->posCurr = KRVec2{0.0f, -10.0f};
    EXPECT_NEAR(EditorSnapAngle(pT, pH), 270.0f, 0.001f);
}

TEST_F(EditorSnapTest, UndoOfADeleteRecreatesTheSlotsKindScaleAndPlace)
{
    GameObjInst* pPortal = Make(TYPE_EXIT_PORTAL, 30.0f, -40.0f, 55.0f);
    EditorUndoPush(&sHistory, EDITOR_UNDO_DELETED, pPortal);
    gameObjInstDestroy(pPortal);
    EditorUndoStep(&sHistory, &sPool);
    EXPECT_EQ(sHistory.sUndoCount, 0u);
    ASSERT_TRUE(pPortal->flag & FLAG_ACTIVE) << "the first free slot is the same one";
    EXPECT_EQ(pPortal->pObject->type, (u32)TYPE_EXIT_PORTAL);
    EXPECT_EQ(pPortal->scale, 55.0f);
    EXPECT_EQ(pPortal->posCurr.x, 30.0f);
    EXPECT_EQ(pPortal->isInterface, 0);
    EXPECT_EQ(pPortal->isHeld, 0);
}

TEST_F(EditorSnapTest, UndoAtCountZeroReadsTheSentinelAndDoesNothing)
{
    GameObjInst* pKeep = Make(TYPE_WALL, 0.0f, 0.0f);
    EditorUndoStep(&sHistory, &sPool);
    EXPECT_EQ(sHistory.sUndoCount, 0u);
    EXPECT_TRUE(pKeep->flag & FLAG_ACTIVE);
    EXPECT_EQ(sHistory.sUndoStore[0].op, 0u);
    EXPECT_EQ(sHistory.sUndoStore[0].pInst, nullptr);
}

TEST_F(EditorSnapTest, AFullHistoryForgetsItsOldestStepAndStaysInsideItsRecords)
{
    GameObjInst* pFirst = Make(TYPE_WALL, 0.0f, 0.0f);
    EditorUndoPush(&sHistory, EDITOR_UNDO_PLACED, pFirst);
    std::vector<GameObjInst*> made;
    for (u32 i = 1; i < EDITOR_UNDO_MAX; ++i)
        made.push_back(Make(TYPE_PLATFORM, (f32)i, 0.0f));
    ASSERT_EQ(made.back() - pFirst, (long)EDITOR_UNDO_MAX - 1) << "the whole pool is in use";
    for (GameObjInst* pInst : made)
        EditorUndoPush(&sHistory, EDITOR_UNDO_PLACED, pInst);
    ASSERT_EQ(sHistory.sUndoCount, EDITOR_UNDO_MAX);
    // Ten more pushes: the oldest records, the wall's first, make room.
    for (u32 i = 0; i < 10; ++i)
    {
        EditorUndoPush(&sHistory, EDITOR_UNDO_PLACED, made[i]);
        ASSERT_EQ(sHistory.sUndoCount, EDITOR_UNDO_MAX);
    }
    EXPECT_EQ(sHistory.sUndoStore[0].pInst, nullptr) << "the sentinel stays zero";
    EXPECT_EQ(sHistory.sUndoStore[EDITOR_UNDO_MAX].pInst, made[9]);
    EXPECT_EQ(sHistory.sUndoStore[1].pInst, made[9]) << "the wall and made[0] to made[8] were forgotten";
    while (sHistory.sUndoCount > 0)
        EditorUndoStep(&sHistory, &sPool);
    EXPECT_TRUE(pFirst->flag & FLAG_ACTIVE) << "the wall's step was forgotten";
    for (GameObjInst* pInst : made)
        EXPECT_FALSE(pInst->flag & FLAG_ACTIVE);
}

TEST_F(EditorSnapTest, ARecordNamingAReusedSlotActsOnWhatStandsThereNow)
{
    GameObjInst* pWall = Make(TYPE_WALL, 0.0f, 0.0f);
    EditorUndoPush(&sHistory, EDITOR_UNDO_PLACED, pWall);
    gameObjInstDestroy(pWall);
    GameObjInst* pSpike = Make(TYPE_SPIKE_UP, 5.0f, 5.0f);
    ASSERT_EQ(pSpike, pWall);
    EditorUndoStep(&sHistory, &sPool);
    EXPECT_FALSE(pSpike->flag & FLAG_ACTIVE);
}

TEST(EditorFade, WithTheStateAtOneNeitherFadeChangesAnything)
{
    f32 alpha = 0.5f;
    u32 state = 1;
    gGameStateNext = GS_EDITOR;
    EditorFadeIn(&alpha, &state);
    EditorFadeOut(&alpha, &state);
    EXPECT_EQ(alpha, 0.5f);
    EXPECT_EQ(state, 1u);
    EXPECT_EQ(gGameStateNext, GS_EDITOR);
}

TEST(EditorFade, TheFadeInEndsAtZeroAndTheFadeOutAtOneLeadsToLevelSelection)
{
    f32 alpha = 1.0f;
    u32 state = 0;
    int frames = 0;
    while (state == 0 && frames < 200)
    {
        EditorFadeIn(&alpha, &state);
        ++frames;
    }
    EXPECT_EQ(alpha, 0.0f);
    EXPECT_EQ(state, 1u);
    EXPECT_NEAR(frames, 100, 1);

    state = 2;
    gGameStateNext = GS_EDITOR;
    frames = 0;
    while (state == 2 && frames < 200)
    {
        EditorFadeOut(&alpha, &state);
        ++frames;
    }
    EXPECT_EQ(state, 0u);
    EXPECT_EQ(gGameStateNext, GS_LS);
    EXPECT_NEAR(frames, 100, 1);
}
