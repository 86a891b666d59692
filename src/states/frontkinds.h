// frontkinds.h -- the kind numbers of the main menu and the level selection.
//
// They mean something only inside the state that registers them: 72 is the pause menu's resume button in a
// level and the credits button in the main menu, 35 the tutorial box in a level and the name field here.
#pragma once

#include "gameobjkinds.h"

enum
{
    // The main menu.
    TYPE_QUIT_BTN = 42,
    TYPE_CONTROL_BTN = 43,
    TYPE_START_BTN = 44,
    TYPE_TITLE = 63,
    TYPE_CREDITS_BTN = 72,

    // The level selection and its attribute panel.
    TYPE_LEVEL_BTN_1 = 47,
    TYPE_LEVEL_BTN_2 = 48,
    TYPE_LEVEL_BTN_3 = 49,
    TYPE_LEVEL_BTN_4 = 50,
    TYPE_LEVEL_BTN_5 = 51,
    TYPE_LEVEL_BTN_6 = 52,
    TYPE_STAT_BAR_BATT = 53,
    TYPE_STAT_BAR_HP = 54,
    TYPE_ATTRI_HP = 55,
    TYPE_ATTRI_BATT = 56,
    TYPE_BATT_INC = 57,
    TYPE_BATT_DEC = 58,
    TYPE_HP_INC = 59,
    TYPE_HP_DEC = 60,
    TYPE_ATTR_TITLE = 61,
    TYPE_EDITOR_BTN = 62,
    TYPE_LS_BACKGROUND = 64,
    TYPE_LS_TORCH = 65,
    TYPE_SP_LABEL = 74,
    TYPE_PEEK = 81,
    TYPE_SELECT_BOX = 84,
    TYPE_SELECT_LINE = 85,
};
