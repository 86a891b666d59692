// userlevel.cpp -- the name of the user level and the test that its file is there.
//
// Owns:    gUserLevelName.
// Used by: level selection (entry and the load button), the editor (entry, save, load), the user level's reader.
#include "userlevel.h"

#include "savefolder.h"
#include "textfile.h"

char gUserLevelName[USER_LEVEL_NAME_MAX + 1];

std::string UserLevelPath()
{
    std::string filename = std::string(gUserLevelName) + ".txt";
    return SaveFolderPath(filename.c_str());
}

bool UserLevelExists()
{
    std::string tempfilename = UserLevelPath();
    FILE* infile = TextFileOpen(tempfilename.c_str(), "rt");
    if (!infile)
        return false;

    // The test only asks whether the file opens. Closing it again changes nothing a player could see; leaving
    // it open would only leak one handle per click on the load button.
    std::fclose(infile);
    return true;
}
