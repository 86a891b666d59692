// stateprobe.cpp -- the live state's probe and the writers of its pairs.
#include "stateprobe.h"

#include <cstdio>

static GameStateProbeFn sProbe = nullptr;

void GameStateProbeSet(GameStateProbeFn fn)
{
    sProbe = fn;
}

GameStateProbeFn GameStateProbeGet()
{
    return sProbe;
}

void ProbeInt(std::string* pOut, const char* name, long value)
{
    char text[64];
    std::snprintf(text, sizeof(text), "%ld", value);
    ProbeText(pOut, name, text);
}

void ProbeFloat(std::string* pOut, const char* name, double value)
{
    char text[64];
    std::snprintf(text, sizeof(text), "%g", value);
    ProbeText(pOut, name, text);
}

void ProbeText(std::string* pOut, const char* name, const char* value)
{
    *pOut += ' ';
    *pOut += name;
    *pOut += '=';
    *pOut += value;
}
