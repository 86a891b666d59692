// userlevel.h -- the user level: its shared name and where its file lies.
#pragma once

#include <string>

// The longest name the entry routines accept.
const int USER_LEVEL_NAME_MAX = 19;

// The user level's name without extension, typed in level selection or the editor; letters, digits, '_' and
// the blank only, so it never holds a separator or a dot. Shared by level selection, the editor and the user
// level; each of the first two empties it at its Init.
extern char gUserLevelName[USER_LEVEL_NAME_MAX + 1];

// The save folder path of gUserLevelName with ".txt" behind it.
std::string UserLevelPath();

// Whether that file can be opened for reading.
bool UserLevelExists();
