// playkeys.h -- the keys of play, by their virtual-key numbers.
#pragma once

enum
{
    PLAY_KEY_LBUTTON = 1,
    PLAY_KEY_RETURN = 13,
    PLAY_KEY_ESCAPE = 27,
    PLAY_KEY_SPACE = 32,
    PLAY_KEY_0 = 48,
    PLAY_KEY_A = 65,
    PLAY_KEY_D = 68,
};

// The angles of play, as the 32-bit floats the movement uses for pi, pi / 2 and 3 pi / 2.
const float PLAY_PI = 3.1415925f;
const float PLAY_HALF_PI = 1.5707963f;
const float PLAY_THREE_HALF_PI = 4.712389f;
