// level_state.h -- the one implementation of the seven level states, driven by their rows of level_table.h.
//
// A level state is its pool, its variables and its row. Each state's unit keeps its own record and forwards its
// six entry points here; LEVEL_STATE_ENTRY_POINTS writes them.
#pragma once

#include "gameobj.h"
#include "level_table.h"
#include "levelvars.h"

struct LevelState
{
    GameObjPool pool;
    LevelVars vars;
    const LevelConfig* pConfig;
};

void LevelLoad(LevelState* pLevel, const LevelConfig* pConfig);
void LevelInit(LevelState* pLevel);
void LevelUpdate(LevelState* pLevel);
void LevelDraw(LevelState* pLevel);
// Draws only the level's world kinds, each as LevelDraw would: no darkness, HUD, pause screens or overlays. For the
// level shot tool, which scales the transforms first.
void LevelDrawWorld(LevelState* pLevel);
void LevelFree(LevelState* pLevel);
void LevelUnload(LevelState* pLevel);

// The level whose visit is open, for tests and the replay tool; null between visits of levels.
LevelState* LevelStateLive();

// Defines a level state's record and its six entry points GameStateLevel_<N>Load ... Unload.
#define LEVEL_STATE_ENTRY_POINTS(N, ROW)                                                                           \
    static LevelState sLevel;                                                                                      \
    void GameStateLevel_##N##Load() { LevelLoad(&sLevel, &gLevelConfigs[ROW]); }                                   \
    void GameStateLevel_##N##Init() { LevelInit(&sLevel); }                                                        \
    void GameStateLevel_##N##Update() { LevelUpdate(&sLevel); }                                                    \
    void GameStateLevel_##N##Draw() { LevelDraw(&sLevel); }                                                        \
    void GameStateLevel_##N##Free() { LevelFree(&sLevel); }                                                        \
    void GameStateLevel_##N##Unload() { LevelUnload(&sLevel); }
