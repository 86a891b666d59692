// level_transform.cpp -- the transforms of a level's frame: the turned-over world, the view-fixed HUD, the torch's
// turn, the character's easing, and the zoom pulse stepped once per world object.
#include "level_steps.h"

#include "KRMtx33.h"
#include "gameobjdraw.h"
#include "playcommon.h"
#include "playkeys.h"

namespace {

// Fixed to the view: never turned with the world.
bool IsViewFixed(u32 kind)
{
    switch (kind)
    {
    case TYPE_HEART: case TYPE_SIDEBAR: case TYPE_SIDEBAR_BG: case TYPE_BATTERY_BAR: case TYPE_WIN_SCREEN:
    case TYPE_LOSE_SCREEN: case TYPE_COMPASS: case TYPE_INVERT_UP: case TYPE_INVERT_DOWN: case TYPE_HUD_DESIGN:
    case TYPE_DAMAGE_FLASH:
        return true;
    default:
        return false;
    }
}

// Not zoomed: the view-fixed kinds but the end screens.
bool IsUnzoomed(u32 kind)
{
    return IsViewFixed(kind) && kind != TYPE_WIN_SCREEN && kind != TYPE_LOSE_SCREEN;
}

// Loses 0.1 when positive, gains 0.1 when negative, the two tests in turn: it settles near 0.04, never at 0.
void EaseCharacter(GameObjInst* pInst)
{
    if (pInst->dirCurr != 0.0f)
    {
        if (pInst->dirCurr > 0.0f)
            pInst->dirCurr -= 0.1f;
        if (pInst->dirCurr < 0.0f)
            pInst->dirCurr += 0.1f;
    }
}

// One step of the zoom pulse; the rate is per object, not per second.
void ZoomStep(LevelVars* pL)
{
    const f32 low = 0.5f, high = 1.0f, near = 0.02f, step = 1.5e-5f;
    if (!pL->sZoomReturning && pL->sZoomScale >= low)
        pL->sZoomScale -= step;
    if (low + near >= pL->sZoomScale && pL->sZoomScale >= low)
        pL->sZoomReturning = 1;
    if (pL->sZoomReturning && high >= pL->sZoomScale)
        pL->sZoomScale += step;
    if (pL->sZoomReturning && pL->sZoomScale >= high - near)
    {
        pL->sZoomActive = 0;
        pL->sZoomReturning = 0;
    }
}

void ApplyZoom(GameObjInst* pInst, f32 zoom)
{
    KRMtx33 scale, zoomed;
    KRMtx33Scale(&scale, zoom, zoom);
    KRMtx33Concat(&zoomed, &scale, &pInst->transform);
    pInst->transform = zoomed;
}

} // namespace

void LevelTransforms(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    const f32 torch = pL->sTorchAngle * PLAY_PI / 180.0f;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        GameObjInst* pInst = &pLevel->pool.sGameObjInstList[i];
        if (!(pInst->flag & FLAG_ACTIVE))
            continue;
        const u32 kind = pInst->pObject->type;
        if (IsViewFixed(kind))
            GameObjBuildTransform(pInst, pInst->posCurr.x, pInst->posCurr.y, pInst->dirCurr);
        else
        {
            // The world is only drawn turned over: no coordinate changes sign.
            const f32 y = gPlay.sGravityInverted ? -(pInst->posCurr.y + 90.0f) : pInst->posCurr.y;
            f32 angle;
            if (kind == TYPE_DARKNESS || kind == TYPE_HAND)
                angle = torch;
            else if (kind == TYPE_CHARACTER)
            {
                EaseCharacter(pInst);
                angle = pInst->dirCurr;
            }
            else
                angle = gPlay.sGravityInverted ? PLAY_PI : pInst->dirCurr;
            GameObjBuildTransform(pInst, pInst->posCurr.x, y, angle);
        }
        if (pL->sZoomActive && !IsUnzoomed(kind))
        {
            ZoomStep(pL);
            ApplyZoom(pInst, pL->sZoomScale);
        }
    }
}
