// gamestatemgr.h -- binds a state number to its six functions; says where the game is and where it goes.
#pragma once

#include "gamestatelist.h"

#include <cstdint>

typedef void (*GameStateFunc)();

// One row of the state table: the six functions of a state module, in slot order.
struct GameStateFuncs
{
    GameStateFunc load;
    GameStateFunc init;
    GameStateFunc update;
    GameStateFunc draw;
    GameStateFunc free;
    GameStateFunc unload;
};

extern int32_t gGameStateInit; // the state the game began with
extern int32_t gGameStateCurr; // the running state, or GS_RESTART / GS_QUIT between two visits
extern int32_t gGameStatePrev; // the state that ran before; only the restart path reads it
extern int32_t gGameStateNext; // what the running state wants next; every state writes it from its Update to leave

// The six slots, filled by GameStateMgrUpdate from the table.
extern GameStateFunc GameStateLoad;
extern GameStateFunc GameStateInit;
extern GameStateFunc GameStateUpdate;
extern GameStateFunc GameStateDraw;
extern GameStateFunc GameStateFree;
extern GameStateFunc GameStateUnload;

// The state table, one row per real state, indexed by state number (gamestatetable.cpp). Tests may replace rows.
extern GameStateFuncs gGameStateTable[GS_STATE_NUM];

void GameStateMgrInit(int32_t gameStateInit);
void GameStateMgrUpdate();
