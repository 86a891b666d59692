// EditorFixture.h -- a fresh editor through the real loop for each test, and the palette and buttons as a user
// finds them with the camera at (0, 0).
#pragma once

#include "EditorDrive.h"
#include "KRGraphics.h"
#include "KRPlatformScripted.h"
#include "gamestatelist.h"
#include "gamestatemgr.h"
#include "gameloop.h"

#include <gtest/gtest.h>

#include <string>

// Where the cursor picks each palette icon and hits each button (the cursor stands 35 under the pointer).
struct EditorSpot
{
    float x;
    float y;
};
const EditorSpot SPOT_CHARACTER = {-350.0f, 210.0f};
const EditorSpot SPOT_POWERUP = {-262.5f, 210.0f};
const EditorSpot SPOT_BATTERY = {-177.5f, 210.0f};
const EditorSpot SPOT_SPIKE_ROW_UP = {-47.5f, 190.0f};
const EditorSpot SPOT_SPIKE_UP = {45.0f, 190.0f};
const EditorSpot SPOT_SPIKE_DOWN = {45.0f, 220.0f};
const EditorSpot SPOT_EXIT = {107.5f, 210.0f};
const EditorSpot SPOT_PLATFORM = {222.5f, 200.0f};
const EditorSpot SPOT_WALL = {350.0f, 210.0f};
const EditorSpot SPOT_SAVE = {-350.0f, -275.0f};
const EditorSpot SPOT_NAME_FIELD = {-275.0f, -215.0f};
const EditorSpot SPOT_LOAD = {-250.0f, -275.0f};
const EditorSpot SPOT_CLEAR = {-150.0f, -275.0f};
const EditorSpot SPOT_PLAY = {-50.0f, -275.0f};
const EditorSpot SPOT_EXIT_BTN = {50.0f, -275.0f};
const EditorSpot SPOT_YES = {-75.0f, -100.0f};
const EditorSpot SPOT_NO = {75.0f, -100.0f};

class EditorTest : public ::testing::Test
{
protected:
    std::string home;

    void SetUp() override { home = DriveStart(GS_EDITOR); }

    void TearDown() override
    {
        gGameStateNext = GS_QUIT;
        int guard = 0;
        while (DriveFrames(1) && ++guard < 10)
        {
            gGameStateNext = GS_QUIT;
        }
    }

    // A left click (press and release) with the cursor at the point.
    static void ClickAt(float x, float y)
    {
        DrivePointAt(x, y);
        DriveFrames(1);
        DriveTap(1);
    }
    static void ClickAt(EditorSpot spot) { ClickAt(spot.x, spot.y); }

    static void RightClickAt(float x, float y)
    {
        DrivePointAt(x, y);
        DriveFrames(1);
        DriveTap(2);
    }

    // Picks the icon, then places the copy at (x, y).
    static void PlaceFrom(EditorSpot icon, float x, float y)
    {
        ClickAt(icon);
        ClickAt(x, y);
    }

    static int Probe(const char* name) { return std::stoi(DriveProbeValue(name)); }

    static std::vector<GameObjInst*> Placed(int kind)
    {
        std::vector<GameObjInst*> found;
        for (GameObjInst* pInst : DriveLevelObjects())
            if ((int)pInst->pObject->type == kind && !pInst->isHeld)
                found.push_back(pInst);
        return found;
    }

    static std::vector<GameObjInst*> Held()
    {
        std::vector<GameObjInst*> found;
        for (GameObjInst* pInst : DriveLevelObjects())
            if (pInst->isHeld)
                found.push_back(pInst);
        return found;
    }

    // Rests the pointer at the bottom edge for the frames, which pans the world down 4 a frame, then back in the
    // middle; gives the camera's place.
    static EditorSpot PanDown(int frames)
    {
        DrivePointer(400, 590);
        DriveFrames(frames);
        DrivePointer(400, 300);
        DriveFrames(1);
        EditorSpot cam = {0.0f, 0.0f};
        KRGfxGetCamPosition(&cam.x, &cam.y);
        return cam;
    }

    // Types the keys one per frame into whatever has the keyboard.
    static void Type(const std::string& keys)
    {
        for (char c : keys)
            DriveTap((unsigned char)c);
    }
};
