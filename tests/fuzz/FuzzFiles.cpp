// FuzzFiles.cpp -- private folders and file helpers for the fuzz targets.
#include "FuzzFiles.h"

#include <cstdio>
#include <cstdlib>
#include <vector>

std::string FuzzHome()
{
    const char* tmp = std::getenv("TMPDIR");
    std::string pattern = std::string(tmp && *tmp ? tmp : "/tmp") + "/quillon-fuzz-XXXXXX";
    std::vector<char> buffer(pattern.begin(), pattern.end());
    buffer.push_back(0);
    const char* made = mkdtemp(buffer.data());
    FuzzCheck(made != nullptr, "a private home folder");
    setenv("HOME", made, 1);
    setenv("XDG_CONFIG_HOME", (std::string(made) + "/.config").c_str(), 1);
    unsetenv("XDG_DOCUMENTS_DIR");
    return made;
}

void FuzzWriteFile(const std::string& path, const uint8_t* data, size_t size)
{
    FILE* pFile = std::fopen(path.c_str(), "wb");
    FuzzCheck(pFile != nullptr, "the input file opens");
    if (size)
        std::fwrite(data, 1, size, pFile);
    std::fclose(pFile);
}

std::string FuzzReadFile(const std::string& path)
{
    std::string text;
    FILE* pFile = std::fopen(path.c_str(), "rb");
    if (!pFile)
        return text;
    char buffer[4096];
    size_t got;
    while ((got = std::fread(buffer, 1, sizeof(buffer), pFile)) > 0)
        text.append(buffer, got);
    std::fclose(pFile);
    return text;
}

void FuzzCheck(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "fuzz check failed: %s\n", what);
    std::abort();
}
