// GameRun.h -- runs the real start-up and main loop on the scripted back-end.
#pragma once

#include <cstdint>

// Chooses the scripted back-end, resets it and reads the script (see KRPlatformScripted.h), then starts the game
// at firstState and runs the main loop until GS_QUIT. Fails the calling test when the script cannot be read.
void RunGameScripted(int32_t firstState, const char* script);

// Only the start-up, for tests that drive single frames themselves.
void StartGameScripted(int32_t firstState, const char* script);
