// credits.cpp -- the credits: a copy of a level with the flip and the jump taken out. The character walks right at
// 100 units a second past four pictures of names, the torch held at 345 degrees, to the exit or the closing fade.
//
// Owns:    gCredits (a level's record with the credits' own row), the credits' pictures.
// Reached: from the main menu's Options page and by winning the last level. Leaves for GS_LS, GS_MENU, GS_RESTART.
#include "credits.h"
#include "credits_internal.h"

#include "KRGraphics.h"
#include "KRInput.h"
#include "character.h"
#include "collision.h"
#include "fmodsound.h"
#include "gameloop.h"
#include "gameobjdraw.h"
#include "gameobjmesh.h"
#include "gamestatemgr.h"
#include "gametextures.h"
#include "level_probe.h"
#include "level_steps.h"
#include "level_textures.h"
#include "levelfile.h"
#include "playcommon.h"
#include "playkeys.h"
#include "progress.h"
#include "stateprobe.h"
#include "torch.h"

CreditsState gCredits;
CreditsTextures gCreditsTex;

// What the credits register of a level: every kind of a level, with the tutorial, blink and damage kinds.
static const LevelConfig sCreditsRow = {
    .name = "Credits", .state = GS_CREDITS, .file = "Credits.txt", .nextState = GS_LS, .markIndex = -1,
    .darkHalfW = 400, .darkHalfH = 300, .darkScale = 6.5f,
    .key0Restarts = 1, .escRefusedUnderConfirm = 0, .effects = 1, .musicStarted = 1, .halfVolumeInPause = 0,
    .musicUpdateFirst = 1, .damageFlash = 1, .pickupClearsFade = 1, .blinkCreated = 1, .blinkDrawn = 1,
    .moverBoxes = 1, .moversDrawn = 1, .endScreenScale = 1.0f, .batteryFadeScale = 5,
    .resetsInvincible = 1, .resetsEndTimer = 1, .confirmTransforms = 0,
    .tutorial = 0, .textboxKind = 1, .boulder = 0,
    .dimX = -150, .dimY = 205, .fadeX = -150, .fadeY = 205,
    .fixed = {}, .fixedNum = 0,
    .platformMotion = LEVEL_PLATFORMS_NONE, .limits = {}, .heldPlatforms = 0,
};

#define SHAPE(kind, w, h, colour) {kind, GAME_OBJ_FORM_QUAD, w, h, colour, nullptr}
static const GameObjShape sCreditsShapes[] = {
    SHAPE(TYPE_CREDITS_1, 1002.0f, 225.0f, 0xFFFFFFFF), SHAPE(TYPE_CREDITS_2, 1002.0f, 225.0f, 0xFFFFFFFF),
    SHAPE(TYPE_CREDITS_3, 1002.0f, 225.0f, 0xFFFFFFFF), SHAPE(TYPE_CREDITS_4, 1002.0f, 225.0f, 0xFFFFFFFF),
    SHAPE(TYPE_CREDITS_FLOOR, 2000.0f, 31.0f, 0xFF000000), SHAPE(TYPE_SHIMMER_EXIT, 53.0f, 50.0f, 0xFFFFFFFF),
    SHAPE(TYPE_SHIMMER_LIGHT, 8.0f, 55.0f, 0xFFFFFFFF), SHAPE(TYPE_CREDITS_NOTICE, 266.0f, 16.0f, 0xFFFFFFFF),
    SHAPE(TYPE_CREDITS_AUDIO, 209.0f, 22.0f, 0xFFFFFFFF),
};
#undef SHAPE

#define TEX(var, file) {&gCreditsTex.var, file, #var}
static const GameTexture sCreditsTextures[] = {
    TEX(Credits1_TEX, "credits1.png"),     TEX(Credits2_TEX, "credits2.png"),
    TEX(Credits3_TEX, "credits3.png"),     TEX(Credits4_TEX, "credits4.png"),
    TEX(ShimmerExit_TEX, "shimmeringexit.png"), TEX(ShimmerLight_TEX, "shimmeringlight.png"),
    TEX(CopyRight_TEX, "Copyright.png"),   TEX(CreditFmod_TEX, "creditsaudio.png"),
};
#undef TEX

static const u32 kShapeNum = sizeof(sCreditsShapes) / sizeof(sCreditsShapes[0]);
static const u32 kTextureNum = sizeof(sCreditsTextures) / sizeof(sCreditsTextures[0]);
static const f32 kTorchDeg = 345.0f;
static const f32 kWalkSpeed = 100.0f;

// The file reader's creation routine takes no pool.
static GameObjInst* CreateIntoCredits(u32 type, f32 scale, const KRVec2* pPos, const KRVec2* pVel, f32 dir,
                                      const KRVec2* pAux)
{
    return gameObjInstCreate(&gCredits.level.pool, type, scale, pPos, pVel, dir, pAux);
}

static GameObjInst* Make(u32 kind, f32 scale, f32 x, f32 y)
{
    const KRVec2 pos = {x, y};
    return gameObjInstCreate(&gCredits.level.pool, kind, scale, &pos, nullptr, 0.0f, nullptr);
}

void CreditsLoad()
{
    MusicSetTrack(kMusicCreditsTrack);
    LevelState* pLevel = &gCredits.level;
    pLevel->pConfig = &sCreditsRow;
    GameObjPoolReset(&pLevel->pool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    LevelKindsLoadNamed(&pLevel->pool, &sCreditsRow, "CreditsLoad");
    // The credits' own kinds, 90 among them in place of a level's meaning of that number.
    GameObjRegisterShapes(&pLevel->pool, sCreditsShapes, kShapeNum, "CreditsLoad");
    GameTexturesLoad(sCreditsTextures, kTextureNum, "CreditsLoad");
    GameStatePoolSet(&pLevel->pool);
    GameStateProbeSet(CreditsProbe);
}

static void CreateInstances(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    Make(TYPE_BACKGROUND, 1.0f, 0.0f, 0.0f);
    Make(TYPE_CREDITS_1, 0.4f, -1150.0f, -146.0f);
    Make(TYPE_CREDITS_2, 0.4f, -350.0f, -146.0f);
    Make(TYPE_CREDITS_3, 0.4f, 450.0f, -146.0f);
    Make(TYPE_CREDITS_4, 0.4f, 1250.0f, -146.0f);
    Make(TYPE_CREDITS_FLOOR, 4.0f, 0.0f, -346.0f);
    Make(TYPE_CREDITS_NOTICE, 0.8f, -1100.0f, -230.0f);
    Make(TYPE_CREDITS_AUDIO, 0.8f, -270.0f, -230.0f);
    pL->sDropWall = Make(TYPE_DROP_WALL, 1.0f, -1014.0f, -495.0f);
    LevelFileRead("Credits.txt", CreateIntoCredits, &pL->sPlayer, LEVEL_FILE_SCALES_SCENE);
    const f32 x = pL->sPlayer ? pL->sPlayer->posCurr.x : 0.0f;
    const f32 y = pL->sPlayer ? pL->sPlayer->posCurr.y : 0.0f;
    pL->sHand = Make(TYPE_HAND, 15.0f, x, y - 8.0f);
    Make(TYPE_SHIMMER_EXIT, 1.3f, 1500.0f, 25.0f);
    Make(TYPE_SHIMMER_LIGHT, 0.9f, 1558.0f, 13.0f);
    Make(TYPE_ZOOM_POWERUP, 30.0f, -150.0f, 205.0f);
    pL->sTorch = Make(TYPE_DARKNESS, 6.5f, -150.0f, 205.0f);
    Make(TYPE_PAUSE_DIM, 5.0f, -150.0f, 205.0f);
    gCredits.sFade = Make(TYPE_BATTERY_FADE, 5.0f, -150.0f, 205.0f);
    Make(TYPE_BLINK_SCREEN, 20.0f, 0.0f, 0.0f);
    pL->sArrowUp = Make(TYPE_INVERT_UP, 0.5f, 0.0f, 0.0f);
    pL->sArrowDown = Make(TYPE_INVERT_DOWN, 0.5f, 0.0f, 0.0f);
    Make(TYPE_SIDEBAR_BG, 1.0f, 0.0f, 240.0f);
    Make(TYPE_BATTERY_BAR, 1.0f, 292.0f, 231.0f);
    Make(TYPE_SIDEBAR, 1.0f, 0.0f, 240.0f);
    // Three hearts and, with points spent on health, one more than the points: a heart more than the hit points.
    const s32 hearts = 3 + (gAttrHealth > 0 ? gAttrHealth + 1 : 0);
    for (s32 i = 0; i < hearts; i++)
        Make(TYPE_HEART, 25.0f, -360.0f + 40.0f * (f32)i, 230.0f);
    Make(TYPE_HUD_DESIGN, 1.0f, 0.0f, 200.0f);
    pL->sCompass = Make(TYPE_COMPASS, 50.0f, 0.0f, 0.0f);
    pL->sWinScreen = Make(TYPE_WIN_SCREEN, 1.0f, 0.0f, 0.0f);
    pL->sLoseScreen = Make(TYPE_LOSE_SCREEN, 1.0f, 0.0f, 0.0f);
    pL->sBtnResume = Make(TYPE_RESUME_BTN, 1.0f, 0.0f, 0.0f);
    pL->sBtnLevels = Make(TYPE_LEVELS_BTN, 1.0f, 0.0f, 0.0f);
    pL->sBtnOptions = Make(TYPE_OPTION_BTN, 1.0f, 0.0f, 0.0f);
    pL->sBtnHelp = Make(TYPE_HELP_BTN, 1.0f, 0.0f, 0.0f);
    pL->sBtnExit = Make(TYPE_EXIT_BTN, 1.0f, 0.0f, 0.0f);
    pL->sPauseTitle = Make(TYPE_PAUSE_TITLE, 1.0f, x, y);
    pL->sHelpPage = Make(TYPE_HELP_SCREEN, 1.0f, x, y);
    pL->sOptionPage = Make(TYPE_OPTION_MENU, 0.9f, x, y);
    pL->sBackBtn = Make(TYPE_BACK_BTN, 0.7f, x, y);
    pL->sBtnFullScreen = Make(TYPE_OPTION_FS, 0.9f, x, y);
    pL->sBtnVolumeUp = Make(TYPE_OPTION_VU, 0.9f, x, y);
    pL->sBtnVolumeDown = Make(TYPE_OPTION_VD, 0.9f, x, y);
    pL->sCursor = Make(TYPE_CURSOR, 35.0f, x, y);
}

void CreditsInit()
{
    LevelState* pLevel = &gCredits.level;
    LevelVars* pL = &pLevel->vars;
    MusicPlay(0);
    KRGfxSetBackgroundColor(0.0f, 0.0f, 0.0f);
    KRInputShowCursor(0);
    LevelVarsReset(pL, &sCreditsRow);
    gCredits.sFadeAlpha = 0.0f;
    gCredits.sExitLatch = 0;
    pL->sHitPoints = 3;
    CreateInstances(pLevel);
    pL->sHitPoints += gAttrHealth;
    // The count follows the hit points, not the hearts made: the extra heart stays on screen.
    pL->sHeartsShown = pL->sHitPoints;
    pL->sPaused = 0;
    pL->sPauseHelp = 0;
    pL->sPauseOptions = 0;
    KRGfxSetBackgroundColor(0.0f, 0.0f, 0.0f);
}

static void Place(GameObjInst* pInst, f32 x, f32 y)
{
    pInst->posCurr.x = x;
    pInst->posCurr.y = y;
}

static bool IsSpike(u32 kind)
{
    return kind == TYPE_SPIKE_UP || kind == TYPE_SPIKE_DOWN || kind == TYPE_SPIKE_ROW_UP ||
           kind == TYPE_SPIKE_ROW_DOWN;
}

// The exit at once; spikes cost hearts without consequence.
static void Contacts(LevelState* pLevel)
{
    LevelVars* pL = &pLevel->vars;
    GameObjInst* pC = pL->sPlayer;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        GameObjInst* pInst = &pLevel->pool.sGameObjInstList[i];
        if (!(pInst->flag & FLAG_ACTIVE) || pInst == pC || !CollisionInstances(pC, pInst))
            continue;
        const u32 kind = pInst->pObject->type;
        if (kind == TYPE_EXIT_PORTAL && !gCredits.sExitLatch)
        {
            gGameStateNext = GS_LS;
            gCredits.sExitLatch = 1;
        }
        else if (IsSpike(kind) && !pL->sInvincible)
        {
            pL->sHitPoints -= 1;
            pL->sInvincible = 1;
            pL->sInvincibleTimer = 0.0f;
            if (pL->sHitPoints <= 0)
                pL->sLost = 1;
        }
    }
}

static void Hud(LevelState* pLevel, f32 cx, f32 cy)
{
    LevelVars* pL = &pLevel->vars;
    f32 n = 0.0f;
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        GameObjInst* pInst = &pLevel->pool.sGameObjInstList[i];
        if (!(pInst->flag & FLAG_ACTIVE))
            continue;
        const u32 kind = pInst->pObject->type;
        if (kind == TYPE_HEART)
        {
            Place(pInst, cx - 380.0f + 40.0f * n, cy + 230.0f);
            if (LevelHudHeartGoes(pL, pInst))
                return;
            n += 1.0f;
        }
        else if (kind == TYPE_SIDEBAR || kind == TYPE_SIDEBAR_BG)
            Place(pInst, cx, cy + 230.0f);
        else if (kind == TYPE_HUD_DESIGN)
            Place(pInst, cx, cy + 280.0f);
    }
}

void CreditsUpdate()
{
    LevelState* pLevel = &gCredits.level;
    LevelVars* pL = &pLevel->vars;
    GameObjInst* pC = pL->sPlayer;
    MusicUpdate();
    const f32 dt = gFrameDelta;
    if (KRInputCheckTriggered(PLAY_KEY_ESCAPE) && !pL->sPauseHelp && !pL->sPauseOptions)
        pL->sPaused = !pL->sPaused;
    int32_t mx, my;
    KRInputGetCursorPosition(&mx, &my);
    Place(pL->sCursor, KRGfxGetWinMinX() + (f32)mx, KRGfxGetWinMaxY() - (f32)my);
    f32 cx, cy;
    KRGfxGetCamPosition(&cx, &cy);
    // The level's placement of the pause objects; the credits have no confirmation box and no damage flash.
    LevelPausePlace(pLevel, cx, cy);
    if (pL->sPaused)
    {
        CreditsPauseRun(&gCredits);
        pC->velCurr.x = kWalkSpeed;
        return;
    }
    KRGfxSetCamPosition(pC->posCurr.x, pC->posCurr.y);
    CharacterFacing(&pL->sFacingLeft);
    if (KRInputCheckTriggered(PLAY_KEY_0))
        gGameStateNext = GS_RESTART;
    Place(pL->sHand, pC->posCurr.x, pC->posCurr.y - 8.0f);
    pC->velCurr.y -= 250.1f * dt;
    // The torch is placed and the camera clamped; its angle is not used here.
    TorchUpdate(pL->sTorch, pC, 0);
    pL->sTorchAngle = kTorchDeg;
    for (GameObjInst& inst : pLevel->pool.sGameObjInstList)
    {
        inst.posCurr.x += inst.velCurr.x * dt;
        inst.posCurr.y += inst.velCurr.y * dt;
    }
    LevelBoxes(pLevel);
    KRGfxGetCamPosition(&cx, &cy);
    Place(pL->sWinScreen, cx - 10.0f, cy - 10.0f);
    Place(pL->sLoseScreen, cx - 10.0f, cy - 10.0f);
    pL->sInvincibleTimer += dt;
    pL->sBlinkTimer += dt;
    if (pL->sInvincibleTimer > pL->sInvincibleTime)
        pL->sInvincible = 0;
    if (pC->flag & FLAG_ACTIVE)
        Contacts(pLevel);
    LevelBlink(pLevel);
    Hud(pLevel, cx, cy);
    if (pC->posCurr.x > 1490.0f)
    {
        gCredits.sFadeAlpha += 0.01f;
        if (gCredits.sFadeAlpha >= 1.0f)
            gGameStateNext = GS_LS;
    }
    LevelCompass(pLevel, cx, cy);
    Place(pL->sArrowUp, cx - 100.0f, cy - 500.0f);
    Place(pL->sArrowDown, cx + 100.0f, cy + 500.0f);
    if (pC->flag & FLAG_ACTIVE)
        CollisionPlayNormal(pC, &pLevel->pool, 10.0f, dt);
    LevelTransforms(pLevel);
    // What walks it: collision may zero the speed at a wall, and the next frame restores it.
    pC->velCurr.x = kWalkSpeed;
}

void CreditsDraw()
{
    GameObjPoolDraw(&gCredits.level.pool, CreditsDrawOne);
}

void CreditsFree()
{
    GameObjPoolDestroyAll(&gCredits.level.pool);
}

void CreditsUnload()
{
    LevelKindsUnload(&gCredits.level.pool, &sCreditsRow);
    GameTexturesUnload(sCreditsTextures, kTextureNum);
    GameStatePoolSet(nullptr);
    GameStateProbeSet(nullptr);
}
