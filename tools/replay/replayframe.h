// replayframe.h -- the frame being drawn, read back and saved as a PNG file.
//
// Used by the replay tool's shot command, by the tests' screenshots and by the level shot tool: call it before the
// buffers swap (a present hook) or after drawing into the back buffer.
#pragma once

#include <string>
#include <vector>

// The bottom left width by height pixels of the back buffer as RGBA, top row first, fully opaque.
std::vector<unsigned char> ReplayReadFrame(int width, int height);

// How hard a PNG is packed: quickly (screenshots and shots, written by the dozen while a run waits for them) or as
// small as zlib can (pictures that are kept, such as the level selection previews).
enum class PngPacking
{
    kQuick,
    kSmall,
};

// Writes width by height pixels, top row first, to a PNG: RGBA with four channels, RGB (no alpha) with three.
bool ReplayWritePng(const std::string& path, int width, int height, const std::vector<unsigned char>& pixels,
                    PngPacking packing, int channels = 4);

// Both in one: the bottom left width by height pixels of the back buffer to a PNG, packed quickly.
bool ReplaySaveFramePng(const std::string& path, int width, int height);
