// level_logic.cpp -- what a level adds to the shared frame: its moving platforms, the boulder chase of the last
// level, and the tutorial boxes and rising wall of the first.
#include "level_steps.h"

#include "KRInput.h"
#include "movers.h"
#include "playcommon.h"
#include "playkeys.h"

// ---- Moving platforms ----

static void SteerByLimits(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    const LevelConfig* pConfig = pLevel->pConfig;
    if (!pL->sPlatformsHeld)
    {
        for (u32 i = 0; i < pL->sMovingPlatformNum; i++)
        {
            GameObjInst* pP = pL->sMovingPlatforms[i];
            const LevelPlatformLimit& limit = pConfig->limits[i];
            const bool onX = limit.axis == LEVEL_AXIS_X;
            const f32 at = onX ? pP->posCurr.x : pP->posCurr.y;
            f32* pSpeed = onX ? &pP->velCurr.x : &pP->velCurr.y;
            // Past a limit the platform is only given the opposite speed; it isn't put back.
            if (at > limit.upper)
                *pSpeed = -100.0f;
            if (at < limit.lower)
                *pSpeed = 100.0f;
        }
    }
    if (pL->sPlatformsHeld && pL->sPlatformsSwitch)
    {
        // Indices 1 to 3 at most: the fourth platform's speed is never stored, so it goes on in y.
        for (u32 i = 1; i <= pConfig->heldPlatforms && i < pL->sMovingPlatformNum + 1; i++)
            pL->sPlatformVelocity[i] = pL->sMovingPlatforms[i - 1]->velCurr.x;
        for (u32 i = 0; i < pL->sMovingPlatformNum; i++)
            pL->sMovingPlatforms[i]->velCurr.x = 0.0f;
        pL->sPlatformsSwitch = 0;
    }
    else if (!pL->sPlatformsHeld && pL->sPlatformsSwitch)
    {
        for (u32 i = 1; i <= pConfig->heldPlatforms && i < pL->sMovingPlatformNum + 1; i++)
            pL->sMovingPlatforms[i - 1]->velCurr.x = pL->sPlatformVelocity[i];
        pL->sPlatformsSwitch = 0;
    }
}

// The rectangle of the fourth level, leg by leg; never held.
static void SteerByLegs(LevelVars* pL)
{
    GameObjInst* pP = pL->sMovingPlatforms[0];
    KRVec2& pos = pP->posCurr;
    KRVec2& vel = pP->velCurr;
    switch (pL->sPlatformLeg)
    {
    case 0:
        if (pos.y > -320.0f)
            vel.y = -100.0f;
        else
        {
            vel.y = 0.0f;
            pL->sPlatformLeg = 1;
        }
        break;
    case 1:
        if (pos.x < 318.0f)
            vel.x = 100.0f;
        else
        {
            vel.x = 0.0f;
            pL->sPlatformLeg = 2;
        }
        break;
    case 2:
        if (pos.y < -30.0f)
            vel.y = 100.0f;
        else
        {
            vel.y = 0.0f;
            pL->sPlatformLeg = 3;
        }
        break;
    case 3:
        if (pos.x > -200.0f)
            vel.x = -100.0f;
        else
        {
            vel.x = 0.0f;
            pL->sPlatformLeg = 0;
        }
        break;
    default:
        break;
    }
}

void LevelPlatformsSteer(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    if (pL->sMovingPlatformNum == 0)
        return;
    if (pLevel->pConfig->platformMotion == LEVEL_PLATFORMS_LIMITS)
        SteerByLimits(pLevel);
    else if (pLevel->pConfig->platformMotion == LEVEL_PLATFORMS_LEGS)
        SteerByLegs(pL);
}

// ---- The boulder ----

void LevelBoulderStart(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    GameObjInst* pC = pL->sPlayer;
    // The floor guard, then the arming corner.
    if (pC->posCurr.y < -545.0f)
        pC->posCurr.y = -505.0f;
    if (pC->posCurr.x < -1114.0f && pC->posCurr.y < -390.0f)
        pL->sBoulderArmed = 1;
    if (!pL->sBoulderArmed)
        MovingWallRun(pL->sMovingWall, 95.0f, -1751.0f, 0.0f, -1751.0f, 0.0f);
    else
        MovingWallRun(pL->sMovingWall, 95.0f, -1751.0f, 0.0f, 1058.0f, 0.0f);
}

void LevelBoulderCatch(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    if (!(pL->sCrushed || pL->sCrushReturning) || pL->sHitPoints <= 0)
        return;
    // The catch takes a life without the scream and without regard to invincibility.
    if (!pL->sCrushReturning && pL->sCrushAlpha < 2.0f)
        pL->sCrushAlpha += 0.1f;
    else if (!pL->sCrushReturning)
    {
        pL->sHitPoints -= 1;
        pL->sPlayer->posCurr = {-1469.0f, -183.0f};
        pL->sMovingWall->posCurr = {-1750.0f, -380.0f};
        pL->sCrushReturning = 1;
    }
    else if (pL->sCrushAlpha > 0.0f)
        pL->sCrushAlpha -= 0.1f;
    else
    {
        pL->sCrushReturning = 0;
        pL->sCrushed = 0;
        pL->sBoulderArmed = 0;
    }
}

// ---- The tutorial ----

static void TutorialBox(GameObjInst* pBox, u8* pFlag, f32 minX, f32 minY, f32 maxX, f32 maxY, int mode, u8 key,
                        const GameObjInst* pCharacter)
{
    (void)pBox;
    const f32 x = pCharacter->posCurr.x;
    const f32 y = pCharacter->posCurr.y;
    const bool inside = x > minX && x < maxX && y > minY && y < maxY;
    if (mode == 1 && inside)
        *pFlag = 1;
    if (mode == 0 && KRInputCheckTriggered(key))
        *pFlag = 1;
    if (KRInputCheckTriggered(PLAY_KEY_ESCAPE) && mode != 1)
        *pFlag = 1;
    if (mode == 1 && !inside)
        *pFlag = 0;
}

void LevelTutorialBoxes(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    const GameObjInst* pC = pL->sPlayer;
    TutorialBox(pL->sTextBox[0], &gPlay.sTutorialBox1, -1550.0f, -510.0f, -1150.0f, -400.0f, 1, 57, pC);
    TutorialBox(pL->sTextBox[1], &gPlay.sTutorialBox2, -900.0f, -510.0f, -600.0f, -300.0f, 1, 57, pC);
    TutorialBox(pL->sTextBox[2], &gPlay.sTutorialBox3, -1000.0f, -300.0f, -800.0f, -200.0f, 1, 57, pC);
}

void LevelRisingWall(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    const f32 x = pL->sPlayer->posCurr.x;
    const f32 y = pL->sPlayer->posCurr.y;
    if (pL->sDropWall && x > -1080.0f && x < -900.0f && y > -515.0f && y < -455.0f)
        pL->sDropWall->velCurr.y = 50.0f;
}
