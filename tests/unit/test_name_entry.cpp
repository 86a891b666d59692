// The name field's typing, backspace and caret, and the glyph writer, on a pool of their own.
#include "KRInput.h"
#include "gameobj.h"
#include "nameentry.h"
#include "userlevel.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

GameObjPool sPool;

const f32 FIELD_X = -275.0f;
const f32 FIELD_Y = -215.0f;

class NameEntryTest : public ::testing::Test
{
protected:
    NameField field;

    void SetUp() override
    {
        GameObjPoolReset(&sPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
        for (u32 kind : {(u32)TYPE_NAME_GLYPH, (u32)TYPE_TEXT_GLYPH, (u32)TYPE_CARET, (u32)TYPE_PLATFORM})
            sPool.sGameObjList[kind].type = kind;
        gUserLevelName[0] = '\0';
        field = {&sPool, 0, nullptr};
        ReleaseAllKeys();
    }

    void TearDown() override
    {
        ReleaseAllKeys();
        gUserLevelName[0] = '\0';
    }

    static void ReleaseAllKeys()
    {
        std::memset(gKRInputKeyCurr, 0, sizeof(gKRInputKeyCurr));
        std::memset(gKRInputKeyPrev, 0, sizeof(gKRInputKeyPrev));
    }

    // One frame in which the given keys go down (held keys stay down from the frame before).
    void Press(std::initializer_list<int> keys, std::initializer_list<int> held = {})
    {
        ReleaseAllKeys();
        for (int key : held)
        {
            gKRInputKeyCurr[key] = 0x80;
            gKRInputKeyPrev[key] = 0x80;
        }
        for (int key : keys)
            gKRInputKeyCurr[key] = 0x80;
        NameEntry(&field, FIELD_X, FIELD_Y);
    }

    void MakeCaret()
    {
        CaretCreate(&field, FIELD_X, FIELD_Y, 100.0f, 10.0f, 0);
        ASSERT_NE(field.sCaret, nullptr);
    }

    static std::vector<GameObjInst*> Live(u32 kind)
    {
        std::vector<GameObjInst*> found;
        for (GameObjInst& inst : sPool.sGameObjInstList)
            if ((inst.flag & FLAG_ACTIVE) && inst.pObject->type == kind)
                found.push_back(&inst);
        return found;
    }
};

void ExpectCell(const GameObjInst* pGlyph, u32 row, u32 column)
{
    EXPECT_EQ(pGlyph->texU, (f32)column / 26.0f);
    EXPECT_EQ(pGlyph->texV, (f32)row / 3.0f);
}

} // namespace

TEST_F(NameEntryTest, ALetterKeyAppendsTheSmallLetterAndMakesItsGlyphAtThePen)
{
    MakeCaret();
    Press({'K'});
    EXPECT_STREQ(gUserLevelName, "k");
    EXPECT_EQ(field.sNameLength, 1u);
    std::vector<GameObjInst*> glyphs = Live(TYPE_NAME_GLYPH);
    ASSERT_EQ(glyphs.size(), 1u);
    EXPECT_EQ(glyphs[0]->posCurr.x, FIELD_X - 90.0f);
    EXPECT_EQ(glyphs[0]->posCurr.y, FIELD_Y);
    EXPECT_EQ(glyphs[0]->scale, 10.0f);
    EXPECT_EQ(glyphs[0]->isInterface, 1);
    EXPECT_EQ(glyphs[0]->isHeld, 0);
    ExpectCell(glyphs[0], 0, 10);
}

TEST_F(NameEntryTest, TheCaretStartsOnThePlaceOfTheNextGlyphAndMovesTenPerLetter)
{
    MakeCaret();
    EXPECT_EQ(field.sCaret->posCurr.x, FIELD_X - 100.0f + 10.0f);
    EXPECT_EQ(field.sCaret->scale, 10.0f);
    EXPECT_EQ(field.sCaret->isInterface, 1);
    Press({'A'});
    Press({'B'});
    EXPECT_EQ(field.sCaret->posCurr.x, FIELD_X - 90.0f + 20.0f);
    std::vector<GameObjInst*> glyphs = Live(TYPE_NAME_GLYPH);
    ASSERT_EQ(glyphs.size(), 2u);
    EXPECT_EQ(glyphs[1]->posCurr.x, FIELD_X - 80.0f);
}

TEST_F(NameEntryTest, ACaretMadeAfterTypingStandsAfterTheLastGlyph)
{
    MakeCaret();
    Press({'A'});
    Press({'B'});
    Press({'C'});
    KRVec2 pos = CaretCreate(&field, FIELD_X, FIELD_Y, 100.0f, 10.0f, 1);
    EXPECT_EQ(pos.x, FIELD_X - 90.0f + 30.0f);
    EXPECT_EQ(Live(TYPE_CARET).size(), 1u) << "noCreate only computes the place";
}

TEST_F(NameEntryTest, ShiftGivesTheCapitalAndShowsTheThirdRow)
{
    Press({'G'}, {160});
    EXPECT_STREQ(gUserLevelName, "G");
    ExpectCell(Live(TYPE_NAME_GLYPH)[0], 2, 6);
    Press({'H'}, {161});
    EXPECT_STREQ(gUserLevelName, "GH");
}

TEST_F(NameEntryTest, ShiftWithPAppendsQAndShiftWithQAppendsPWhileTheGlyphsShowWhatWasTyped)
{
    Press({'P'}, {160});
    Press({'Q'}, {160});
    EXPECT_STREQ(gUserLevelName, "QP");
    std::vector<GameObjInst*> glyphs = Live(TYPE_NAME_GLYPH);
    ASSERT_EQ(glyphs.size(), 2u);
    ExpectCell(glyphs[0], 2, 'P' - 'A');
    ExpectCell(glyphs[1], 2, 'Q' - 'A');
}

TEST_F(NameEntryTest, SmallPAndQAreAsTheyLook)
{
    Press({'P'});
    Press({'Q'});
    EXPECT_STREQ(gUserLevelName, "pq");
}

TEST_F(NameEntryTest, ShiftWithEightGivesEightAndShiftWithMinusGivesUnderscore)
{
    Press({'8'}, {160});
    Press({189}, {161});
    EXPECT_STREQ(gUserLevelName, "8_");
    std::vector<GameObjInst*> glyphs = Live(TYPE_NAME_GLYPH);
    ASSERT_EQ(glyphs.size(), 2u);
    ExpectCell(glyphs[0], 1, 7);
    ExpectCell(glyphs[1], 1, 24);
}

TEST_F(NameEntryTest, ZeroSitsInTheTenthColumnAndSpaceGivesTheBlank)
{
    Press({'0'});
    Press({32});
    EXPECT_STREQ(gUserLevelName, "0 ");
    std::vector<GameObjInst*> glyphs = Live(TYPE_NAME_GLYPH);
    ExpectCell(glyphs[0], 1, 9);
    ExpectCell(glyphs[1], 1, 23);
}

TEST_F(NameEntryTest, MinusWithoutShiftAndOtherKeysGiveNothing)
{
    Press({189});
    Press({13});
    Press({190});
    EXPECT_STREQ(gUserLevelName, "");
    EXPECT_EQ(field.sNameLength, 0u);
    EXPECT_TRUE(Live(TYPE_NAME_GLYPH).empty());
}

TEST_F(NameEntryTest, TwoKeysInOneFrameGiveOnlyTheFirstInTableOrder)
{
    Press({'5', 'Z'});
    EXPECT_STREQ(gUserLevelName, "z") << "letters come before digits";
    Press({32, '3'});
    EXPECT_STREQ(gUserLevelName, "z3");
    EXPECT_EQ(Live(TYPE_NAME_GLYPH).size(), 2u);
}

TEST_F(NameEntryTest, AHeldKeyGivesOneCharacter)
{
    Press({'M'});
    Press({}, {'M'});
    Press({}, {'M'});
    EXPECT_STREQ(gUserLevelName, "m");
}

TEST_F(NameEntryTest, ANameOfNineteenCharactersTakesNoMore)
{
    for (int i = 0; i < 19; ++i)
        Press({'A' + (i % 26)});
    ASSERT_EQ(std::strlen(gUserLevelName), 19u);
    Press({'Z'});
    EXPECT_EQ(std::strlen(gUserLevelName), 19u);
    EXPECT_EQ(Live(TYPE_NAME_GLYPH).size(), 19u);
}

TEST_F(NameEntryTest, BackspaceTakesTheLastLetterItsGlyphAndMovesTheCaretBack)
{
    MakeCaret();
    Press({'A'});
    Press({'B'});
    f32 caretX = field.sCaret->posCurr.x;
    NameBackspace(&field);
    EXPECT_STREQ(gUserLevelName, "a");
    EXPECT_EQ(field.sNameLength, 1u);
    EXPECT_EQ(field.sCaret->posCurr.x, caretX - 10.0f);
    std::vector<GameObjInst*> glyphs = Live(TYPE_NAME_GLYPH);
    ASSERT_EQ(glyphs.size(), 1u);
    ExpectCell(glyphs[0], 0, 0);
}

TEST_F(NameEntryTest, BackspaceWithAnEmptyNameChangesNothing)
{
    MakeCaret();
    f32 caretX = field.sCaret->posCurr.x;
    NameBackspace(&field);
    EXPECT_STREQ(gUserLevelName, "");
    EXPECT_EQ(field.sNameLength, 0u);
    EXPECT_EQ(field.sCaret->posCurr.x, caretX);
}

TEST_F(NameEntryTest, BackspaceTakesTheHighestSlotGlyphEvenWhenALaterLetterFilledALowerGap)
{
    Press({'A'});
    KRVec2 at = {0.0f, 0.0f};
    GameObjInst* pGap = gameObjInstCreate(&sPool, TYPE_PLATFORM, 1.0f, &at, nullptr, 0.0f, nullptr);
    Press({'B'});
    gameObjInstDestroy(pGap);
    Press({'C'}); // lands in the freed slot, between a and b
    NameBackspace(&field);
    EXPECT_STREQ(gUserLevelName, "ab");
    std::vector<GameObjInst*> glyphs = Live(TYPE_NAME_GLYPH);
    ASSERT_EQ(glyphs.size(), 2u);
    ExpectCell(glyphs[0], 0, 0);
    // The picture lost b and kept c.
    ExpectCell(glyphs[1], 0, 2);
}

TEST_F(NameEntryTest, AFullPoolLosesTheGlyphButTheNameStillGrows)
{
    KRVec2 at = {0.0f, 0.0f};
    while (gameObjInstCreate(&sPool, TYPE_PLATFORM, 1.0f, &at, nullptr, 0.0f, nullptr))
    {
    }
    Press({'A'});
    EXPECT_STREQ(gUserLevelName, "a");
    EXPECT_EQ(field.sNameLength, 1u);
    EXPECT_TRUE(Live(TYPE_NAME_GLYPH).empty());
}

TEST_F(NameEntryTest, WriteTextLaysOutGlyphsAndReplacesTheLastMessage)
{
    WriteText(&sPool, KRVec2{10.0f, 20.0f}, "File not found", 10.0f, 0, TEXT_FONT_FULL);
    std::vector<GameObjInst*> glyphs = Live(TYPE_TEXT_GLYPH);
    ASSERT_EQ(glyphs.size(), 14u);
    EXPECT_EQ(glyphs[0]->posCurr.x, 10.0f);
    EXPECT_EQ(glyphs[13]->posCurr.x, 140.0f);
    EXPECT_EQ(glyphs[13]->posCurr.y, 20.0f);
    EXPECT_EQ(glyphs[0]->isInterface, 1);
    ExpectCell(glyphs[0], 2, 5);
    ExpectCell(glyphs[4], 1, 23);

    WriteText(&sPool, KRVec2{-50.0f, 0.0f}, "Save successful", 10.0f, 0, TEXT_FONT_FULL);
    glyphs = Live(TYPE_TEXT_GLYPH);
    ASSERT_EQ(glyphs.size(), 15u);
    EXPECT_EQ(glyphs[0]->posCurr.x, -50.0f);
    ExpectCell(glyphs[0], 2, 'S' - 'A');
}

TEST_F(NameEntryTest, WriteTextWithKeepAddsToWhatStands)
{
    WriteText(&sPool, KRVec2{0.0f, 0.0f}, "ab", 10.0f, 1, TEXT_FONT_NO_CAPITAL_O);
    WriteText(&sPool, KRVec2{0.0f, 0.0f}, "ab", 10.0f, 1, TEXT_FONT_NO_CAPITAL_O);
    EXPECT_EQ(Live(TYPE_TEXT_GLYPH).size(), 4u);
}

TEST_F(NameEntryTest, TheFullFontShowsCapitalOAndTheOtherSkipsItWithoutAdvancing)
{
    WriteText(&sPool, KRVec2{0.0f, 0.0f}, "LOAD", 10.0f, 0, TEXT_FONT_FULL);
    EXPECT_EQ(Live(TYPE_TEXT_GLYPH).size(), 4u);
    WriteText(&sPool, KRVec2{0.0f, 0.0f}, "LOAD", 8.0f, 0, TEXT_FONT_NO_CAPITAL_O);
    std::vector<GameObjInst*> glyphs = Live(TYPE_TEXT_GLYPH);
    ASSERT_EQ(glyphs.size(), 3u);
    EXPECT_EQ(glyphs[1]->posCurr.x, 8.0f) << "the A follows the L directly";
    EXPECT_EQ(glyphs[1]->scale, 8.0f);
}

TEST_F(NameEntryTest, TheWriterSkipsCharactersOutsideItsTable)
{
    WriteText(&sPool, KRVec2{0.0f, 0.0f}, "a-b.c!", 10.0f, 0, TEXT_FONT_FULL);
    std::vector<GameObjInst*> glyphs = Live(TYPE_TEXT_GLYPH);
    ASSERT_EQ(glyphs.size(), 3u);
    EXPECT_EQ(glyphs[2]->posCurr.x, 20.0f);
}

TEST(TextFont, TheFullFontKnowsSixtyFourCharactersAndTheOtherSixtyThree)
{
    int full = 0;
    int noCapitalO = 0;
    for (int c = 1; c < 128; ++c)
    {
        u32 row = 0;
        u32 column = 0;
        full += TextFontFind(TEXT_FONT_FULL, (char)c, &row, &column) ? 1 : 0;
        noCapitalO += TextFontFind(TEXT_FONT_NO_CAPITAL_O, (char)c, &row, &column) ? 1 : 0;
        EXPECT_LT(row, 3u);
        EXPECT_LT(column, 26u);
    }
    EXPECT_EQ(full, 64);
    EXPECT_EQ(noCapitalO, 63);
}
