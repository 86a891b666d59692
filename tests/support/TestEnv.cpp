// TestEnv.cpp -- private folders, screenshots and file helpers for the tests.
#include "TestEnv.h"

#include <GL/glew.h>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stb_image_write.h>
#include <sys/stat.h>
#include <vector>

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

void PointHomeAt(const std::string& folder)
{
    setenv("HOME", folder.c_str(), 1);
    setenv("XDG_CONFIG_HOME", (folder + "/.config").c_str(), 1);
    unsetenv("XDG_DOCUMENTS_DIR");
}

bool SaveScreenshot(const std::string& path, int width, int height)
{
    std::vector<unsigned char> pixels((size_t)width * height * 4);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadBuffer(GL_BACK);
    glReadPixels(0, 0, width, height, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    // OpenGL rows run bottom up, PNG rows top down.
    std::vector<unsigned char> flipped(pixels.size());
    for (int row = 0; row < height; ++row)
        std::copy(pixels.begin() + (size_t)row * width * 4, pixels.begin() + (size_t)(row + 1) * width * 4,
                  flipped.begin() + (size_t)(height - 1 - row) * width * 4);
    for (size_t i = 3; i < flipped.size(); i += 4)
        flipped[i] = 255;
    return stbi_write_png(path.c_str(), width, height, 4, flipped.data(), width * 4) != 0;
}

unsigned int ReadPixel(int x, int y)
{
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
