// ScreenRun.h -- scenario tests of whole screens: the real start-up and loop on the scripted back-end, one frame
// at a time, with the live state's probe, its pool and screenshots at chosen frames.
#pragma once

#include "gameobj.h"

#include <string>

// A fresh home folder (so the save folder is empty), then the game started at state with the script.
// Step s of the script is frame s of the first visit (step 0 also holds its Load and Init).
void ScreenStart(int state, const std::string& script);

// Runs n frames through GameLoopStep; stops early when the game has ended.
void ScreenSteps(int n);

// Whether the game still runs (it hasn't reached GS_QUIT).
bool ScreenRunning();

// Runs frames until the script's step has reached step (the frame of that step has run).
void ScreenStepsTo(int step);

// Runs frames while the state is the current one, at most maxFrames; stops right after the frame that left it.
// Returns the frames run.
int ScreenStepsWhileIn(int state, int maxFrames);

// The live state's probe text, and one of its values as a number or as text ("" when absent).
std::string ScreenProbe();
double ProbeNumber(const std::string& key);
std::string ProbeValue(const std::string& key);

// The nth live instance of the kind in the live state's pool, in slot order, or null; and how many there are.
GameObjInst* LiveOfKind(u32 kind, int nth = 0);
int CountLive(u32 kind);

// A screenshot of the frame presented at that step (which is drawn), into the test output folder under the name
// given.
void ScreenshotAtStep(int step, const std::string& fileName);

// Asks for GS_QUIT and runs the loop to its end.
void ScreenFinish();

// Ends the game right after a frame that left a state, before the next state's visit opens: for tests that
// check where a screen leads without running what lies there.
void ScreenFinishBeforeNextVisit();

// The save folder's progress file, as text ("" when missing), and a way to write it before a visit.
std::string ReadStatesFile();
void WriteStatesFile(const std::string& text);
