// gamestate_menu.h -- the main menu, GS_MENU: the six entry points of the state table, and its probe.
#pragma once

#include <string>

void GameStateMenuLoad();
void GameStateMenuInit();
void GameStateMenuUpdate();
void GameStateMenuDraw();
void GameStateMenuFree();
void GameStateMenuUnload();

// The menu's variables for testers: selection, mouse or keyboard, fade, pages, torch angle, the character.
void MenuProbe(std::string* pOut);
