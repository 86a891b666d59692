// level_hud.cpp -- hearts, battery bar, strips, ornament and compass, fixed to the view in both gravities.
#include "level_steps.h"

#include "KRGraphics.h"
#include "playcommon.h"
#include "playkeys.h"

bool LevelHudHeartGoes(LevelVars* pL, GameObjInst* pHeart)
{
    if (pL->sHitPoints == pL->sHeartsShown)
        return false;
    gameObjInstDestroy(pHeart);
    pL->sHeartsShown = pL->sHitPoints;
    return true;
}

void LevelHudPass(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    // The camera the torch set, already turned over with gravity inverted.
    f32 cx, cy;
    KRGfxGetCamPosition(&cx, &cy);
    f32 offset = 20.0f;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        GameObjInst* pInst = &pLevel->pool.sGameObjInstList[i];
        if (!(pInst->flag & FLAG_ACTIVE))
            continue;
        const u32 kind = pInst->pObject->type;
        if (kind == TYPE_HEART)
        {
            pInst->posCurr.x = -400.0f + cx + offset;
            pInst->posCurr.y = 230.0f + cy;
            // The first heart in slot order goes; the rest of the HUD stands still for this one frame.
            if (LevelHudHeartGoes(pL, pInst))
                return;
            offset += 40.0f;
        }
        else if (kind == TYPE_SIDEBAR_BG || kind == TYPE_SIDEBAR)
        {
            pInst->posCurr.x = cx;
            pInst->posCurr.y = cy + 230.0f;
        }
        else if (kind == TYPE_BATTERY_BAR)
        {
            pInst->posCurr.x = -400.0f + cx + pL->sBarOffset;
            pInst->posCurr.y = cy + 230.0f;
            LevelBatteryBarTests(pLevel);
        }
        else if (kind == TYPE_HUD_DESIGN)
        {
            pInst->posCurr.x = cx;
            pInst->posCurr.y = cy + 280.0f;
        }
    }
}

void LevelCompass(LevelState* pLevel, f32 cx, f32 cy)
{
    LevelVars* pL = &pLevel->vars;
    pL->sCompass->posCurr.x = cx + 190.0f;
    pL->sCompass->posCurr.y = cy + 230.0f;
    // Five degrees a frame toward the direction of gravity: 0 normal, -180 inverted.
    if (gPlay.sGravityInverted)
    {
        pL->sCompassAngle -= 5.0f;
        if (pL->sCompassAngle < -180.0f)
            pL->sCompassAngle = -180.0f;
    }
    else
    {
        pL->sCompassAngle += 5.0f;
        if (pL->sCompassAngle > 0.0f)
            pL->sCompassAngle = 0.0f;
    }
    pL->sCompass->dirCurr = pL->sCompassAngle / 180.0f * PLAY_PI;
}
