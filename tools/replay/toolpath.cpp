// toolpath.cpp -- paths given to the command-line tools.
#include "toolpath.h"

#include <limits.h>
#include <unistd.h>

std::string ToolAbsolutePath(const std::string& path)
{
    if (path.empty() || path[0] == '/')
        return path;
    char here[PATH_MAX];
    if (!getcwd(here, sizeof(here)))
        return path;
    return std::string(here) + "/" + path;
}
