// GameRun.h -- runs the real start-up and main loop on the scripted back-end.
#pragma once

#include <cstdint>

// Chooses the scripted back-end, resets it and reads the script (see KRPlatformScripted.h), then starts the game
// at firstState and runs the main loop until GS_QUIT. Fails the calling test when the script cannot be read.
void RunGameScripted(int32_t firstState, const char* script);

// Only the start-up, for tests that drive single frames themselves.
void StartGameScripted(int32_t firstState, const char* script);

// A game run on the scripted back-end draws none of its frames (they pass through the loop and OpenGL, but nothing
// is shaded: the software renderer's shading is most of a test's time). What looks at pictures asks for them: the
// screenshot and pixel-sampling helpers ask for the frames they take, and a test that reads the back buffer itself
// calls this once its run has started. Reading a frame that was not drawn fails the test (see TestEnv.h).
void DrawEveryFrame();

// Back to drawing none of the frames, for a stretch of a run that nobody looks at.
void DrawNoFrame();
