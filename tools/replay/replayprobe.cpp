// replayprobe.cpp -- composes the probe line from the state manager, the live pool and the state's probe.
#include "replayprobe.h"

#include "gameobjdraw.h"
#include "gamestatemgr.h"
#include "stateprobe.h"

#include <cstring>

// Indexed by state number, the two pseudo states included.
static const char* const kStateNames[] = {
    "GS_EDITOR",     "GS_LEVEL_0", "GS_LEVEL_1", "GS_LEVEL_2", "GS_LEVEL_3", "GS_LEVEL_4", "GS_LEVEL_5",
    "GS_LEVEL_USER", "GS_MENU",    "GS_LS",      "GS_SPLASH",  "GS_CREDITS", "GS_RESTART", "GS_QUIT",
};
static const int32_t kStateNameNum = (int32_t)(sizeof(kStateNames) / sizeof(kStateNames[0]));
static_assert(sizeof(kStateNames) / sizeof(kStateNames[0]) == GS_QUIT + 1, "a name for every state number");

const char* ReplayStateName(int32_t state)
{
    if (state < 0 || state >= kStateNameNum)
        return nullptr;
    return kStateNames[state];
}

int32_t ReplayStateFromName(const char* name)
{
    for (int32_t state = 0; state < GS_STATE_NUM; ++state)
        if (std::strcmp(kStateNames[state], name) == 0)
            return state;
    return -1;
}

int ReplayLiveInstances()
{
    GameObjPool* pPool = GameStatePoolGet();
    if (!pPool)
        return 0;
    int count = 0;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; ++i)
        if (pPool->sGameObjInstList[i].flag & FLAG_ACTIVE)
            ++count;
    return count;
}

static std::string StateText(int32_t state)
{
    const char* name = ReplayStateName(state);
    return name ? std::string(name) : std::to_string(state);
}

ReplayProbe ReplayProbeTake(int step)
{
    ReplayProbe probe = {step, gGameStateCurr, " instances=" + std::to_string(ReplayLiveInstances())};
    GameStateProbeFn fn = GameStateProbeGet();
    if (fn)
        fn(&probe.rest);
    return probe;
}

std::string ReplayProbeLine(const ReplayProbe& probe, int32_t next)
{
    return "probe step=" + std::to_string(probe.step) + " state=" + StateText(probe.state) + " next=" +
           StateText(next) + probe.rest;
}
