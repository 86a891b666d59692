// stateprobe.h -- what the running state tells a tester: its variables as name=value pairs.
//
// The replay tool and scenario tests print the live state's probe after a frame. A state names its probe in its
// Load (GameStateProbeSet) and takes it back in its Unload (GameStateProbeSet(nullptr)). The names are the
// variables' own (sGravityInverted, sMenuSelection), or a short plain key where a value has no name (camx,
// torchangle). Nothing in the game reads a probe.
#pragma once

#include <string>

typedef void (*GameStateProbeFn)(std::string* pOut);

void GameStateProbeSet(GameStateProbeFn fn);
GameStateProbeFn GameStateProbeGet();

// Appends " name=value": integers as they are, floats with up to six significant digits (%g).
void ProbeInt(std::string* pOut, const char* name, long value);
void ProbeFloat(std::string* pOut, const char* name, double value);
void ProbeText(std::string* pOut, const char* name, const char* value);
