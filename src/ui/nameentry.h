// nameentry.h -- typing the user level's name into a field of glyphs, and writing one-line texts as glyphs.
//
// Shared by the level editor and level selection. Both keep the name in gUserLevelName (userlevel.h) and show it
// as TYPE_NAME_GLYPH instances of their own pool, with a TYPE_CARET after the last one; both write messages as
// TYPE_TEXT_GLYPH instances. Every glyph is a cell of the font picture, a sheet of 26 columns by 3 rows:
//   row 0: a to z;  row 1: 1 to 9, 0 in columns 0 to 9, the blank in 23, '_' in 24;  row 2: A to Z.
// A glyph's texture offset picks its cell: texU = column / 26, texV = row / 3.
//
// A screen keeps one NameField record as its file static and calls, each frame it edits:
//     if (std::strlen(gUserLevelName) < USER_LEVEL_NAME_MAX && sNameFocus && sField.pCaret)
//         NameEntry(&sField, fieldX, fieldY);
//     if (KRInputCheckTriggered(8) && sNameFocus && sField.pCaret)
//         NameBackspace(&sField);
#pragma once

#include "KRTypes.h"
#include "KRVec2.h"

struct GameObjInst;
struct GameObjPool;

// One screen's name field: the pool its glyphs live in, the glyphs typed, the caret.
struct NameField
{
    GameObjPool* pPool;   // the screen's pool; glyphs and caret are created in it
    u32 sNameLength;      // letters typed: normally the number of live TYPE_NAME_GLYPH instances
    GameObjInst* sCaret;  // the caret while it exists, else null
};

// One frame of typing. At most one key is taken, the first of this order whose key was just pressed:
//   A to Z with either Shift down: the capital;  A to Z: the small letter;  1 to 9, then 0: the digit (Shift
//   is not looked at);  minus (189) with either Shift down: '_';  Space: the blank.
// The key makes a TYPE_NAME_GLYPH of scale 10 at (10 sNameLength + fieldX - 90, fieldY), held 0, interface 1,
// raises sNameLength, appends the character to gUserLevelName and moves the caret 10 right.
// With Shift, P shows the glyph of P but appends 'Q', and Q shows Q but appends 'P': a name typed so is found
// again by typing the same keys, and that crossing is kept on both screens.
// The caller stops calling at 19 characters; a name already that long is left alone here too. When the pool is
// full the glyph is lost, and the length and the name still grow.
void NameEntry(NameField* pField, f32 fieldX, f32 fieldY);

// Counts the live TYPE_NAME_GLYPH instances from slot 0; the one at the count sNameLength is destroyed, the
// length lowered, the last character of gUserLevelName removed and the caret moved 10 left. The glyph taken is
// the highest-slot one, which is the last typed only while glyphs got rising slots. At length 0 nothing changes.
void NameBackspace(NameField* pField);

// The caret's place: (x - width + sNameLength size + size, y), the place of the next glyph. Unless noCreate is
// set, a TYPE_CARET of scale size is created there (held 0, interface 1, offset 0) and stored as sCaret.
KRVec2 CaretCreate(NameField* pField, f32 x, f32 y, f32 width, f32 size, u8 noCreate);

// The font lookup of the writer. The editor's knows 64 characters (a to z, 1 to 9, 0, '_', A to Z, the blank);
// level selection's lacks the capital O, though the sheet has the cell.
enum TextFont
{
    TEXT_FONT_FULL,
    TEXT_FONT_NO_CAPITAL_O,
};

// The cell of a character in the font: true with its row and column, false when the font lacks it.
bool TextFontFind(TextFont font, char c, u32* pRow, u32* pColumn);

// Writes text as TYPE_TEXT_GLYPH instances of scale size (held 0, interface 1), the first at position, each next
// one size further right. A character the font lacks makes no glyph and no advance. Unless keep is set, every
// live TYPE_TEXT_GLYPH of the pool is destroyed first, which takes the previous message away.
void WriteText(GameObjPool* pPool, KRVec2 position, const char* text, f32 size, s32 keep, TextFont font);
