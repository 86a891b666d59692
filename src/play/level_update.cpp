// level_update.cpp -- one frame of a level, its thirty-three steps in their order.
#include "level_state.h"

#include "KRGraphics.h"
#include "KRInput.h"
#include "character.h"
#include "collision.h"
#include "fmodsound.h"
#include "gameloop.h"
#include "gamestatemgr.h"
#include "level_steps.h"
#include "playcommon.h"
#include "playkeys.h"
#include "torch.h"

static void Integrate(GameObjPool* pPool, f32 dt)
{
    // Free slots too: a destroyed instance with a velocity goes on moving unseen until its slot is reused.
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        GameObjInst* pInst = &pPool->sGameObjInstList[i];
        pInst->posCurr.x += pInst->velCurr.x * dt;
        pInst->posCurr.y += pInst->velCurr.y * dt;
    }
}

static void EscapeToggle(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    if (!KRInputCheckTriggered(PLAY_KEY_ESCAPE) || pL->sPauseHelp || pL->sPauseOptions)
        return;
    if (pLevel->pConfig->escRefusedUnderConfirm && pL->sPauseConfirm)
        return;
    pL->sPaused = !pL->sPaused;
}

static void CursorFollow(LevelVars* pL)
{
    int32_t mx, my;
    KRInputGetCursorPosition(&mx, &my);
    pL->sCursor->posCurr.x = KRGfxGetWinMinX() + (f32)mx;
    pL->sCursor->posCurr.y = KRGfxGetWinMaxY() - (f32)my;
}

static void EndScreensFollow(LevelVars* pL)
{
    f32 camX, camY;
    KRGfxGetCamPosition(&camX, &camY);
    pL->sWinScreen->posCurr.x = camX - 10.0f;
    pL->sWinScreen->posCurr.y = camY - 10.0f;
    pL->sLoseScreen->posCurr.x = camX - 10.0f;
    pL->sLoseScreen->posCurr.y = camY - 10.0f;
}

static void Collide(LevelState* pLevel, f32 dt)
{
    LevelVars* pL = &pLevel->vars;
    GameObjInst* pPlayer = pL->sPlayer;
    // A frozen flip always takes the inverted driver, whichever way gravity now points.
    if (!pL->sFlipFrozen && (pPlayer->flag & FLAG_ACTIVE) && !gPlay.sGravityInverted)
        CollisionPlayNormal(pPlayer, &pLevel->pool, 10.0f, dt);
    else
        CollisionPlayInverted(pPlayer, &pLevel->pool, 10.0f, dt);
}

void LevelUpdate(LevelState* pLevel)
{
    const LevelConfig* pConfig = pLevel->pConfig;
    LevelVars* pL = &pLevel->vars;
    GameObjInst* pPlayer = pL->sPlayer;

    if (pConfig->musicUpdateFirst)
        MusicUpdate();
    if (pConfig->boulder)
    {
        // The catch reads what the collision step of the frame before returned.
        pL->sCrushed = gPlay.sHitByMovingWall;
        LevelBoulderStart(pLevel);
    }
    // 1.
    const f32 dt = gFrameDelta;
    pL->sTouchedNum = 0;
    // 2 to 5: the pause.
    EscapeToggle(pLevel);
    CursorFollow(pL);
    f32 camX, camY;
    KRGfxGetCamPosition(&camX, &camY);
    LevelPausePlace(pLevel, camX, camY);
    if (pL->sPaused)
    {
        if (pConfig->halfVolumeInPause)
            MusicUpdateHalfVolume();
        LevelPauseRun(pLevel);
        return;
    }
    // 6, 7.
    if (!pConfig->musicUpdateFirst)
        MusicUpdate();
    KRGfxSetCamPosition(pPlayer->posCurr.x, pPlayer->posCurr.y);
    // 8, 9.
    CharacterFacing(&pL->sFacingLeft);
    if (pConfig->key0Restarts && KRInputCheckTriggered(PLAY_KEY_0))
        gGameStateNext = GS_RESTART;
    // 11: the hand 8 below the character, or 8 above with gravity inverted.
    pL->sHand->posCurr.x = pPlayer->posCurr.x;
    pL->sHand->posCurr.y = pPlayer->posCurr.y + (gPlay.sGravityInverted ? 8.0f : -8.0f);
    // 12 to 17.
    FlipTimersRun(pL, pPlayer, dt);
    CharacterMove(pPlayer, dt, pL->sFlipFrozen);
    if (pConfig->tutorial)
        LevelTutorialBoxes(pLevel);
    FlipInput(pL, pPlayer, pConfig->effects);
    pL->sTorchAngle = TorchUpdate(pL->sTorch, pPlayer, gPlay.sGravityInverted);
    if (pConfig->tutorial)
        LevelRisingWall(pLevel);
    // 18 to 20.
    Integrate(&pLevel->pool, dt);
    LevelBoxes(pLevel);
    EndScreensFollow(pL);
    // 21 to 27.
    pL->sInvincibleTimer += dt;
    pL->sBlinkTimer += dt;
    if (pL->sInvincibleTimer > pL->sInvincibleTime)
        pL->sInvincible = 0;
    if (pPlayer->flag & FLAG_ACTIVE)
        LevelContactPass(pLevel);
    LevelBlink(pLevel);
    if (pConfig->boulder)
        LevelBoulderCatch(pLevel);
    LevelEndTest(pLevel, dt);
    LevelBatteryClock(pLevel, dt);
    if (pConfig->damageFlash)
        LevelDamageFlash(pLevel);
    // 28 to 30.
    pL->sBatteryUsed += dt;
    LevelHudPass(pLevel);
    LevelEndFades(pLevel, dt);
    LevelBatteryBlinkAndFade(pLevel, dt);
    KRGfxGetCamPosition(&camX, &camY);
    LevelCompass(pLevel, camX, camY);
    FlipArrowsRun(pL, camX, camY);
    // 31 to 33.
    Collide(pLevel, dt);
    LevelPlatformsSteer(pLevel);
    LevelTransforms(pLevel);
}
