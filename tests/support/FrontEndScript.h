// FrontEndScript.h -- script lines for scenario tests of the menu and the level selection: the cursor on a world
// point, a key at a step, where the level selection's items stand, and the digit a text glyph shows.
#pragma once

#include "gameobj.h"

#include <string>

// The screen is 800 by 600, so that window pixels are logical pixels.
const std::string kScreen = "screen 800 600\n";

// The cursor instance of both screens stands at (x - 390, 253 - y) for the window pixel (x, y): this line puts it
// on a world point from the step on.
inline std::string CursorAt(float worldX, float worldY, int step)
{
    return "cursor " + std::to_string((int)(worldX + 390.0f)) + " " + std::to_string((int)(253.0f - worldY)) +
           " " + std::to_string(step) + "\n";
}

inline std::string Key(const std::string& name, int step)
{
    return "key " + name + " " + std::to_string(step) + "\n";
}

// Where the level selection's items stand.
struct Spot
{
    float x, y;
};
const Spot kLevel[6] = {{-300, 150}, {-150, 150}, {0, 150}, {-300, 50}, {-150, 50}, {0, 50}};
const Spot kBattInc = {-50, -95};
const Spot kBattDec = {-50, -130};
const Spot kHpInc = {-50, -230};
const Spot kHpDec = {-50, -265};
const Spot kBack = {300, 200};
const Spot kField = {225, -215};
const Spot kLoad = {290, -265};
const Spot kNowhere = {150, -60}; // no item near

inline std::string CursorTo(Spot s, int step)
{
    return CursorAt(s.x, s.y, step);
}

// A release over a spot: the cursor there from step - 3, pressed at step, let go at step + 1.
inline std::string ReleaseOn(Spot s, int step)
{
    return CursorTo(s, step - 3) + Key("LButton", step);
}

// The digit a text glyph shows ('0' for column 9 of row 1), or '?' for any other cell.
inline char GlyphDigit(const GameObjInst* pGlyph)
{
    int row = (int)(pGlyph->texV * 3.0f + 0.5f);
    int column = (int)(pGlyph->texU * 26.0f + 0.5f);
    if (row != 1)
        return '?';
    return column == 9 ? '0' : (char)('1' + column);
}
