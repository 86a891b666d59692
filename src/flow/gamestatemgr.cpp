// gamestatemgr.cpp -- the four state numbers and the six slots.
//
// Owns:    gGameStateInit, gGameStateCurr, gGameStatePrev, gGameStateNext and the slots.
// Read by: the main loop, which calls the slots; every state, which writes gGameStateNext to leave.
//
// No stack of states and no objects: exactly one state is active.
#include "gamestatemgr.h"

#include <cstdio>
#include <cstdlib>

int32_t gGameStateInit = 0;
int32_t gGameStateCurr = 0;
int32_t gGameStatePrev = 0;
int32_t gGameStateNext = 0;

GameStateFunc GameStateLoad = nullptr;
GameStateFunc GameStateInit = nullptr;
GameStateFunc GameStateUpdate = nullptr;
GameStateFunc GameStateDraw = nullptr;
GameStateFunc GameStateFree = nullptr;
GameStateFunc GameStateUnload = nullptr;

void GameStateMgrInit(int32_t gameStateInit)
{
    gGameStateInit = gameStateInit;
    gGameStateCurr = gameStateInit;
    gGameStatePrev = gameStateInit;
    gGameStateNext = gameStateInit;
    GameStateMgrUpdate();
}

void GameStateMgrUpdate()
{
    if (gGameStateCurr == GS_RESTART || gGameStateCurr == GS_QUIT)
        return;

    // Above the last real state, or negative: the one check the manager makes. No line end after the message.
    if (gGameStateCurr < 0 || gGameStateCurr >= GS_STATE_NUM)
    {
        std::printf("KR_FATAL_ERROR: invalid state!!");
        std::fflush(stdout);
        std::exit(1);
    }

    const GameStateFuncs& row = gGameStateTable[gGameStateCurr];
    GameStateLoad = row.load;
    GameStateInit = row.init;
    GameStateUpdate = row.update;
    GameStateDraw = row.draw;
    GameStateFree = row.free;
    GameStateUnload = row.unload;
}
