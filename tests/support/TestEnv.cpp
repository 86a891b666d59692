// TestEnv.cpp -- private folders, screenshots and file helpers for the tests.
#include "TestEnv.h"

#include "KRPlatformScripted.h"
#include "replayframe.h"

#include <GL/glew.h>
#include <cstdlib>
#include <dirent.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

std::string TestTreeDir()
{
    char buffer[4096];
    const ssize_t length = readlink("/proc/self/exe", buffer, sizeof buffer - 1);
    std::string path = length > 0 ? std::string(buffer, (size_t)length) : std::string(".");
    for (int up = 0; up < 2; ++up)
    {
        const size_t slash = path.find_last_of('/');
        path = slash == std::string::npos ? std::string(".") : path.substr(0, slash);
    }
    return path;
}

std::string ReplayBinary()
{
    return TestTreeDir() + "/quillon-replay";
}

std::string LevelShotBinary()
{
    return TestTreeDir() + "/quillon-levelshot";
}

std::string TestOutputDir()
{
    const char* dir = std::getenv("QUILLON_TEST_OUTPUT");
    std::string path = dir && *dir ? dir : "/tmp/quillon-test-output";
    mkdir(path.c_str(), 0755);
    return path;
}

std::string MakeTempDir(const std::string& prefix)
{
    std::string pattern = TestOutputDir() + "/" + prefix + "-XXXXXX";
    std::vector<char> buffer(pattern.begin(), pattern.end());
    buffer.push_back(0);
    const char* made = mkdtemp(buffer.data());
    return made ? std::string(made) : std::string();
}

void LinkAssetsInto(const std::string& assets, const std::string& folder)
{
    DIR* dir = opendir(assets.c_str());
    if (!dir)
        return;
    while (dirent* entry = readdir(dir))
    {
        std::string name = entry->d_name;
        if (name == "." || name == "..")
            continue;
        symlink((assets + "/" + name).c_str(), (folder + "/" + name).c_str());
    }
    closedir(dir);
}

void PointHomeAt(const std::string& folder)
{
    setenv("HOME", folder.c_str(), 1);
    setenv("XDG_CONFIG_HOME", (folder + "/.config").c_str(), 1);
    unsetenv("XDG_DOCUMENTS_DIR");
}

bool FrameWasDrawn(const char* reader)
{
    if (KRScriptFrameDrawn())
        return true;
    ADD_FAILURE() << reader << " reads a frame that was not drawn: a game run draws only the frames a test asks for "
                  << "(DrawEveryFrame, or a screenshot or sampling helper, once the run has started)";
    return false;
}

bool SaveScreenshot(const std::string& path, int width, int height)
{
    if (!FrameWasDrawn("a screenshot"))
        return false;
    // The replay tool's shots and the tests' screenshots are made the same way.
    return ReplaySaveFramePng(path, width, height);
}

unsigned int ReadPixel(int x, int y)
{
    if (!FrameWasDrawn("ReadPixel"))
        return 0;
    unsigned char rgba[4] = {0, 0, 0, 0};
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadBuffer(GL_BACK);
    glReadPixels(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, rgba);
    return ((unsigned)rgba[3] << 24) | ((unsigned)rgba[0] << 16) | ((unsigned)rgba[1] << 8) | rgba[2];
}

std::string ReadFileText(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

void WriteFileText(const std::string& path, const std::string& text)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
}
