// credits_pause.cpp -- the credits' pause menu (no confirmation, no volume), their Draw and their probe.
#include "credits_internal.h"

#include "KRInput.h"
#include "KRSystem.h"
#include "collision.h"
#include "gameobjdraw.h"
#include "gamestatemgr.h"
#include "level_textures.h"
#include "playkeys.h"
#include "stateprobe.h"

namespace {

void SetBox(GameObjInst* pInst, f32 halfW, f32 halfH)
{
    pInst->boundingBox = {pInst->posCurr.x - halfW, pInst->posCurr.y - halfH, pInst->posCurr.x + halfW,
                          pInst->posCurr.y + halfH};
}

bool Clicked(const LevelVars* pL, const GameObjInst* pButton)
{
    return CollisionInstances(pL->sCursor, pButton) && KRInputCheckTriggered(PLAY_KEY_LBUTTON);
}

GameObjInst* const* Buttons(const LevelVars* pL, GameObjInst* out[5])
{
    out[0] = pL->sBtnResume;
    out[1] = pL->sBtnOptions;
    out[2] = pL->sBtnLevels;
    out[3] = pL->sBtnHelp;
    out[4] = pL->sBtnExit;
    return out;
}

void Act(LevelVars* pL, s32 selection)
{
    switch (selection)
    {
    case 0: pL->sPaused = 0; break;
    case 1: pL->sPauseOptions = 1; break;
    case 2: gGameStateNext = GS_LS; break;
    case 3: pL->sPauseHelp = 1; break;
    case 4: gGameStateNext = GS_MENU; break;
    default: break;
    }
}

} // namespace

void CreditsPauseRun(CreditsState* pC)
{
    LevelState* pLevel = &pC->level;
    LevelVars* pL = &pLevel->vars;
    GameObjInst* buttons[5];
    Buttons(pL, buttons);
    for (GameObjInst* pButton : buttons)
        SetBox(pButton, 50.0f, 20.0f);
    // The cursor's box really is a point here.
    SetBox(pL->sCursor, 0.0001f, 0.0001f);
    const f32 s = pL->sBackBtn->scale;
    SetBox(pL->sBackBtn, 25.0f * s, 25.0f * s);
    SetBox(pL->sBtnFullScreen, 62.0f * s, 52.0f * s);

    const bool pageUp = pL->sPauseHelp || pL->sPauseOptions;
    if (!pageUp)
    {
        if (Clicked(pL, pL->sBtnResume))
            pL->sPaused = 0;
        else if (Clicked(pL, pL->sBtnLevels))
            gGameStateNext = GS_LS;
        else if (Clicked(pL, pL->sBtnExit))
            gGameStateNext = GS_MENU;
        else if (Clicked(pL, pL->sBtnHelp))
            pL->sPauseHelp = 1;
    }
    if (!pL->sPauseOptions)
    {
        if (Clicked(pL, pL->sBtnOptions))
            pL->sPauseOptions = 1;
    }
    else if (Clicked(pL, pL->sBtnFullScreen))
        KRToogleFullScreen(!gKRFullScreen);
    if ((pL->sPauseHelp || pL->sPauseOptions) && Clicked(pL, pL->sBackBtn))
    {
        pL->sPauseHelp = 0;
        pL->sPauseOptions = 0;
    }
    // Keys: A or W up, else D or S down, one step within 0 to 4.
    if ((KRInputCheckTriggered('A') || KRInputCheckTriggered('W')) && pL->sPauseSelected > 0)
    {
        pL->sPauseSelected--;
        pC->sPauseKeyUsed = 1;
    }
    else if ((KRInputCheckTriggered('D') || KRInputCheckTriggered('S')) && pL->sPauseSelected < 4)
    {
        pL->sPauseSelected++;
        pC->sPauseKeyUsed = 1;
    }
    for (s32 i = 0; i < 5; i++)
        if (CollisionInstances(pL->sCursor, buttons[i]))
        {
            pL->sPauseSelected = i;
            break;
        }
    if (KRInputCheckTriggered(PLAY_KEY_RETURN))
        Act(pL, pL->sPauseSelected);
    for (GameObjInst* pButton : buttons)
        GameObjBuildTransform(pButton, pButton->posCurr.x, pButton->posCurr.y, pButton->dirCurr);
    GameObjBuildTransform(pL->sCursor, pL->sCursor->posCurr.x, pL->sCursor->posCurr.y, pL->sCursor->dirCurr);
}

static void Picture(const GameObjInst* pInst, KRGfxTexture* pTexture, f32 alpha)
{
    GameObjDrawTextured(pInst, pTexture, alpha, 1);
}

void CreditsDrawOne(GameObjInst* pInst)
{
    const LevelVars* pL = &gCredits.level.vars;
    const u32 kind = pInst->pObject->type;
    GameObjInst* buttons[5];
    Buttons(pL, buttons);
    const f32 paused = pL->sPaused ? 1.0f : 0.0f;
    const bool pageUp = pL->sPauseHelp || pL->sPauseOptions;
    switch (kind)
    {
    case TYPE_CREDITS_1: return Picture(pInst, gCreditsTex.Credits1_TEX, 1.0f);
    case TYPE_CREDITS_2: return Picture(pInst, gCreditsTex.Credits2_TEX, 1.0f);
    case TYPE_CREDITS_3: return Picture(pInst, gCreditsTex.Credits3_TEX, 1.0f);
    case TYPE_CREDITS_4: return Picture(pInst, gCreditsTex.Credits4_TEX, 1.0f);
    case TYPE_CREDITS_FLOOR: return GameObjDrawColoured(pInst, 1.0f, 1);
    case TYPE_SHIMMER_EXIT: return Picture(pInst, gCreditsTex.ShimmerExit_TEX, 0.2f);
    case TYPE_SHIMMER_LIGHT: return Picture(pInst, gCreditsTex.ShimmerLight_TEX, 0.6f);
    case TYPE_CREDITS_NOTICE: return Picture(pInst, gCreditsTex.CopyRight_TEX, 1.0f);
    case TYPE_CREDITS_AUDIO: return Picture(pInst, gCreditsTex.CreditFmod_TEX, 1.0f);
    case TYPE_BACKGROUND: return GameObjDrawTextured(pInst, gLevelTex.backgroundTEX, 1.0f, 0);
    case TYPE_WALL: return GameObjDrawTextured(pInst, gLevelTex.verTEX, 1.0f, 0);
    case TYPE_PLATFORM: case TYPE_PLATFORM_LONG: case TYPE_PLATFORM_MOVING:
        return GameObjDrawTextured(pInst, gLevelTex.horiTEX, 1.0f, 0);
    case TYPE_DROP_WALL: return GameObjDrawTextured(pInst, gLevelTex.vert_drop_TEX, 1.0f, 0);
    case TYPE_SPIKE_UP: case TYPE_SPIKE_DOWN: case TYPE_SPIKE_ROW_UP: case TYPE_SPIKE_ROW_DOWN:
        return GameObjDrawColoured(pInst, 1.0f, 0);
    case TYPE_CHARACTER:
        return Picture(pInst, pL->sFacingLeft ? gLevelTex.char_leftTEX : gLevelTex.charTEX,
                       pL->sBlinkHidden ? 0.0f : 1.0f);
    case TYPE_HAND: return Picture(pInst, gLevelTex.char_handTEX, 1.0f);
    case TYPE_EXIT_PORTAL: return Picture(pInst, gLevelTex.Exit_PORTAL_TEX, 1.0f);
    case TYPE_ZOOM_POWERUP: return Picture(pInst, gLevelTex.power1Tex, 1.0f);
    case TYPE_DARKNESS: return Picture(pInst, gLevelTex.torchTEX, 0.98f);
    case TYPE_PAUSE_DIM: return Picture(pInst, gLevelTex.BlackScreen_TEX, 0.5f * paused);
    case TYPE_BATTERY_FADE: return GameObjDrawColoured(pInst, gCredits.sFadeAlpha, 1);
    case TYPE_HEART: return Picture(pInst, gLevelTex.HealthTex, 1.0f);
    case TYPE_SIDEBAR: return Picture(pInst, gLevelTex.SideBarTex, 1.0f);
    case TYPE_SIDEBAR_BG: return Picture(pInst, gLevelTex.SideBarBgTex, 1.0f);
    case TYPE_BATTERY_BAR: return GameObjDrawColoured(pInst, 1.0f, 1);
    case TYPE_HUD_DESIGN: return Picture(pInst, gLevelTex.HUD_Design_TEX, 1.0f);
    case TYPE_COMPASS: return Picture(pInst, gLevelTex.Compass_TEX, 1.0f);
    case TYPE_INVERT_UP: return Picture(pInst, gLevelTex.Invert_Up_TEX, 0.5f);
    case TYPE_INVERT_DOWN: return Picture(pInst, gLevelTex.Invert_Down_TEX, 0.5f);
    case TYPE_CURSOR: return Picture(pInst, gLevelTex.CursorTEX, paused);
    case TYPE_PAUSE_TITLE: return Picture(pInst, gLevelTex.PAUSE_TEX, paused);
    case TYPE_HELP_SCREEN: return Picture(pInst, gLevelTex.HELP_SCREEN_TEX, pL->sPauseHelp ? 1.0f : 0.0f);
    case TYPE_OPTION_MENU: return Picture(pInst, gLevelTex.Option_Menu_TEX, pL->sPauseOptions ? 1.0f : 0.0f);
    case TYPE_OPTION_FS: return Picture(pInst, gLevelTex.Option_FS_TEX, pL->sPauseOptions ? 1.0f : 0.0f);
    case TYPE_OPTION_VU: return Picture(pInst, gLevelTex.Option_VU_TEX, pL->sPauseOptions ? 1.0f : 0.0f);
    case TYPE_OPTION_VD: return Picture(pInst, gLevelTex.Option_VD_TEX, pL->sPauseOptions ? 1.0f : 0.0f);
    case TYPE_BACK_BTN: return Picture(pInst, gLevelTex.BACK_TEX, pageUp ? 1.0f : 0.0f);
    default: break;
    }
    KRGfxTexture* textures[5] = {gLevelTex.RESUME_BTN_TEX, gLevelTex.OPTION_BTN_TEX, gLevelTex.LEVELS_BTN_TEX,
                                 gLevelTex.HELP_BTN_TEX, gLevelTex.EXIT_BTN_TEX};
    for (s32 i = 0; i < 5; i++)
        if (pInst == buttons[i])
            Picture(pInst, textures[i], !pL->sPaused ? 0.0f : (pL->sPauseSelected == i ? 1.0f : 0.3f));
}

void CreditsProbe(std::string* pOut)
{
    const LevelVars* pL = &gCredits.level.vars;
    if (pL->sPlayer)
    {
        ProbeFloat(pOut, "x", pL->sPlayer->posCurr.x);
        ProbeFloat(pOut, "y", pL->sPlayer->posCurr.y);
        ProbeFloat(pOut, "vx", pL->sPlayer->velCurr.x);
        ProbeFloat(pOut, "vy", pL->sPlayer->velCurr.y);
    }
    ProbeInt(pOut, "sHitPoints", pL->sHitPoints);
    ProbeInt(pOut, "sHeartsShown", pL->sHeartsShown);
    ProbeInt(pOut, "sInvincible", pL->sInvincible);
    ProbeInt(pOut, "sLost", pL->sLost);
    ProbeInt(pOut, "sPaused", pL->sPaused);
    ProbeInt(pOut, "sPauseHelp", pL->sPauseHelp);
    ProbeInt(pOut, "sPauseOptions", pL->sPauseOptions);
    ProbeInt(pOut, "sPauseSelected", pL->sPauseSelected);
    ProbeFloat(pOut, "fade", gCredits.sFadeAlpha);
    ProbeInt(pOut, "exitlatch", gCredits.sExitLatch);
}
