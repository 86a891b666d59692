// level_contact.cpp -- boxes by kind, the contact pass (exit, pickups, spikes), the blink, the end test, the
// damage flash and the end fades.
#include "level_steps.h"

#include "collision.h"
#include "fmodsound.h"
#include "gamestatemgr.h"
#include "playcommon.h"
#include "progress.h"

namespace {

void SetBox(GameObjInst* pInst, f32 minX, f32 minY, f32 maxX, f32 maxY)
{
    pInst->boundingBox = {minX, minY, maxX, maxY};
}

bool IsMover(u32 kind)
{
    return kind == TYPE_PLATFORM_MOVING || kind == TYPE_DROP_WALL || kind == TYPE_MOVING_WALL;
}

bool IsSpike(u32 kind)
{
    return kind == TYPE_SPIKE_UP || kind == TYPE_SPIKE_DOWN || kind == TYPE_SPIKE_ROW_UP ||
           kind == TYPE_SPIKE_ROW_DOWN;
}

// The contact pass's overlap test, remembering the kind it found for the probe.
bool Touches(LevelVars* pL, GameObjInst* pPlayer, GameObjInst* pInst)
{
    if (!CollisionInstances(pPlayer, pInst))
        return false;
    if (pL->sTouchedNum < (u32)LEVEL_TOUCHED_MAX)
        pL->sTouchedKinds[pL->sTouchedNum++] = pInst->pObject->type;
    return true;
}

void SpikeHit(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    if (pL->sInvincible)
        return;
    if (pLevel->pConfig->effects)
        EffectPlayScream();
    pL->sHitPoints -= 1;
    pL->sInvincible = 1;
    pL->sInvincibleTimer = 0.0f;
    gPlay.sHitHop = 1;
    if (pLevel->pConfig->damageFlash)
        pL->sDamageFlash = 1;
}

} // namespace

void LevelBoxes(LevelState* pLevel)
{
    const LevelConfig* pConfig = pLevel->pConfig;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        GameObjInst* pInst = &pLevel->pool.sGameObjInstList[i];
        if (!(pInst->flag & FLAG_ACTIVE))
            continue;
        const u32 kind = pInst->pObject->type;
        const f32 x = pInst->posCurr.x;
        const f32 y = pInst->posCurr.y;
        // A level without the rules of the movers gives them the general rule: almost nothing at scale 1.
        const bool moverRule = IsMover(kind) && pConfig->moverBoxes;
        if (kind == TYPE_PLATFORM || (kind == TYPE_PLATFORM_MOVING && moverRule))
            SetBox(pInst, x - 50.0f, y - 10.0f, x + 50.0f, y + 10.0f);
        else if (kind == TYPE_PLATFORM_LONG)
            SetBox(pInst, x - 75.0f, y - 10.0f, x + 75.0f, y + 10.0f);
        else if (kind == TYPE_WALL)
            SetBox(pInst, x - 10.0f, y - 50.0f, x + 10.0f, y + 50.0f);
        else if (kind == TYPE_SPIKE_UP || kind == TYPE_SPIKE_DOWN)
            SetBox(pInst, x - 5.5f, y - 11.5f, x + 5.5f, y + 11.5f);
        else if (kind == TYPE_SPIKE_ROW_UP)
            SetBox(pInst, x - 60.5f, y - 11.5f, x + 60.5f, y);
        else if (kind == TYPE_SPIKE_ROW_DOWN)
            SetBox(pInst, x - 60.5f, y, x + 60.5f, y + 11.5f);
        else if (kind == TYPE_MOVING_WALL && moverRule && pConfig->boulder)
            SetBox(pInst, x - 253.0f, y - 149.0f, x + 253.0f, y + 149.0f);
        else if ((kind == TYPE_DROP_WALL || kind == TYPE_MOVING_WALL) && moverRule)
            SetBox(pInst, x - 10.0f, y - 50.0f, x + 10.0f, y + 50.0f);
        else
            SetBox(pInst, x - pInst->scale / 6.0f, y - pInst->scale / 2.0f, x + pInst->scale / 6.0f,
                   y + pInst->scale / 2.0f);
    }
}

void LevelContactPass(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    GameObjInst* pPlayer = pL->sPlayer;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        GameObjInst* pInst = &pLevel->pool.sGameObjInstList[i];
        if (!(pInst->flag & FLAG_ACTIVE) || pInst == pPlayer)
            continue;
        const u32 kind = pInst->pObject->type;
        if (kind == TYPE_EXIT_PORTAL)
        {
            if (pL->sWon)
                continue;
            // Marked at the touch: a player who quits during the fade keeps the level.
            if (Touches(pL, pPlayer, pInst))
            {
                if (pLevel->pConfig->markIndex >= 0)
                    StatesMarkLevel(pLevel->pConfig->markIndex);
                pL->sWon = 1;
            }
            else
                pL->sWon = 0;
        }
        else if (kind == TYPE_ZOOM_POWERUP)
        {
            if (Touches(pL, pPlayer, pInst))
            {
                pL->sZoomActive = 1;
                gameObjInstDestroy(pInst);
            }
        }
        else if (kind == TYPE_BATTERYP)
        {
            if (Touches(pL, pPlayer, pInst))
                LevelBatteryPickup(pLevel, pInst);
        }
        else if (IsSpike(kind) && !pL->sFlipFrozen)
        {
            if (Touches(pL, pPlayer, pInst))
                SpikeHit(pLevel);
        }
    }
}

void LevelBlink(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    if (!pL->sInvincible)
    {
        pL->sBlinkHidden = 0;
        return;
    }
    if (pL->sInvincibleTime > pL->sBlinkFloor)
    {
        pL->sBlinkHidden = pL->sBlinkTimer < 0.2f;
        if (pL->sBlinkTimer > 0.4f)
            pL->sBlinkTimer = 0.0f;
    }
}

void LevelEndTest(LevelState* pLevel, f32 dt)
{
    LevelVars* pL = &pLevel->vars;
    if (pL->sHitPoints > 0 && pL->sBatteryFadeAlpha < 1.0f)
        return;
    pL->sLost = 1;
    pL->sEndTimer += dt;
    if (pL->sEndTimer > 3.0f)
        gGameStateNext = GS_LS;
    if (pLevel->pConfig->damageFlash)
        pL->sIsGhost = 1;
}

void LevelDamageFlash(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    if (!pL->sDamageFlash)
    {
        pL->sDamageAlpha = 0.0f;
        return;
    }
    if (pL->sDamageAlpha < 0.2f && pL->sDamageFalling == 0)
        pL->sDamageAlpha += 0.01f;
    if (pL->sDamageFalling == 0 && pL->sDamageAlpha >= 0.2f)
        pL->sDamageFalling = 1;
    if (pL->sDamageFalling == 1 && pL->sDamageAlpha > 0.0f)
        pL->sDamageAlpha -= 0.01f;
    if (pL->sDamageFalling == 1 && pL->sDamageAlpha <= 0.0f)
    {
        pL->sDamageFalling = 0;
        pL->sDamageFlash = 0;
    }
}

void LevelEndFades(LevelState* pLevel, f32 dt)
{
    LevelVars* pL = &pLevel->vars;
    if (pL->sLost)
        pL->sLoseAlpha += 0.01f;
    if (pL->sWon)
    {
        // One timer for the win and the loss: a level both lost and won counts twice a frame, and the win's
        // next state, written later, stands.
        pL->sEndTimer += dt;
        if (pL->sEndTimer > 3.0f)
            gGameStateNext = pLevel->pConfig->nextState;
        pL->sWinAlpha += 0.01f;
    }
}
