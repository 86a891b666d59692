// fuzz_progress_file.cpp -- any bytes as the progress file: reading must not write past the six flags,
// marking must not overrun its buffer and must change only the head of the file, and writing gives the file's
// fixed shape.
#include "FuzzFiles.h"
#include "progress.h"
#include "savefolder.h"

#include <cstring>
#include <string>

static std::string sStatesPath;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FuzzHome();
    SaveFolderCreate();
    sStatesPath = SaveFolderPath("States.txt");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzWriteFile(sStatesPath, data, size);
    std::memset(StatesLevelFlags(), 0, sizeof(s32) * LEVEL_FLAG_NUM);
    gAttrBattery = 0;
    gAttrHealth = 0;

    s32 count = StatesRead();
    FuzzCheck(count >= 0 && (size_t)count <= size, "no more points than characters");

    // Marking rewrites the first six characters only (a shorter file grows to six).
    std::string before = FuzzReadFile(sStatesPath);
    StatesMarkLevel((s32)(size % LEVEL_FLAG_NUM));
    std::string after = FuzzReadFile(sStatesPath);
    FuzzCheck(after.size() == (before.size() > 6 ? before.size() : 6), "marking keeps the file's length");
    if (before.size() > 6 && after.size() > 6)
        FuzzCheck(before.compare(6, std::string::npos, after, 6, std::string::npos) == 0,
                  "marking keeps everything behind the flags");

    StatesWrite();
    FuzzCheck(FuzzReadFile(sStatesPath).size() == 10, "the written file has ten characters");
    StatesRead();
    return 0;
}
