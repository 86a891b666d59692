// level_states.h -- the six entry points of each of the seven level states.
#pragma once

#define LEVEL_STATE_DECLARE(N)                                                                                     \
    void GameStateLevel_##N##Load();                                                                               \
    void GameStateLevel_##N##Init();                                                                               \
    void GameStateLevel_##N##Update();                                                                             \
    void GameStateLevel_##N##Draw();                                                                               \
    void GameStateLevel_##N##Free();                                                                               \
    void GameStateLevel_##N##Unload();

LEVEL_STATE_DECLARE(0)
LEVEL_STATE_DECLARE(1)
LEVEL_STATE_DECLARE(2)
LEVEL_STATE_DECLARE(3)
LEVEL_STATE_DECLARE(4)
LEVEL_STATE_DECLARE(5)
LEVEL_STATE_DECLARE(User)

#undef LEVEL_STATE_DECLARE

#define LEVEL_STATE_ROW(N)                                                                                         \
    {GameStateLevel_##N##Load, GameStateLevel_##N##Init, GameStateLevel_##N##Update, GameStateLevel_##N##Draw,    \
     GameStateLevel_##N##Free, GameStateLevel_##N##Unload}
