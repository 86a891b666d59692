// replayframe.cpp -- reading back the frame with glReadPixels and writing it with stb_image_write.
#include "replayframe.h"

#include <GL/glew.h>
#include <algorithm>
#include <stb_image_write.h>

std::vector<unsigned char> ReplayReadFrame(int width, int height)
{
    std::vector<unsigned char> pixels((size_t)width * height * 4);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadBuffer(GL_BACK);
    glReadPixels(0, 0, width, height, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    // OpenGL rows run bottom up, PNG rows top down.
    size_t rowBytes = (size_t)width * 4;
    std::vector<unsigned char> flipped(pixels.size());
    for (int row = 0; row < height; ++row)
        std::copy(pixels.begin() + (size_t)row * rowBytes, pixels.begin() + (size_t)(row + 1) * rowBytes,
                  flipped.begin() + (size_t)(height - 1 - row) * rowBytes);
    // The back buffer's alpha is whatever blending left there; on screen every pixel is opaque.
    for (size_t i = 3; i < flipped.size(); i += 4)
        flipped[i] = 255;
    return flipped;
}

bool ReplayWritePng(const std::string& path, int width, int height, const std::vector<unsigned char>& pixels)
{
    if (width <= 0 || height <= 0 || pixels.size() != (size_t)width * height * 4)
        return false;
    return stbi_write_png(path.c_str(), width, height, 4, pixels.data(), width * 4) != 0;
}

bool ReplaySaveFramePng(const std::string& path, int width, int height)
{
    if (width <= 0 || height <= 0)
        return false;
    return ReplayWritePng(path, width, height, ReplayReadFrame(width, height));
}
