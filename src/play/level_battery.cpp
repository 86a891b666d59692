// level_battery.cpp -- the torch's battery: the once-a-second bar step, the low state, its blink, the fade to
// black over the last fifth of its life, and the pickup.
#include "level_steps.h"

#include "fmodsound.h"

void LevelBatteryClock(LevelState* pLevel, f32 dt)
{
    LevelVars* pL = &pLevel->vars;
    pL->sBatterySecond += dt;
    if (pL->sBatterySecond > 1.0f)
    {
        pL->sBatteryBarStep = pL->sBatteryBarWidth / pL->sBatteryLife;
        pL->sBatterySecond = 0.0f;
    }
    else
        pL->sBatteryBarStep = 0.0f;
}

void LevelBatteryBarTests(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    pL->sBarOffset -= pL->sBatteryBarStep;
    // Made every frame, so a pickup can end the low state.
    const u8 low = pL->sBatteryUsed > pL->sBatteryLowTime;
    pL->sBatteryLow = low;
    pL->sBatteryDying = low;
}

void LevelBatteryBlinkAndFade(LevelState* pLevel, f32 dt)
{
    LevelVars* pL = &pLevel->vars;
    pL->sBatteryBlinkTimer += dt;
    if (pL->sBatteryLow)
    {
        // The count rises on every frame of a flash: a few flickers, a pause of 1.5 s, and again.
        const f32 half = 0.125f + pL->sBatteryBlinkPause;
        if (pL->sBatteryBlinkTimer > half)
        {
            pL->sBatteryBlink = 1;
            pL->sBatteryBlinkCount++;
        }
        else if (half > pL->sBatteryBlinkTimer)
            pL->sBatteryBlink = 0;
        if (pL->sBatteryBlinkCount == 2)
            pL->sBatteryBlinkPause = 1.5f;
        if (pL->sBatteryBlinkTimer > 0.25f + pL->sBatteryBlinkPause)
            pL->sBatteryBlinkTimer = 0.0f;
        if (pL->sBatteryBlinkCount == 3)
        {
            pL->sBatteryBlinkPause = 0.0f;
            pL->sBatteryBlinkCount = 0;
        }
    }
    pL->sBatteryFadeTimer += dt;
    if (pL->sBatteryDying && pL->sBatteryFadeTimer > 0.1f)
    {
        pL->sBatteryFadeAlpha += 0.1f / ((1.0f - 0.8f) * pL->sBatteryLife);
        pL->sBatteryFadeTimer = 0.0f;
    }
}

void LevelBatteryPickup(LevelState* pLevel, GameObjInst* pPickup)
{
    LevelVars* pL = &pLevel->vars;
    if (pLevel->pConfig->effects)
        EffectPlaySpark();
    // The first level leaves an overlay that has begun to darken at its darkness.
    if (pLevel->pConfig->pickupClearsFade)
        pL->sBatteryFadeAlpha = 0.0f;
    if (pL->sBatteryUsed > 0.2f * pL->sBatteryLife)
    {
        pL->sBarOffset += 0.2f * pL->sBatteryBarWidth;
        pL->sBatteryUsed -= 0.2f * pL->sBatteryLife;
    }
    else
    {
        pL->sBarOffset = pL->sBarFull;
        pL->sBatteryUsed = 0.0f;
    }
    gameObjInstDestroy(pPickup);
}
