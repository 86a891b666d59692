// toolpath.h -- paths given to the command-line tools, which run the game inside its assets folder.
#pragma once

#include <string>

// An absolute form of a path given relative to the folder the tool was started in (before it enters the assets
// folder); an absolute or empty path as it is.
std::string ToolAbsolutePath(const std::string& path);
