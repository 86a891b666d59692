// replayframe.cpp -- reading back the frame with glReadPixels and writing it as a PNG file with zlib.
#include "replayframe.h"

#include <GL/glew.h>
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <zlib.h>

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

namespace {

void PutBigEndian(std::vector<unsigned char>& out, uint32_t value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        out.push_back((unsigned char)(value >> shift));
}

// One chunk: its length, its type and data, and the CRC of type and data.
void PutChunk(std::vector<unsigned char>& out, const char* type, const unsigned char* data, size_t size)
{
    PutBigEndian(out, (uint32_t)size);
    const size_t start = out.size();
    out.insert(out.end(), type, type + 4);
    if (size > 0)
        out.insert(out.end(), data, data + size);
    PutBigEndian(out, (uint32_t)crc32(0, out.data() + start, (uInt)(size + 4)));
}

} // namespace

bool ReplayWritePng(const std::string& path, int width, int height, const std::vector<unsigned char>& pixels,
                    PngPacking packing, int channels)
{
    if ((channels != 3 && channels != 4) || width <= 0 || height <= 0 ||
        pixels.size() != (size_t)width * height * channels)
        return false;
    // Every row with filter type 0 (none) in front of it, then deflated as one stream.
    const size_t rowBytes = (size_t)width * channels;
    std::vector<unsigned char> rows((rowBytes + 1) * height);
    for (int row = 0; row < height; ++row)
    {
        rows[row * (rowBytes + 1)] = 0;
        std::copy(pixels.begin() + row * rowBytes, pixels.begin() + (row + 1) * rowBytes,
                  rows.begin() + row * (rowBytes + 1) + 1);
    }
    uLongf packedSize = compressBound((uLong)rows.size());
    std::vector<unsigned char> packed(packedSize);
    const int level = packing == PngPacking::kQuick ? Z_BEST_SPEED : Z_BEST_COMPRESSION;
    if (compress2(packed.data(), &packedSize, rows.data(), (uLong)rows.size(), level) != Z_OK)
        return false;

    static const unsigned char kSignature[] = {137, 'P', 'N', 'G', '\r', '\n', 26, '\n'};
    std::vector<unsigned char> file(kSignature, kSignature + sizeof kSignature);
    std::vector<unsigned char> header;
    PutBigEndian(header, (uint32_t)width);
    PutBigEndian(header, (uint32_t)height);
    // 8 bits a channel, RGBA (colour type 6) or RGB (2), deflate, no interlace.
    header.insert(header.end(), {8, (unsigned char)(channels == 4 ? 6 : 2), 0, 0, 0});
    PutChunk(file, "IHDR", header.data(), header.size());
    PutChunk(file, "IDAT", packed.data(), packedSize);
    PutChunk(file, "IEND", nullptr, 0);

    FILE* out = std::fopen(path.c_str(), "wb");
    if (!out)
        return false;
    const bool written = std::fwrite(file.data(), 1, file.size(), out) == file.size();
    return std::fclose(out) == 0 && written;
}

bool ReplaySaveFramePng(const std::string& path, int width, int height)
{
    if (width <= 0 || height <= 0)
        return false;
    return ReplayWritePng(path, width, height, ReplayReadFrame(width, height), PngPacking::kQuick);
}
