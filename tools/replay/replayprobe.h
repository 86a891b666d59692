// replayprobe.h -- the probe line: where the game is, where it goes, how many instances live, and the live
// state's own pairs (stateprobe.h).
#pragma once

#include <cstdint>
#include <string>

// "GS_SPLASH" for 10 and so on, GS_RESTART and GS_QUIT included; null for a number that is no state.
const char* ReplayStateName(int32_t state);

// The number of a name such as "GS_MENU" among the real states (GS_EDITOR to GS_CREDITS), or -1.
int32_t ReplayStateFromName(const char* name);

// The live instances of the live state's pool (GameStatePoolSet), 0 when no pool is named.
int ReplayLiveInstances();

// The probe line of a frame comes in two pieces, since the frame's end (the window's close) may still change the
// next state after the state has drawn: the pieces are taken at the present, the next state once the frame is
// over. ReplayProbeLine(pieces, next) gives "probe step=<n> state=<GS_NAME> next=<GS_NAME> instances=<count>" and
// then the pairs of the state's probe function, if it named one. No line end.
struct ReplayProbe
{
    int step;
    int32_t state;
    std::string rest; // " instances=<count>" and the state's pairs
};

ReplayProbe ReplayProbeTake(int step);
std::string ReplayProbeLine(const ReplayProbe& probe, int32_t next);
