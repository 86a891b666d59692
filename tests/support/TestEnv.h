// TestEnv.h -- what tests share: a private home folder, the output folder, screenshots, captured output.
#pragma once

#include <string>

// The build tree whose test binary is running: the binaries lie in its tests/ folder, beside the tree's own
// quillon-replay and quillon-levelshot one folder up. Found from the running binary, so that test code compiled
// once serves every tree that links it.
std::string TestTreeDir();

// That tree's replay tool and level shot tool.
std::string ReplayBinary();
std::string LevelShotBinary();

// The folder tests write their evidence to (screenshots, logs); made when missing.
std::string TestOutputDir();

// A fresh empty folder under the test output folder.
std::string MakeTempDir(const std::string& prefix);

// Links every file of the assets folder into the folder, so that a game can run there on files a test writes.
void LinkAssetsInto(const std::string& assets, const std::string& folder);

// Points HOME at the folder and forgets any XDG documents setting, so that the save folder lies under it.
void PointHomeAt(const std::string& folder);

// Whether the picture in the back buffer was drawn (see DrawEveryFrame in GameRun.h); when it was not, the calling
// test fails with a message that names what read it. Every helper that reads the frame asks this first.
bool FrameWasDrawn(const char* reader);

// Writes the client area of the current OpenGL window, as drawn by the last frame, to a PNG file.
// Call it before the buffers swap (a present hook) or after drawing into the back buffer. False, and the test
// fails, when that frame was not drawn.
bool SaveScreenshot(const std::string& path, int width, int height);

// Reads one pixel of the back buffer (origin at the bottom left) as 0xAARRGGBB; 0 when the frame was not drawn.
unsigned int ReadPixel(int x, int y);

std::string ReadFileText(const std::string& path);
void WriteFileText(const std::string& path, const std::string& text);
