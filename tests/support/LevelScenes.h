// LevelScenes.h -- what the scenario tests of a level share: a floor to stand on, the progress file of the run's
// save folder, the pointer's place in script pixels, and pictures taken at chosen frames.
#pragma once

#include "LevelRun.h"

#include <initializer_list>
#include <map>
#include <string>

// A floor of platforms from x = -400 to 400 with its top at y = -30, the character standing on its middle (it
// settles at y = -5), and more objects after them.
std::string FloorLevel(std::initializer_list<LevelObject> more = {});

// The progress file of the run's save folder: written with six clear flags and zero attributes, and read back.
void WriteFreshProgress(const LevelRun& run);
std::string ProgressText(const LevelRun& run);

// A script line that puts the pointer on a point of the 800 by 600 view from the given step on, in the client
// pixels of the 320 by 240 screen LevelRun uses (the view is drawn at 0.4 of its size there).
std::string CursorLine(int viewX, int viewY, int step);

// Saves a screenshot of the client area into the test output folder at the present of each listed step, after
// the run has started (its start resets the back-end): 800 by 600 when the script says "screen 800 600", 320 by
// 240 on LevelRun's own small screen. Those steps' frames are drawn. Stop forgets the list and the hook.
void ShootAtSteps(const std::map<int, std::string>& shots, int width = 800, int height = 600);
void StopShooting();
// The full path of a saved picture, for checking that it was written.
std::string ShotPath(const std::string& name);

// Draws every frame from now on and samples one pixel of the picture presented at every drawn step, at a place of
// the 800 by 600 view drawn on LevelRun's 320 by 240 screen; the brightness (red + green + blue, 0 to 765) of a
// step's sample, or -1 when none was taken (DrawNoFrame stops the drawing, and with it the sampling, for a while).
void SamplePixelEachStep(int viewX, int viewY);
int SampledBrightness(int step);
