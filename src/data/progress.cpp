// progress.cpp -- the progress file: reading it, writing it whole, and marking one finished level in place.
//
// Owns:    sLevelFlags (for level selection), gAttrBattery, gAttrHealth.
// Used by: level selection (StatesRead twice at Init, StatesWrite at Free), the levels (StatesMarkLevel when the
//          goal is touched).
//
// Nothing here is fatal and nothing is shown: a file that can't be opened is simply not read or not written.
// The first run needs two calls to StatesRead: the first finds no file, and its StatesWrite finds no folder and
// makes the folders only; the second's StatesWrite then makes the file.
#include "progress.h"

#include "savefolder.h"
#include "textfile.h"

#include <string>

s32 gAttrBattery = 0;
s32 gAttrHealth = 0;

static s32 sLevelFlags[LEVEL_FLAG_NUM];

// The digits StatesMarkLevel reads: six flags and two attributes in a well-formed file, and room to spare. A
// longer file's further digits are read and dropped.
static const int MARK_BUFFER_NUM = 16;

static const char* const sStatesFileName = "States.txt";

s32* StatesLevelFlags()
{
    return sLevelFlags;
}

static char ValueChar(s32 value)
{
    return (char)(value + '0');
}

// Reads one character as the game always has: into a signed byte, so that the end of the file reads as -1.
static s8 ReadChar(FILE* pFile)
{
    return (s8)TextFileGetc(pFile);
}

s32 StatesRead()
{
    std::string path = SaveFolderPath(sStatesFileName);
    FILE* pFile = TextFileOpen(path.c_str(), "r+");
    if (!pFile)
    {
        StatesWrite();
        return 0;
    }

    s32 index = 0;
    s32 count = 0;
    bool secondLine = false;
    bool finished = false;
    while (!std::feof(pFile) && !finished)
    {
        s8 c = ReadChar(pFile);
        if (secondLine)
        {
            // Whatever follows the first line end is the battery, a line end included.
            gAttrBattery = c - '0';
            while (!std::feof(pFile))
            {
                c = ReadChar(pFile);
                if (c == '\n')
                    continue;
                gAttrHealth = c - '0';
                finished = true;
                break;
            }
        }
        else if (c == '\n')
        {
            secondLine = true;
        }
        else
        {
            // Flags past the sixth still count, but have no place to go.
            if (index < LEVEL_FLAG_NUM)
                sLevelFlags[index] = c - '0';
            index++;
            if (c - '0' == 1)
                count++;
        }
    }
    std::fclose(pFile);
    return count;
}

void StatesWrite()
{
    std::string path = SaveFolderPath(sStatesFileName);
    FILE* pFile = TextFileOpen(path.c_str(), "w+");
    if (!pFile)
    {
        // Taken to mean that the folders are missing. No second try: the next call writes the file.
        SaveFolderCreate();
        return;
    }

    char text[LEVEL_FLAG_NUM + 4];
    int length = 0;
    for (int i = 0; i < LEVEL_FLAG_NUM; i++)
        text[length++] = ValueChar(sLevelFlags[i]);
    text[length++] = '\n';
    text[length++] = ValueChar(gAttrBattery);
    text[length++] = '\n';
    text[length++] = ValueChar(gAttrHealth);
    std::fwrite(text, 1, (size_t)length, pFile);
    std::fclose(pFile);
}

void StatesMarkLevel(s32 index)
{
    // Missing digits of a short file count as 0.
    s32 digits[MARK_BUFFER_NUM] = {};
    std::string path = SaveFolderPath(sStatesFileName);

    FILE* pFile = TextFileOpen(path.c_str(), "r+");
    if (pFile)
    {
        int count = 0;
        for (int c = TextFileGetc(pFile); c != EOF; c = TextFileGetc(pFile))
        {
            if (c == '\n')
                continue;
            if (count < MARK_BUFFER_NUM)
                digits[count] = (s8)c - '0';
            count++;
        }
        std::fclose(pFile);
    }

    if (index >= 0 && index < MARK_BUFFER_NUM)
        digits[index] = 1;

    // "r+" keeps the file's length: only the six flags at its head are written over.
    pFile = TextFileOpen(path.c_str(), "r+");
    if (pFile)
    {
        char flags[LEVEL_FLAG_NUM];
        for (int i = 0; i < LEVEL_FLAG_NUM; i++)
            flags[i] = ValueChar(digits[i]);
        std::fwrite(flags, 1, sizeof(flags), pFile);
        std::fclose(pFile);
    }
}
