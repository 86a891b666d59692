// gameloop.h -- the whole life of the process: start-up, then one outer loop per visit of a state and one inner
// loop per frame.
#pragma once

#include <cstdint>

extern float gFrameDelta; // length of the last finished frame, seconds; 0 until the first frame has ended
extern double gAppTime;   // running total of every gFrameDelta; written here, read by nobody

// Sound, engine, window title "Quillon", full screen, black background, then the state manager at firstState.
void GameStartUp(int32_t firstState);

// Runs states until GS_QUIT, then ends the engine: GameLoopStep until it says no more.
void GameMainLoop();

// The loop one frame at a time, for tests and the replay tool. Opens the visit of the current state when none is
// open (reset, music pump, input, Load unless restarting, Init, input), runs one frame, and closes the visit (Free,
// Unload unless restarting) when that frame asked for another state. A visit whose Init already asked to leave
// runs no frame and is closed at once. The order of calls is exactly GameMainLoop's. Returns false, after
// KRSysExit, once the game has reached GS_QUIT.
bool GameLoopStep();
