// gamestatelist.h -- the numbers of the game states. Level files and the state table index by them.
#pragma once

enum
{
    GS_EDITOR = 0,
    GS_LEVEL_0 = 1,
    GS_LEVEL_1 = 2,
    GS_LEVEL_2 = 3,
    GS_LEVEL_3 = 4,
    GS_LEVEL_4 = 5,
    GS_LEVEL_5 = 6,
    GS_LEVEL_USER = 7,
    GS_MENU = 8,
    GS_LS = 9,
    GS_SPLASH = 10,
    GS_CREDITS = 11,

    GS_STATE_NUM = 12, // real states, each with a row in the state table

    GS_RESTART = 12, // pseudo state: run the current state again
    GS_QUIT = 13,    // pseudo state: leave the main loop
};
