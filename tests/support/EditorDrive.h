// EditorDrive.h -- drives the level editor (or any mouse-driven state) frame by frame through the real main loop
// on the scripted back-end: pointer places in window units, clicks, key taps, and the live pool.
#pragma once

#include "gameobj.h"

#include <string>
#include <vector>

// A private home (so the save folder is the test's own), then the game started at the state and its first frame
// run. Returns the home folder.
std::string DriveStart(int state);

// Runs n frames; false once the game has quit.
bool DriveFrames(int n = 1);

// Puts the pointer so that the editor's cursor, which stands 35 under the pointer, is at the world point (x, y)
// with the camera where it stands now; from the next frame on.
void DrivePointAt(float x, float y);

// The pointer at window pixels (logical, 800 by 600, y downward), from the next frame on.
void DrivePointer(int x, int y);

// Holds the key (a mouse button too) down for one frame and lets it go in the next: runs both frames.
void DriveTap(int key);

// Holds the keys for one frame together, then lets them go: runs both frames.
void DriveTapTogether(std::initializer_list<int> keys);

// Left Control held around a tap of Z.
void DriveUndo();

// The live pool of the running state and its live instances of a kind (all kinds for -1), in slot order.
GameObjPool* DrivePool();
std::vector<GameObjInst*> DriveLive(int kind = -1);
// Live instances that are part of the level (isInterface 0), held ones included.
std::vector<GameObjInst*> DriveLevelObjects();

// The probe of the running state as text, and one value out of it.
std::string DriveProbe();
std::string DriveProbeValue(const char* name);

// Draws the next frame and writes it to the test output folder: runs one frame.
void DriveScreenshot(const std::string& name);
