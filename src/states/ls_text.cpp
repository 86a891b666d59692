// ls_text.cpp -- the level selection's text: the shared glyph writer with the screen's own font, and the writer
// of numbers.
//
// The screen's font leaves capital O out, though the sheet has its cell and name entry uses it: a quirk of this
// screen kept as it is. Any character outside it, the minus sign among them, makes no glyph and no advance.
#include "gamestate_ls_internal.h"

#include <sstream>
#include <string>

void WriteText(KRVec2 position, const char* text, f32 size, s32 keep)
{
    WriteText(LSPool(), position, text, size, keep, TEXT_FONT_NO_CAPITAL_O);
}

std::string IntToText(s32 value)
{
    std::ostringstream out;
    out << value;
    return out.str();
}
