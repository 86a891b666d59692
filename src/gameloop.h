// gameloop.h -- the whole life of the process: start-up, then one outer loop per visit of a state and one inner
// loop per frame.
#pragma once

#include <cstdint>

extern float gFrameDelta; // length of the last finished frame, seconds; 0 until the first frame has ended
extern double gAppTime;   // running total of every gFrameDelta; written here, read by nobody

// Sound, engine, window title "Quillon", full screen, black background, then the state manager at firstState.
void GameStartUp(int32_t firstState);

// Runs states until GS_QUIT, then ends the engine.
void GameMainLoop();
