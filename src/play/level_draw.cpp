// level_draw.cpp -- a level's Draw: the pool in slot order, each kind with its picture, transparency and blend.
#include "level_state.h"

#include "KRGraphics.h"
#include "gameobjdraw.h"
#include "level_steps.h"
#include "level_textures.h"
#include "playcommon.h"

static const LevelState* sDrawn = nullptr;

static void Picture(const GameObjInst* pInst, KRGfxTexture* pTexture, f32 alpha)
{
    GameObjDrawTextured(pInst, pTexture, alpha, KR_GFX_BM_BLEND);
}

// Platforms, walls and drop walls stay in blend mode 0.
static void Solid(const GameObjInst* pInst, KRGfxTexture* pTexture)
{
    GameObjDrawTextured(pInst, pTexture, 1.0f, KR_GFX_BM_NONE);
}

static void DrawCharacter(const LevelState* pLevel, const GameObjInst* pInst)
{
    const LevelVars* pL = &pLevel->vars;
    if (pL->sBlinkHidden)
        return Picture(pInst, gLevelTex.charTEX, 0.0f);
    KRGfxTexture* pTexture = pL->sFacingLeft ? gLevelTex.char_leftTEX : gLevelTex.charTEX;
    if (pLevel->pConfig->damageFlash && pL->sIsGhost)
        pTexture = gLevelTex.GHOSTTEX;
    Picture(pInst, pTexture, 1.0f);
}

// A tutorial box is drawn while its flag is set, with its own picture on its own instance.
static void DrawTextBox(const LevelState* pLevel, const GameObjInst* pInst)
{
    const LevelVars* pL = &pLevel->vars;
    const u8 flags[3] = {gPlay.sTutorialBox1, gPlay.sTutorialBox2, gPlay.sTutorialBox3};
    KRGfxTexture* pictures[3] = {gLevelTex.TEXTBOX_1_TEX, gLevelTex.TEXTBOX_2_TEX, gLevelTex.TEXTBOX_3_TEX};
    for (int i = 0; i < 3; i++)
        if (pL->sTextBox[i] == pInst && flags[i])
            Picture(pInst, pictures[i], 1.0f);
}

static KRGfxTexture* PauseTexture(u32 kind)
{
    switch (kind)
    {
    case TYPE_PAUSE_DIM: return gLevelTex.BlackScreen_TEX;
    case TYPE_CURSOR: return gLevelTex.CursorTEX;
    case TYPE_PAUSE_TITLE: return gLevelTex.PAUSE_TEX;
    case TYPE_RESUME_BTN: return gLevelTex.RESUME_BTN_TEX;
    case TYPE_OPTION_BTN: return gLevelTex.OPTION_BTN_TEX;
    case TYPE_LEVELS_BTN: return gLevelTex.LEVELS_BTN_TEX;
    case TYPE_HELP_BTN: return gLevelTex.HELP_BTN_TEX;
    case TYPE_EXIT_BTN: return gLevelTex.EXIT_BTN_TEX;
    case TYPE_HELP_SCREEN: return gLevelTex.HELP_SCREEN_TEX;
    case TYPE_OPTION_MENU: return gLevelTex.Option_Menu_TEX;
    case TYPE_BACK_BTN: return gLevelTex.BACK_TEX;
    case TYPE_OPTION_FS: return gLevelTex.Option_FS_TEX;
    case TYPE_OPTION_VU: return gLevelTex.Option_VU_TEX;
    case TYPE_OPTION_VD: return gLevelTex.Option_VD_TEX;
    case TYPE_ARE_YOU_SURE: return gLevelTex.AreYouSureTEX;
    case TYPE_YES_BTN: return gLevelTex.Yes_btn_TEX;
    case TYPE_NO_BTN: return gLevelTex.No_btn_TEX;
    default: return nullptr;
    }
}

static void DrawOne(GameObjInst* pInst)
{
    const LevelState* pLevel = sDrawn;
    const LevelVars* pL = &pLevel->vars;
    const LevelConfig* pConfig = pLevel->pConfig;
    const u32 kind = pInst->pObject->type;
    f32 alpha;
    if (LevelPauseAlpha(pLevel, pInst, &alpha))
        return Picture(pInst, PauseTexture(kind), alpha);

    switch (kind)
    {
    case TYPE_WALL: return Solid(pInst, gLevelTex.verTEX);
    case TYPE_PLATFORM: case TYPE_PLATFORM_LONG: return Solid(pInst, gLevelTex.horiTEX);
    case TYPE_PLATFORM_MOVING:
        if (pConfig->moversDrawn)
            Solid(pInst, gLevelTex.horiTEX);
        return;
    case TYPE_DROP_WALL:
        if (pConfig->moversDrawn)
            Solid(pInst, gLevelTex.vert_drop_TEX);
        return;
    case TYPE_MOVING_WALL:
        if (pConfig->moversDrawn)
            Picture(pInst, pConfig->boulder ? gLevelTex.Moving_Wall_TEX : gLevelTex.vert_drop_TEX, 1.0f);
        return;
    case TYPE_SPIKE_UP: case TYPE_SPIKE_DOWN: case TYPE_SPIKE_ROW_UP: case TYPE_SPIKE_ROW_DOWN:
        return GameObjDrawColoured(pInst, 1.0f, KR_GFX_BM_NONE);
    case TYPE_CHARACTER: return DrawCharacter(pLevel, pInst);
    case TYPE_HAND: return Picture(pInst, gLevelTex.char_handTEX, 1.0f);
    case TYPE_EXIT_PORTAL: return Picture(pInst, gLevelTex.Exit_PORTAL_TEX, 1.0f);
    case TYPE_DARKNESS:
        // A zoom lifts the darkness.
        if (!pL->sZoomActive && !pL->sDarknessOff)
            Picture(pInst, gLevelTex.torchTEX, 1.0f);
        return;
    case TYPE_ZOOM_POWERUP: return Picture(pInst, gLevelTex.power1Tex, 1.0f);
    case TYPE_BACKGROUND: return Solid(pInst, gLevelTex.backgroundTEX);
    case TYPE_HEART: return Picture(pInst, gLevelTex.HealthTex, 1.0f);
    case TYPE_SIDEBAR: return Picture(pInst, gLevelTex.SideBarTex, 1.0f);
    case TYPE_SIDEBAR_BG: return Picture(pInst, gLevelTex.SideBarBgTex, 1.0f);
    case TYPE_BATTERY_BAR: return GameObjDrawColoured(pInst, 1.0f, KR_GFX_BM_BLEND);
    case TYPE_BATTERY_FADE: return GameObjDrawColoured(pInst, pL->sBatteryFadeAlpha, KR_GFX_BM_BLEND);
    case TYPE_BLINK_SCREEN:
        if (pConfig->blinkDrawn && pL->sBatteryBlink)
            Picture(pInst, gLevelTex.BlackScreen2_TEX, 1.0f);
        return;
    case TYPE_DAMAGE_FLASH: return Picture(pInst, gLevelTex.DamageFBTEX, pL->sDamageAlpha);
    case TYPE_WIN_SCREEN:
        if (pL->sWon)
            Picture(pInst, gLevelTex.Winscreen_TEX, pL->sWinAlpha);
        return;
    case TYPE_LOSE_SCREEN:
        if (pL->sLost)
            Picture(pInst, gLevelTex.Losescreen_TEX, pL->sLoseAlpha);
        return;
    case TYPE_BATTERYP: return Picture(pInst, gLevelTex.TYPE_BATTERYP_TEX, 1.0f);
    case TYPE_TEXTBOX: return DrawTextBox(pLevel, pInst);
    case TYPE_COMPASS: return Picture(pInst, gLevelTex.Compass_TEX, 1.0f);
    case TYPE_INVERT_UP: return Picture(pInst, gLevelTex.Invert_Up_TEX, 0.5f);
    case TYPE_INVERT_DOWN: return Picture(pInst, gLevelTex.Invert_Down_TEX, 0.5f);
    case TYPE_HUD_DESIGN: return Picture(pInst, gLevelTex.HUD_Design_TEX, 1.0f);
    case TYPE_CRUSH_FADE: return Picture(pInst, gLevelTex.Credits1_TEX, pL->sCrushAlpha);
    default: return;
    }
}

void LevelDraw(LevelState* pLevel)
{
    sDrawn = pLevel;
    GameObjPoolDraw(&pLevel->pool, DrawOne);
    sDrawn = nullptr;
}

// The level itself: what stands in the world, without the darkness, the HUD, the pause screens, the tutorial boxes
// and the full-view overlays, which belong to a moment of play and not to the level's layout.
static bool IsWorldKind(u32 kind)
{
    switch (kind)
    {
    case TYPE_WALL: case TYPE_PLATFORM: case TYPE_PLATFORM_LONG: case TYPE_PLATFORM_MOVING: case TYPE_DROP_WALL:
    case TYPE_MOVING_WALL: case TYPE_SPIKE_UP: case TYPE_SPIKE_DOWN: case TYPE_SPIKE_ROW_UP:
    case TYPE_SPIKE_ROW_DOWN: case TYPE_CHARACTER: case TYPE_HAND: case TYPE_EXIT_PORTAL: case TYPE_ZOOM_POWERUP:
    case TYPE_BACKGROUND: case TYPE_BATTERYP:
        return true;
    default:
        return false;
    }
}

static void DrawWorldOne(GameObjInst* pInst)
{
    if (IsWorldKind(pInst->pObject->type))
        DrawOne(pInst);
}

void LevelDrawWorld(LevelState* pLevel)
{
    sDrawn = pLevel;
    GameObjPoolDraw(&pLevel->pool, DrawWorldOne);
    sDrawn = nullptr;
}
