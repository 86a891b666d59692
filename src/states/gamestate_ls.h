// gamestate_ls.h -- the level selection, GS_LS: the six entry points of the state table, and its probe.
#pragma once

#include <string>

void GameStateLSLoad();
void GameStateLSInit();
void GameStateLSUpdate();
void GameStateLSDraw();
void GameStateLSFree();
void GameStateLSUnload();

// The screen's variables for testers: selection, keyboard flag, name, caret, skill points and attributes.
void LSProbe(std::string* pOut);
