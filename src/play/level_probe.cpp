// level_probe.cpp -- the level's probe: the character, the flags of play, the torch and battery, health and ends,
// the pause, the level's own moving things and what the contact pass touched.
#include "level_probe.h"

#include "KRGraphics.h"
#include "level_state.h"
#include "playcommon.h"
#include "stateprobe.h"

#include <cstdio>
#include <string>

static void Character(std::string* pOut, const LevelVars* pL)
{
    const GameObjInst* pC = pL->sPlayer;
    if (!pC)
        return;
    ProbeFloat(pOut, "x", pC->posCurr.x);
    ProbeFloat(pOut, "y", pC->posCurr.y);
    ProbeFloat(pOut, "vx", pC->velCurr.x);
    ProbeFloat(pOut, "vy", pC->velCurr.y);
    ProbeFloat(pOut, "dir", pC->dirCurr);
}

static void Moving(std::string* pOut, const LevelVars* pL)
{
    char name[32]; // room for any u32 index, so the sanitizer build (no optimisation) sees no truncation
    for (u32 i = 0; i < pL->sMovingPlatformNum; i++)
    {
        const GameObjInst* pP = pL->sMovingPlatforms[i];
        std::snprintf(name, sizeof(name), "plat%ux", i + 1);
        ProbeFloat(pOut, name, pP->posCurr.x);
        std::snprintf(name, sizeof(name), "plat%uy", i + 1);
        ProbeFloat(pOut, name, pP->posCurr.y);
        std::snprintf(name, sizeof(name), "plat%uvx", i + 1);
        ProbeFloat(pOut, name, pP->velCurr.x);
        std::snprintf(name, sizeof(name), "plat%uvy", i + 1);
        ProbeFloat(pOut, name, pP->velCurr.y);
    }
    if (pL->sDropWall)
    {
        ProbeFloat(pOut, "dropy", pL->sDropWall->posCurr.y);
        ProbeFloat(pOut, "dropvy", pL->sDropWall->velCurr.y);
    }
    if (pL->sMovingWall)
    {
        ProbeFloat(pOut, "wallx", pL->sMovingWall->posCurr.x);
        ProbeFloat(pOut, "wallvx", pL->sMovingWall->velCurr.x);
        ProbeInt(pOut, "sBoulderArmed", pL->sBoulderArmed);
        ProbeInt(pOut, "sCrushed", pL->sCrushed);
        ProbeInt(pOut, "sCrushReturning", pL->sCrushReturning);
        ProbeFloat(pOut, "sCrushAlpha", pL->sCrushAlpha);
        ProbeInt(pOut, "sLevelMusicCount", (long)gPlay.sLevelMusicCount);
    }
}

// The kinds the contact pass touched this frame, comma-separated; "-" for none.
static void Touched(std::string* pOut, const LevelVars* pL)
{
    std::string kinds;
    for (u32 i = 0; i < pL->sTouchedNum; i++)
        kinds += (i ? "," : "") + std::to_string(pL->sTouchedKinds[i]);
    ProbeText(pOut, "touched", kinds.empty() ? "-" : kinds.c_str());
}

void LevelProbe(std::string* pOut)
{
    const LevelState* pLevel = LevelStateLive();
    if (!pLevel)
        return;
    const LevelVars* pL = &pLevel->vars;
    ProbeText(pOut, "level", pLevel->pConfig->name);
    Character(pOut, pL);
    ProbeInt(pOut, "sGravityInverted", gPlay.sGravityInverted);
    ProbeInt(pOut, "sOnGround", gPlay.sOnGround);
    ProbeInt(pOut, "sJumping", gPlay.sJumping);
    ProbeInt(pOut, "sWallBlocked", gPlay.sWallBlocked);
    ProbeInt(pOut, "sHitHop", gPlay.sHitHop);
    ProbeInt(pOut, "sFlipFrozen", pL->sFlipFrozen);
    ProbeInt(pOut, "sFlipCooldown", pL->sFlipCooldown);
    ProbeInt(pOut, "sFacingLeft", pL->sFacingLeft);
    ProbeInt(pOut, "sHitPoints", pL->sHitPoints);
    ProbeInt(pOut, "sHeartsShown", pL->sHeartsShown);
    ProbeFloat(pOut, "sBatteryUsed", pL->sBatteryUsed);
    ProbeFloat(pOut, "sBatteryLife", pL->sBatteryLife);
    ProbeInt(pOut, "sBatteryLow", pL->sBatteryLow);
    ProbeInt(pOut, "sBatteryDying", pL->sBatteryDying);
    ProbeInt(pOut, "sBatteryBlink", pL->sBatteryBlink);
    ProbeFloat(pOut, "sBatteryFadeAlpha", pL->sBatteryFadeAlpha);
    ProbeFloat(pOut, "sBarOffset", pL->sBarOffset);
    ProbeInt(pOut, "sInvincible", pL->sInvincible);
    ProbeFloat(pOut, "sInvincibleTimer", pL->sInvincibleTimer);
    ProbeInt(pOut, "sBlinkHidden", pL->sBlinkHidden);
    ProbeInt(pOut, "sIsGhost", pL->sIsGhost);
    ProbeInt(pOut, "sDamageFlash", pL->sDamageFlash);
    ProbeFloat(pOut, "sDamageAlpha", pL->sDamageAlpha);
    ProbeInt(pOut, "sZoomActive", pL->sZoomActive);
    ProbeFloat(pOut, "sZoomScale", pL->sZoomScale);
    ProbeFloat(pOut, "sCompassAngle", pL->sCompassAngle);
    ProbeInt(pOut, "sWon", pL->sWon);
    ProbeInt(pOut, "sLost", pL->sLost);
    ProbeFloat(pOut, "sEndTimer", pL->sEndTimer);
    ProbeFloat(pOut, "sWinAlpha", pL->sWinAlpha);
    ProbeFloat(pOut, "sLoseAlpha", pL->sLoseAlpha);
    ProbeInt(pOut, "sPaused", pL->sPaused);
    ProbeInt(pOut, "sPauseHelp", pL->sPauseHelp);
    ProbeInt(pOut, "sPauseOptions", pL->sPauseOptions);
    ProbeInt(pOut, "sPauseConfirm", pL->sPauseConfirm);
    ProbeInt(pOut, "sPauseSelected", pL->sPauseSelected);
    ProbeFloat(pOut, "torchangle", pL->sTorchAngle);
    Touched(pOut, pL);
    ProbeFloat(pOut, "sArrowOffset", pL->sArrowOffset);
    f32 camX, camY;
    KRGfxGetCamPosition(&camX, &camY);
    ProbeFloat(pOut, "camx", camX);
    ProbeFloat(pOut, "camy", camY);
    if (pLevel->pConfig->tutorial)
    {
        ProbeInt(pOut, "sTutorialBox1", gPlay.sTutorialBox1);
        ProbeInt(pOut, "sTutorialBox2", gPlay.sTutorialBox2);
        ProbeInt(pOut, "sTutorialBox3", gPlay.sTutorialBox3);
    }
    Moving(pOut, pL);
}
