// savefolder.h -- the one folder the game writes the user's files into: the documents folder plus
// "Varnholt/Mandrel/".
#pragma once

#include <string>

// The code printed after "Error: " when no documents folder can be determined (no home folder at all).
const int DOCUMENTS_FOLDER_ERROR = 2;

// Finds the user's documents folder, without a trailing separator: $XDG_DOCUMENTS_DIR when set and not empty;
// else the XDG_DOCUMENTS_DIR line of the user-dirs configuration ($XDG_CONFIG_HOME/user-dirs.dirs, by default
// ~/.config/user-dirs.dirs); else $HOME/Documents. When none can be determined, prints "Error: " and
// DOCUMENTS_FOLDER_ERROR on the console, leaves *pFolder empty and returns false.
bool DocumentsFolder(std::string* pFolder);

// The path of the file name in the save folder. The folder is not created here. When no documents folder can
// be determined the path is built on an empty folder name, that is from the root.
std::string SaveFolderPath(const char* name);

// Makes the save folder in two steps, "Varnholt", then "Varnholt/Mandrel", asking for the documents folder
// before each, and ignores whether either worked. A documents folder that doesn't exist yet is made first.
void SaveFolderCreate();
