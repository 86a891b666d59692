// savefolder.cpp -- where the user's files live: the documents folder and the save folder beneath it.
//
// Owns:    nothing; the answer is looked up afresh at every call, as the environment may change between calls.
// Used by: the progress file, the user level's path and existence test, and the editor's save.
//
// The documents folder is the XDG one: an XDG_DOCUMENTS_DIR environment variable (set and not empty) wins,
// then the XDG_DOCUMENTS_DIR="..." line of user-dirs.dirs, whose value is "$HOME/..." or an absolute path, and
// last $HOME/Documents. Without any home folder nothing can be determined: the error is printed and the path
// is built on an empty folder name, "/Varnholt/Mandrel/...", which an ordinary user can't create, so that the
// open that follows fails and the game goes on without the file.
#include "savefolder.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sys/stat.h>

static const char* const sSaveFolderTail = "/Varnholt/Mandrel/";

static std::string EnvValue(const char* name)
{
    const char* value = std::getenv(name);
    return value ? std::string(value) : std::string();
}

static std::string WithoutTrailingSeparators(std::string path)
{
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

// The value of one user-dirs line, or empty when the line isn't the documents line or can't be used. Quoted
// values may escape a quote or a backslash with a backslash.
static std::string UserDirsDocumentsValue(const std::string& line, const std::string& home)
{
    size_t pos = line.find_first_not_of(" \t");
    static const char key[] = "XDG_DOCUMENTS_DIR";
    if (pos == std::string::npos || line.compare(pos, sizeof(key) - 1, key) != 0)
        return std::string();
    pos = line.find_first_not_of(" \t", pos + sizeof(key) - 1);
    if (pos == std::string::npos || line[pos] != '=')
        return std::string();
    pos++;

    std::string value;
    if (pos < line.size() && line[pos] == '"')
    {
        for (pos++; pos < line.size() && line[pos] != '"'; pos++)
        {
            if (line[pos] == '\\' && pos + 1 < line.size())
                pos++;
            value += line[pos];
        }
    }
    else
    {
        size_t end = line.find_last_not_of(" \t\r");
        if (end != std::string::npos && end >= pos)
            value = line.substr(pos, end - pos + 1);
    }

    if (value.compare(0, 5, "$HOME") == 0 && (value.size() == 5 || value[5] == '/'))
        return home.empty() ? std::string() : home + value.substr(5);
    if (!value.empty() && value[0] == '/')
        return value;
    return std::string();
}

// The documents folder named by the user-dirs configuration, or empty.
static std::string UserDirsDocuments(const std::string& home)
{
    std::string config = EnvValue("XDG_CONFIG_HOME");
    if (config.empty() || config[0] != '/')
    {
        if (home.empty())
            return std::string();
        config = home + "/.config";
    }

    std::ifstream in(config + "/user-dirs.dirs");
    std::string line, found;
    while (std::getline(in, line))
    {
        std::string value = UserDirsDocumentsValue(line, home);
        if (!value.empty())
            found = value;
    }
    return found;
}

bool DocumentsFolder(std::string* pFolder)
{
    std::string home = EnvValue("HOME");
    std::string folder = EnvValue("XDG_DOCUMENTS_DIR");
    if (folder.empty())
        folder = UserDirsDocuments(home);
    if (folder.empty() && !home.empty())
        folder = home + "/Documents";

    if (folder.empty())
    {
        std::printf("Error: %d\n", DOCUMENTS_FOLDER_ERROR);
        std::fflush(stdout);
        pFolder->clear();
        return false;
    }
    *pFolder = WithoutTrailingSeparators(folder);
    return true;
}

std::string SaveFolderPath(const char* name)
{
    std::string folder;
    DocumentsFolder(&folder);
    return folder + sSaveFolderTail + name;
}

// mkdir of every missing folder along the path; the results don't matter.
static void MakeFolderWithParents(const std::string& path)
{
    for (size_t pos = path.find('/', 1); pos != std::string::npos; pos = path.find('/', pos + 1))
        mkdir(path.substr(0, pos).c_str(), 0755);
    mkdir(path.c_str(), 0755);
}

void SaveFolderCreate()
{
    std::string folder;

    // A fresh account may have no documents folder yet; a user expects the game to make it rather than to
    // lose every save, so it is made (with its parents) before the two folders of the game.
    if (DocumentsFolder(&folder))
        MakeFolderWithParents(folder);
    mkdir((folder + "/Varnholt").c_str(), 0755);

    DocumentsFolder(&folder);
    mkdir((folder + "/Varnholt/Mandrel").c_str(), 0755);
}
