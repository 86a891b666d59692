// LevelRun.cpp -- a level state in a private game folder, stepped through the real loop.
#include "LevelRun.h"

#include "GameRun.h"
#include "KRPlatformScripted.h"
#include "TestEnv.h"
#include "gameloop.h"
#include "gamestatelist.h"
#include "gamestatemgr.h"
#include "userlevel.h"

#include <cstring>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

std::string LevelText(std::initializer_list<LevelObject> objects)
{
    std::string text;
    for (const LevelObject& o : objects)
        text += std::to_string(o.kind) + "\n" + std::to_string(o.x) + "\n" + std::to_string(o.y) + "\n";
    return text;
}

std::string LevelText(const std::vector<LevelObject>& objects)
{
    std::string text;
    for (const LevelObject& o : objects)
        text += LevelText({o});
    return text;
}

std::vector<LevelObject> PlatformRow(int x0, int n, int y)
{
    std::vector<LevelObject> row;
    for (int i = 0; i < n; i++)
        row.push_back({3, x0 + 100 * i, y});
    return row;
}

static const char* const kLevelFiles[] = {"Level1.txt", "Level2.txt", "Level3.txt",
                                          "Level4.txt", "Level5.txt", "Level6.txt"};

LevelRun::LevelRun(int state, const std::string& levelFile, const std::string& script) : mState(state)
{
    char cwd[4096];
    mOldDir = getcwd(cwd, sizeof(cwd)) ? cwd : ".";
    const std::string assets = mOldDir;
    mGameDir = MakeTempDir("level-game");
    mHome = MakeTempDir("level-home");
    // Every asset by link, but the level files, which the test writes.
    LinkAssetsInto(assets, mGameDir);
    PointHomeAt(mHome);
    if (state >= GS_LEVEL_0 && state <= GS_LEVEL_5)
    {
        const std::string path = mGameDir + "/" + kLevelFiles[state - GS_LEVEL_0];
        unlink(path.c_str());
        WriteFileText(path, levelFile);
    }
    else if (state == GS_CREDITS)
    {
        const std::string path = mGameDir + "/Credits.txt";
        unlink(path.c_str());
        WriteFileText(path, levelFile);
    }
    else
    {
        const std::string folder = mHome + "/Documents/Varnholt/Mandrel";
        mkdir((mHome + "/Documents").c_str(), 0755);
        mkdir((mHome + "/Documents/Varnholt").c_str(), 0755);
        mkdir(folder.c_str(), 0755);
        WriteFileText(folder + "/test.txt", levelFile);
        std::strcpy(gUserLevelName, "test");
    }
    if (chdir(mGameDir.c_str()) != 0)
        ADD_FAILURE() << "cannot change into " << mGameDir;
    // A small screen keeps the software renderer quick; full screen stretches the same 800 by 600 view.
    StartGameScripted(state, ("screen 320 240\n" + script).c_str());
}

LevelRun::~LevelRun()
{
    if (chdir(mOldDir.c_str()) != 0)
        ADD_FAILURE() << "cannot change back into " << mOldDir;
}

bool LevelRun::Step()
{
    ++mFrames;
    return GameLoopStep();
}

void LevelRun::Steps(int n)
{
    for (int i = 0; i < n; i++)
        if (!Step() || (gGameStateCurr != mState && gGameStateCurr != GS_RESTART))
            return;
}

void LevelRun::Hold(unsigned char key, int frames)
{
    // The next frame samples the keys at the step the script is at now.
    const int step = KRScriptGetStep();
    KRScriptHoldKey(key, step, step + frames - 1);
}

LevelState* LevelRun::Level()
{
    return LevelStateLive();
}

LevelVars& LevelRun::Vars()
{
    return LevelStateLive()->vars;
}

GameObjInst* LevelRun::Player()
{
    return LevelStateLive()->vars.sPlayer;
}

std::vector<GameObjInst*> LevelRun::OfKind(unsigned kind)
{
    std::vector<GameObjInst*> found;
    for (GameObjInst& inst : LevelStateLive()->pool.sGameObjInstList)
        if ((inst.flag & 1) && inst.pObject->type == kind)
            found.push_back(&inst);
    return found;
}
