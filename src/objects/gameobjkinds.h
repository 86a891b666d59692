// gameobjkinds.h -- the kind numbers of the play world and of the level editor.
//
// A kind number picks a template out of a state's template array, and level files store it, so every number
// here is frozen: never renumber, never reuse. The front-end screens (menu, level selection, splash, credits) use
// further numbers of their own, declared beside those states; some of them collide with numbers below on
// purpose, since a number means something only inside the state that registers it.
#pragma once

enum
{
    // The world and the level HUD.
    TYPE_WALL = 2,
    TYPE_PLATFORM = 3,
    TYPE_PLATFORM_LONG = 4,
    TYPE_PLATFORM_MOVING = 5,
    TYPE_SPIKE_UP = 6,
    TYPE_SPIKE_DOWN = 7,
    TYPE_CHARACTER = 8,
    TYPE_HAND = 9,
    TYPE_EXIT_PORTAL = 10,
    TYPE_DARKNESS = 11,
    TYPE_ZOOM_POWERUP = 12,
    TYPE_BACKGROUND = 13,
    TYPE_HEART = 14,
    TYPE_SIDEBAR = 15,
    TYPE_SIDEBAR_BG = 16,
    TYPE_BATTERY_BAR = 17,
    TYPE_PAUSE_DIM = 18,
    TYPE_BATTERY_FADE = 19,
    TYPE_CURSOR = 20,
    TYPE_SPIKE_ROW_UP = 27,
    TYPE_SPIKE_ROW_DOWN = 28,
    TYPE_WIN_SCREEN = 29,
    TYPE_LOSE_SCREEN = 30,
    TYPE_BATTERYP = 32,
    TYPE_DROP_WALL = 33,
    TYPE_MOVING_WALL = 34,
    TYPE_TEXTBOX = 35,
    TYPE_COMPASS = 39,
    TYPE_INVERT_UP = 40,
    TYPE_INVERT_DOWN = 41,
    TYPE_BACK_BTN = 46,
    TYPE_EXIT_BTN = 68,
    TYPE_HELP_BTN = 69,
    TYPE_LEVELS_BTN = 70,
    TYPE_OPTION_BTN = 71,
    TYPE_RESUME_BTN = 72,
    TYPE_OPTION_MENU = 75,
    TYPE_OPTION_FS = 76,
    TYPE_OPTION_VU = 77,
    TYPE_OPTION_VD = 78,
    TYPE_HUD_DESIGN = 79,
    TYPE_PAUSE_TITLE = 80,
    TYPE_HELP_SCREEN = 82,
    TYPE_BLINK_SCREEN = 83,
    TYPE_CRUSH_FADE = 90,
    TYPE_ARE_YOU_SURE = 95,
    TYPE_YES_BTN = 96,
    TYPE_NO_BTN = 97,
    TYPE_DAMAGE_FLASH = 98,

    // The level editor's own kinds. Level selection reuses the name field, the load button, the glyphs and the
    // caret with the same numbers.
    TYPE_TOOLBAR = 21,
    TYPE_SAVE_BTN = 22,
    TYPE_LOAD_BTN = 23,
    TYPE_CLEAR_BTN = 24,
    TYPE_PLAY_BTN = 25,
    TYPE_EDITOR_EXIT_BTN = 26,
    TYPE_NAME_FIELD = 35, // the tutorial box's number; the editor gives it another mesh
    TYPE_NAME_GLYPH = 36,
    TYPE_SPARE_GLYPH = 37, // registered and drawn by the editor, never created
    TYPE_TEXT_GLYPH = 38,
    TYPE_CARET = 67,
};
