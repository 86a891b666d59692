// LevelRun.h -- runs a level state through the real main loop, frame by frame, on a level file the test writes.
//
// The level's working directory is a private folder that holds every asset of the game by link, and the test's
// own level files in place of the authored ones; the user level is written into the save folder of a private
// home. Between frames the test reads the level's pool and variables.
#pragma once

#include "level_state.h"

#include <initializer_list>
#include <vector>

#include <string>

// One object of a level file.
struct LevelObject
{
    int kind;
    int x;
    int y;
};

std::string LevelText(std::initializer_list<LevelObject> objects);
std::string LevelText(const std::vector<LevelObject>& objects);

// A row of n platforms (TYPE_PLATFORM, 100 wide) from x0 to the right, centred at y: a floor whose top is y + 10.
std::vector<LevelObject> PlatformRow(int x0, int n, int y);

class LevelRun
{
public:
    // Makes the private folders and changes into the game folder; levelFile is written as the file of the state
    // (LevelN.txt, Credits.txt for the credits, or the user level "test" in the save folder).
    LevelRun(int state, const std::string& levelFile, const std::string& script = "");
    ~LevelRun();

    // Runs one frame; false once the game has ended.
    bool Step();
    // Runs n frames, or fewer when the game ends or leaves the state (a restart does not count as leaving).
    void Steps(int n);

    LevelState* Level();    // null once the level's visit has ended
    LevelVars& Vars();      // of the live level
    GameObjInst* Player();
    // The live instances of a kind, in slot order.
    std::vector<GameObjInst*> OfKind(unsigned kind);
    int Frame() const { return mFrames; }
    // Holds a key (a virtual-key number: 'A', ' ', 1 for the left button, 27 Esc, '0') down for the next n frames.
    // A key that was up in the frame before is triggered in the first of them.
    void Hold(unsigned char key, int frames = 1);

    std::string mGameDir;
    std::string mHome;

private:
    std::string mOldDir;
    int mState;
    int mFrames = 0;
};
