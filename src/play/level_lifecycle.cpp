// level_lifecycle.cpp -- a level's Load, Init, Free and Unload: kinds and pictures, the variable reset, and the
// creation of every object in the order that is also the drawing order.
#include "level_state.h"

#include "KRGraphics.h"
#include "fmodsound.h"
#include "gameobjdraw.h"
#include "gameobjkinds.h"
#include "gamestatemgr.h"
#include "level_probe.h"
#include "level_steps.h"
#include "stateprobe.h"
#include "level_textures.h"
#include "levelfile.h"
#include "progress.h"

#include <cstdio>

static LevelState* sLive = nullptr;
// The pool the level file reader creates into: the reader takes a creation routine without a pool.
static GameObjPool* sReadPool = nullptr;

LevelState* LevelStateLive()
{
    return sLive;
}

static GameObjInst* CreateIntoReadPool(u32 type, f32 scale, const KRVec2* pPos, const KRVec2* pVel, f32 dir,
                                       const KRVec2* pAux)
{
    return gameObjInstCreate(sReadPool, type, scale, pPos, pVel, dir, pAux);
}

static GameObjInst* Create(LevelState* pLevel, u32 kind, f32 scale, f32 x, f32 y, f32 vx = 0.0f, f32 vy = 0.0f)
{
    const KRVec2 pos = {x, y};
    const KRVec2 vel = {vx, vy};
    return gameObjInstCreate(&pLevel->pool, kind, scale, &pos, &vel, 0.0f, nullptr);
}

void LevelLoad(LevelState* pLevel, const LevelConfig* pConfig)
{
    pLevel->pConfig = pConfig;
    MusicSetTrack(kMusicLevelTrack);
    GameObjPoolReset(&pLevel->pool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    pLevel->vars.sPlayer = nullptr;
    pLevel->vars.sTorch = nullptr;
    pLevel->vars.sHand = nullptr;
    LevelKindsLoad(&pLevel->pool, pConfig);
    sLive = pLevel;
    GameStatePoolSet(&pLevel->pool);
    GameStateProbeSet(LevelProbe);
}

// The level's own objects, before or after its file, remembering the ones it steers.
static void CreateFixed(LevelState* pLevel, bool afterFile)
{
    const LevelConfig* pConfig = pLevel->pConfig;
    LevelVars* pL = &pLevel->vars;
    u32 boxes = 0;
    for (u32 i = 0; i < pConfig->fixedNum; i++)
    {
        const LevelFixedObject& f = pConfig->fixed[i];
        if ((f.afterFile != 0) != afterFile)
            continue;
        GameObjInst* pInst = Create(pLevel, f.kind, f.scale, f.x, f.y, f.vx, f.vy);
        if (f.kind == TYPE_PLATFORM_MOVING && pL->sMovingPlatformNum < LEVEL_MOVING_PLATFORM_MAX)
            pL->sMovingPlatforms[pL->sMovingPlatformNum++] = pInst;
        else if (f.kind == TYPE_DROP_WALL)
            pL->sDropWall = pInst;
        else if (f.kind == TYPE_TEXTBOX && boxes < 3)
            pL->sTextBox[boxes++] = pInst;
        else if (f.kind == TYPE_MOVING_WALL)
            pL->sMovingWall = pInst;
        else if (f.kind == TYPE_CRUSH_FADE)
            pL->sCrushFade = pInst;
    }
}

static void ReadLevelFile(LevelState* pLevel)
{
    sReadPool = &pLevel->pool;
    if (pLevel->pConfig->file)
        LevelFileRead(pLevel->pConfig->file, CreateIntoReadPool, &pLevel->vars.sPlayer, LEVEL_FILE_SCALES_PLAY);
    else
        LevelFileReadUser(CreateIntoReadPool, &pLevel->vars.sPlayer);
    sReadPool = nullptr;
}

// The torch, overlays, arrows, HUD, end screens and pause objects: placed by Update before they are drawn.
static void CreateViewObjects(LevelState* pLevel)
{
    const LevelConfig* pConfig = pLevel->pConfig;
    LevelVars* pL = &pLevel->vars;
    const f32 x = pL->sPlayer->posCurr.x;
    const f32 y = pL->sPlayer->posCurr.y;

    pL->sHand = Create(pLevel, TYPE_HAND, 15.0f, x, y);
    pL->sTorch = Create(pLevel, TYPE_DARKNESS, pConfig->darkScale, x, y);
    // The three view-wide overlays never move: their scale covers the level from where they stand.
    Create(pLevel, TYPE_PAUSE_DIM, 5.0f, pConfig->dimX, pConfig->dimY);
    Create(pLevel, TYPE_BATTERY_FADE, pConfig->batteryFadeScale, pConfig->fadeX, pConfig->fadeY);
    if (pConfig->blinkCreated)
        Create(pLevel, TYPE_BLINK_SCREEN, 20.0f, pConfig->fadeX, pConfig->fadeY);
    pL->sArrowUp = Create(pLevel, TYPE_INVERT_UP, 0.5f, x, y);
    pL->sArrowDown = Create(pLevel, TYPE_INVERT_DOWN, 0.5f, x, y);
    if (pConfig->damageFlash)
        pL->sDamageFlashObj = Create(pLevel, TYPE_DAMAGE_FLASH, 1.0f, x, y);

    // The HUD, in the order of its layers.
    Create(pLevel, TYPE_SIDEBAR_BG, 1.0f, x, y);
    Create(pLevel, TYPE_BATTERY_BAR, 1.0f, x, y);
    Create(pLevel, TYPE_SIDEBAR, 1.0f, x, y);
    for (s32 i = 0; i < 3 + gAttrHealth; i++)
        Create(pLevel, TYPE_HEART, 25.0f, x, y);
    Create(pLevel, TYPE_HUD_DESIGN, 1.0f, x, y);
    pL->sCompass = Create(pLevel, TYPE_COMPASS, 50.0f, x, y);

    pL->sWinScreen = Create(pLevel, TYPE_WIN_SCREEN, pConfig->endScreenScale, x, y);
    pL->sLoseScreen = Create(pLevel, TYPE_LOSE_SCREEN, pConfig->endScreenScale, x, y);
    LevelPauseCreate(pLevel, x, y);
}

void LevelInit(LevelState* pLevel)
{
    const LevelConfig* pConfig = pLevel->pConfig;
    LevelVars* pL = &pLevel->vars;
    LevelVarsReset(pL, pConfig);
    pL->sHitPoints = 3 + gAttrHealth;
    pL->sHeartsShown = pL->sHitPoints;
    if (pConfig->musicStarted)
        MusicPlay(0);

    Create(pLevel, TYPE_BACKGROUND, 1.0f, 80.0f, 200.0f);
    CreateFixed(pLevel, false);
    ReadLevelFile(pLevel);
    if (!pL->sPlayer)
    {
        // A level without a character can't be played: say so and go back to the choice of levels.
        std::printf("%s: the level file has no character; back to the level selection\n", pConfig->name);
        std::fflush(stdout);
        gGameStateNext = GS_LS;
        return;
    }
    CreateFixed(pLevel, true);
    CreateViewObjects(pLevel);

    pL->sPaused = 0;
    pL->sPauseHelp = 0;
    pL->sPauseOptions = 0;
    pL->sPauseConfirm = 0;
    KRGfxSetBackgroundColor(0.0f, 0.0f, 0.0f);
}

void LevelFree(LevelState* pLevel)
{
    GameObjPoolDestroyAll(&pLevel->pool);
}

void LevelUnload(LevelState* pLevel)
{
    LevelKindsUnload(&pLevel->pool, pLevel->pConfig);
    sLive = nullptr;
    GameStatePoolSet(nullptr);
    GameStateProbeSet(nullptr);
}
