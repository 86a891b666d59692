// gamestate_ls_internal.h -- what the units of the level selection share. Nothing outside it includes this.
//
// gamestate_ls.cpp    the screen: kinds, pictures, instances, the frame's order, items, boxes, drawing, probes
// ls_attributes.cpp   the character attribute panel: skill points, spending and refunding, the pips
// ls_text.cpp         text as glyph instances: the screen's own font table and the number writer
#pragma once

#include "gameobj.h"
#include "nameentry.h"

#include <string>

// The items of the screen as the selection numbers them.
enum
{
    LS_ITEM_LEVEL_1 = 0, // to LS_ITEM_LEVEL_1 + 5
    LS_ITEM_BATT_INC = 6,
    LS_ITEM_BATT_DEC = 7,
    LS_ITEM_HP_INC = 8,
    LS_ITEM_HP_DEC = 9,
    LS_ITEM_EDITOR = 10,
    LS_ITEM_LOAD = 11,
    LS_ITEM_BACK = 12,
    LS_ITEM_NUM = 13,
};

struct LSState
{
    // Kept from one visit to the next for the length of the run.
    s32 sLSSelection;
    u8 sLSKeyboard; // the keyboard has the say over the torch
    s32 sLSPeek;    // the preview shown, 1 to 6
    s32 lastX, lastY;
    u8 sNameFocus;
    u8 sCaretShown;

    // Set by each Init.
    f32 sLSFade;
    s32 sLSFadeAction; // 0 in; 1 nothing; 2 menu; 3, 4 levels 0, 1; 5 user; 6 editor; 7 to 10 levels 2 to 5
    NameField field; // the glyphs typed (sNameLength) and the caret (sCaret), in this screen's pool

    s32 sSkillPointsTotal;
    s32 sSkillPoints;
};

extern LSState gLS;

// The state's own creation routine, the long form: interface flag set, texture offset given.
GameObjInst* LSCreate(u32 type, f32 scale, f32 x, f32 y, f32 texU, f32 texV);
GameObjPool* LSPool();

// The instances of the items, by item number, and the other instances the rules reach.
extern GameObjInst* gLSItems[LS_ITEM_NUM];
extern GameObjInst* gLSCursor;
extern GameObjInst* gLSNameField;

// ls_text.cpp
// Lays text out as TYPE_TEXT_GLYPH instances of the given size from position rightward, by the shared writer.
// keep 0 first removes every glyph written before. The screen's font has 63 characters: capital O is not among
// them, nor the minus.
void WriteText(KRVec2 position, const char* text, f32 size, s32 keep);
// The decimal digits of a signed integer, through a text stream.
std::string IntToText(s32 value);

// ls_name.cpp
void LSNameField(); // steps of the caret, typing and backspace

// ls_attributes.cpp
void AttrPanelCreate();            // the panel's instances, in their order
void AttrPanelInit();              // skill points from the progress file, and the number written
void AttrPanelByKeyboard(s32 item); // Return on items 6 to 9
void AttrPanelByMouse();           // the release of the left button over one of the four buttons
// Whether Draw shows this pip: the first gAttrBattery of kind 53 and the first gAttrHealth of kind 54.
u8 AttrPipShown(const GameObjInst* pInst);
