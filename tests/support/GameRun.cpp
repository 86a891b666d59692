// GameRun.cpp -- the real start-up and main loop on the scripted back-end.
#include "GameRun.h"

#include "KRPlatformScripted.h"
#include "gameloop.h"

#include <gtest/gtest.h>

void StartGameScripted(int32_t firstState, const char* script)
{
    KRPlatformUse(&gKRPlatformScripted);
    KRScriptReset();
    ASSERT_EQ(KRScriptParse(script), 1) << "the script could not be read";
    KRScriptDrawNoStep();
    GameStartUp(firstState);
}

void DrawEveryFrame()
{
    KRScriptDrawEveryStep();
}

void DrawNoFrame()
{
    KRScriptDrawNoStep();
}

void RunGameScripted(int32_t firstState, const char* script)
{
    StartGameScripted(firstState, script);
    GameMainLoop();
}
