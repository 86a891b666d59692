// levelvars.cpp -- the variable reset of a level's Init.
#include "levelvars.h"

#include "level_table.h"
#include "playcommon.h"
#include "progress.h"

void LevelVarsReset(LevelVars* pL, const LevelConfig* pConfig)
{
    // What survives the reset: the pause selection always; in all but the first level the invincibility and its
    // blink; in the user level the end timer.
    const s32 pauseSelected = pL->sPauseSelected;
    const u8 invincible = pL->sInvincible;
    const u8 blinkHidden = pL->sBlinkHidden;
    const f32 blinkTimer = pL->sBlinkTimer;
    const f32 endTimer = pL->sEndTimer;

    *pL = LevelVars();
    pL->sPauseSelected = pauseSelected;
    if (!pConfig->resetsInvincible)
    {
        pL->sInvincible = invincible;
        pL->sBlinkHidden = blinkHidden;
        pL->sBlinkTimer = blinkTimer;
    }
    if (!pConfig->resetsEndTimer)
        pL->sEndTimer = endTimer;

    pL->sZoomScale = 1.0f;
    pL->sInvincibleTime = 3.0f;
    pL->sBatteryLife = 180.0f + 10.0f * (f32)gAttrBattery;
    pL->sBatteryBarWidth = 114.0f;
    pL->sBatteryLowRatio = 0.8f;
    pL->sBatteryLowTime = pL->sBatteryLowRatio * pL->sBatteryLife;
    pL->sBarOffset = 690.0f;
    pL->sBarFull = 690.0f;

    gPlay.sGravityInverted = 0;
    gPlay.sHitHop = 0;
    if (pConfig->boulder)
        gPlay.sLevelMusicCount = 0;
}
