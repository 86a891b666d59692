// nameentry.cpp -- the name field's typing, backspace and caret, and the glyph writer of messages.
//
// Owns:    the key table of the name field and the font lookup of the writer.
// Changes: the caller's NameField, gUserLevelName, the caller's pool (glyphs and caret).
// Used by: the level editor and level selection.
#include "nameentry.h"

#include "KRInput.h"
#include "gameobj.h"
#include "userlevel.h"

#include <cstring>

namespace {

const u32 FONT_COLUMNS = 26;
const u32 FONT_ROWS = 3;

const unsigned char KEY_SHIFT_LEFT = 160;
const unsigned char KEY_SHIFT_RIGHT = 161;
const unsigned char KEY_MINUS = 189;
const unsigned char KEY_SPACE = 32;

// The glyph scale and the pen's step of typed names.
const f32 NAME_GLYPH_SIZE = 10.0f;

bool ShiftDown()
{
    return KRInputCheckCurr(KEY_SHIFT_RIGHT) || KRInputCheckCurr(KEY_SHIFT_LEFT);
}

GameObjInst* GlyphCreate(GameObjPool* pPool, u32 kind, f32 size, KRVec2 pos, u32 row, u32 column)
{
    KRVec2 zero = {0.0f, 0.0f};
    f32 texU = (f32)column / (f32)FONT_COLUMNS;
    f32 texV = (f32)row / (f32)FONT_ROWS;
    return gameObjInstCreate(pPool, kind, size, &pos, &zero, 0.0f, &zero, 0, 1, texU, texV);
}

// The key of this frame in table order: the character appended to the name and the cell shown. False when no
// key of the table was just pressed.
bool NameKeyFind(char* pAppended, u32* pRow, u32* pColumn)
{
    if (ShiftDown())
    {
        for (u32 key = 'A'; key <= 'Z'; ++key)
        {
            if (!KRInputCheckTriggered((unsigned char)key))
                continue;
            char appended = (char)key;
            // The crossing of P and Q with Shift: the picture is right, the text is the other letter.
            if (key == 'P')
                appended = 'Q';
            else if (key == 'Q')
                appended = 'P';
            *pAppended = appended;
            *pRow = 2;
            *pColumn = key - 'A';
            return true;
        }
    }
    for (u32 key = 'A'; key <= 'Z'; ++key)
    {
        if (!KRInputCheckTriggered((unsigned char)key))
            continue;
        *pAppended = (char)('a' + (key - 'A'));
        *pRow = 0;
        *pColumn = key - 'A';
        return true;
    }
    for (u32 key = '1'; key <= '9'; ++key)
    {
        if (!KRInputCheckTriggered((unsigned char)key))
            continue;
        *pAppended = (char)key;
        *pRow = 1;
        *pColumn = key - '1';
        return true;
    }
    if (KRInputCheckTriggered('0'))
    {
        *pAppended = '0';
        *pRow = 1;
        *pColumn = 9;
        return true;
    }
    if (ShiftDown() && KRInputCheckTriggered(KEY_MINUS))
    {
        *pAppended = '_';
        *pRow = 1;
        *pColumn = 24;
        return true;
    }
    if (KRInputCheckTriggered(KEY_SPACE))
    {
        *pAppended = ' ';
        *pRow = 1;
        *pColumn = 23;
        return true;
    }
    return false;
}

} // namespace

bool TextFontFind(TextFont font, char c, u32* pRow, u32* pColumn)
{
    if (c >= 'a' && c <= 'z')
    {
        *pRow = 0;
        *pColumn = (u32)(c - 'a');
        return true;
    }
    if (c >= '1' && c <= '9')
    {
        *pRow = 1;
        *pColumn = (u32)(c - '1');
        return true;
    }
    if (c == '0')
    {
        *pRow = 1;
        *pColumn = 9;
        return true;
    }
    if (c == '_')
    {
        *pRow = 1;
        *pColumn = 24;
        return true;
    }
    // Level selection's table has no row for the capital O; its messages show a gap there.
    if (c >= 'A' && c <= 'Z' && !(c == 'O' && font == TEXT_FONT_NO_CAPITAL_O))
    {
        *pRow = 2;
        *pColumn = (u32)(c - 'A');
        return true;
    }
    if (c == ' ')
    {
        *pRow = 1;
        *pColumn = 23;
        return true;
    }
    return false;
}

void NameEntry(NameField* pField, f32 fieldX, f32 fieldY)
{
    size_t length = std::strlen(gUserLevelName);
    // The callers stop at 19 already; this keeps the shared buffer whole whatever a caller does.
    if (length >= (size_t)USER_LEVEL_NAME_MAX)
        return;

    KRVec2 pen = {NAME_GLYPH_SIZE * (f32)pField->sNameLength + fieldX - 90.0f, fieldY};
    char appended = 0;
    u32 row = 0;
    u32 column = 0;
    if (!NameKeyFind(&appended, &row, &column))
        return;

    // A full pool loses the glyph without a word; the name grows all the same.
    GlyphCreate(pField->pPool, TYPE_NAME_GLYPH, NAME_GLYPH_SIZE, pen, row, column);
    pField->sNameLength += 1;
    gUserLevelName[length] = appended;
    gUserLevelName[length + 1] = '\0';
    if (pField->sCaret)
        pField->sCaret->posCurr.x += NAME_GLYPH_SIZE;
}

void NameBackspace(NameField* pField)
{
    u32 count = 0;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; ++i)
    {
        GameObjInst* pInst = &pField->pPool->sGameObjInstList[i];
        if (!(pInst->flag & FLAG_ACTIVE) || pInst->pObject->type != TYPE_NAME_GLYPH)
            continue;
        ++count;
        if (count != pField->sNameLength)
            continue;

        gameObjInstDestroy(pInst);
        pField->sNameLength -= 1;
        size_t length = std::strlen(gUserLevelName);
        if (length > 0)
            gUserLevelName[length - 1] = '\0';
        if (pField->sCaret)
            pField->sCaret->posCurr.x -= NAME_GLYPH_SIZE;
        return;
    }
}

KRVec2 CaretCreate(NameField* pField, f32 x, f32 y, f32 width, f32 size, u8 noCreate)
{
    KRVec2 pos = {x - width + (f32)pField->sNameLength * size + size, y};
    if (!noCreate)
    {
        KRVec2 zero = {0.0f, 0.0f};
        pField->sCaret = gameObjInstCreate(pField->pPool, TYPE_CARET, size, &pos, &zero, 0.0f, &zero, 0, 1, 0.0f,
                                           0.0f);
    }
    return pos;
}

void WriteText(GameObjPool* pPool, KRVec2 position, const char* text, f32 size, s32 keep, TextFont font)
{
    if (!keep)
    {
        for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; ++i)
        {
            GameObjInst* pInst = &pPool->sGameObjInstList[i];
            if ((pInst->flag & FLAG_ACTIVE) && pInst->pObject->type == TYPE_TEXT_GLYPH)
                gameObjInstDestroy(pInst);
        }
    }

    KRVec2 pen = position;
    for (const char* p = text; *p; ++p)
    {
        u32 row = 0;
        u32 column = 0;
        if (!TextFontFind(font, *p, &row, &column))
            continue;
        GlyphCreate(pPool, TYPE_TEXT_GLYPH, size, pen, row, column);
        pen.x += size;
    }
}
