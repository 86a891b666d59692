// varnholt.cpp -- the splash state: two logos, one after the other, fading in, held, fading out; then GS_MENU.
//
// Owns:    the splash's pool and templates, its two textures, sSplashStep and the two logos' alphas and holds.
// Leaves:  to GS_MENU when the team logo has faded out, or when a skip's fade-out has reached 0.
//
// Fades move by 0.01 a frame, in frames and not in time, and are not clamped: a fade stops where its test ends it
// (a float step of 0.01 lands just short of 1 after 100 frames, so a fade in takes 101 frames and leaves the alpha
// a little above 1). Holds count gFrameDelta. There is no sound here: no track is set, no music pump is called.
#include "varnholt.h"

#include "KRGraphics.h"
#include "KRInput.h"
#include "gameloop.h"
#include "gameobjdraw.h"
#include "gameobjmesh.h"
#include "gameobjshapes.h"
#include "gamestatemgr.h"
#include "gametextures.h"
#include "stateprobe.h"

// The splash's own kinds; the numbers mean these logos only inside this state.
enum
{
    TYPE_SPLASH_LOGO = 66,
    TYPE_TEAM_LOGO = 86,
};

// The steps of sSplashStep.
enum
{
    SPLASH_LOGO_IN = 0, // then 1, its hold, and 2, its fade out
    SPLASH_TEAM_IN = 3, // then 4 and 5 in the same way
    SPLASH_SKIP = 6,
};

static const f32 SPLASH_FADE_STEP = 0.01f; // alpha per frame
static const f32 SPLASH_HOLD_TIME = 2.0f;  // seconds a logo stays at full alpha, exceeded before it fades

static const f32 SPLASH_LOGO_SCALE = 0.4f;
static const f32 SPLASH_TEAM_SCALE = 1.0f;

static const unsigned char KEY_RETURN = 13;
static const unsigned char KEY_ESCAPE = 27;
static const unsigned char KEY_SPACE = 32;
static const unsigned char KEY_LBUTTON = 1;

static GameObjPool sPool;

static KRGfxTexture* Varnholt_TEX;
static KRGfxTexture* TeamLogoTEX;

static const GameObjShape sShapes[] = {
    {TYPE_SPLASH_LOGO, GAME_OBJ_FORM_QUAD, 762.5f, 222.5f, GAME_OBJ_WHITE, nullptr},
    {TYPE_TEAM_LOGO, GAME_OBJ_FORM_QUAD, 467.0f, 336.0f, GAME_OBJ_WHITE, nullptr},
};
static const u32 SHAPE_NUM = sizeof(sShapes) / sizeof(sShapes[0]);

static const GameTexture sTextures[] = {
    {&Varnholt_TEX, "Varnholt_Harbour.png", "Varnholt_TEX"},
    {&TeamLogoTEX, "TeamLogo.png", "TeamLogoTEX"},
};
static const u32 TEXTURE_NUM = sizeof(sTextures) / sizeof(sTextures[0]);

static s32 sSplashStep;
static f32 sLogoAlpha;
static f32 sLogoHold;
static f32 sTeamAlpha;
static f32 sTeamHold;

// The long form of creation, as the front-end screens use it; the splash gives 0 for every argument after the
// position.
static GameObjInst* gameObjInstCreate(u32 type, f32 scale, const KRVec2* pPos)
{
    return gameObjInstCreate(&sPool, type, scale, pPos, nullptr, 0.0f, nullptr, 0, 0, 0.0f, 0.0f);
}

static void VarnholtProbe(std::string* pOut)
{
    ProbeInt(pOut, "sSplashStep", sSplashStep);
    ProbeFloat(pOut, "sLogoAlpha", sLogoAlpha);
    ProbeFloat(pOut, "sLogoHold", sLogoHold);
    ProbeFloat(pOut, "sTeamAlpha", sTeamAlpha);
    ProbeFloat(pOut, "sTeamHold", sTeamHold);
}

void VarnholtLoad()
{
    GameObjPoolReset(&sPool, GAME_OBJ_NUM_MAX, LEVEL_GAME_OBJ_NUM);
    GameObjRegisterShapes(&sPool, sShapes, SHAPE_NUM, __FUNCTION__);
    GameTexturesLoad(sTextures, TEXTURE_NUM, __FUNCTION__);
    GameStatePoolSet(&sPool);
    GameStateProbeSet(VarnholtProbe);
}

void VarnholtInit()
{
    // One hide with the platform's counter: the menu hides it once more, and each hide needs its own show.
    KRInputShowCursor(0);
    KRGfxSetBackgroundColor(0.0f, 0.0f, 0.0f);

    KRVec2 centre = {0.0f, 0.0f};
    gameObjInstCreate(TYPE_SPLASH_LOGO, SPLASH_LOGO_SCALE, &centre);
    gameObjInstCreate(TYPE_TEAM_LOGO, SPLASH_TEAM_SCALE, &centre);

    sSplashStep = SPLASH_LOGO_IN;
    sLogoAlpha = 0.0f;
    sLogoHold = 0.0f;
    sTeamAlpha = 0.0f;
    sTeamHold = 0.0f;
}

// One alpha of the skip: falls while above 0; the splash ends when it gets to 0.
static void SkipFade(f32* pAlpha)
{
    if (*pAlpha <= 0.0f)
        return;
    *pAlpha -= SPLASH_FADE_STEP;
    if (*pAlpha <= 0.0f)
        gGameStateNext = GS_MENU;
}

// One logo's three steps, from firstStep: fade in, hold, fade out. Gives true in the frame its fade out ends.
// The steps are tested one after the other in the same frame, so the frame that ends a step already does the
// next step's work.
static bool RunLogoSteps(s32 firstStep, f32* pAlpha, f32* pHold)
{
    if (sSplashStep == firstStep)
    {
        *pAlpha += SPLASH_FADE_STEP;
        if (*pAlpha >= 1.0f)
            sSplashStep = firstStep + 1;
    }
    if (sSplashStep == firstStep + 1)
    {
        *pHold += gFrameDelta;
        if (*pHold > SPLASH_HOLD_TIME)
            sSplashStep = firstStep + 2;
    }
    if (sSplashStep == firstStep + 2)
    {
        *pAlpha -= SPLASH_FADE_STEP;
        if (*pAlpha <= 0.0f)
            return true;
    }
    return false;
}

static void RunSteps()
{
    // The frame that ends the studio logo's fade out already raises the team logo's alpha.
    if (RunLogoSteps(SPLASH_LOGO_IN, &sLogoAlpha, &sLogoHold))
        sSplashStep = SPLASH_TEAM_IN;
    if (RunLogoSteps(SPLASH_TEAM_IN, &sTeamAlpha, &sTeamHold))
        gGameStateNext = GS_MENU;
    if (sSplashStep == SPLASH_SKIP)
    {
        SkipFade(&sLogoAlpha);
        SkipFade(&sTeamAlpha);
    }
}

void VarnholtUpdate()
{
    RunSteps();

    // A skip fades out whatever is on screen from where it is; pressing again changes nothing.
    if (KRInputCheckTriggered(KEY_RETURN) || KRInputCheckTriggered(KEY_ESCAPE) || KRInputCheckTriggered(KEY_SPACE) ||
        KRInputCheckTriggered(KEY_LBUTTON))
        sSplashStep = SPLASH_SKIP;

    GameObjPoolBuildTransforms(&sPool);
}

static void DrawLogo(GameObjInst* pInst)
{
    if (pInst->pObject->type == TYPE_SPLASH_LOGO)
        GameObjDrawTextured(pInst, Varnholt_TEX, sLogoAlpha, KR_GFX_BM_BLEND);
    else if (pInst->pObject->type == TYPE_TEAM_LOGO)
        GameObjDrawTextured(pInst, TeamLogoTEX, sTeamAlpha, KR_GFX_BM_BLEND);
}

void VarnholtDraw()
{
    GameObjPoolDraw(&sPool, DrawLogo);
}

void VarnholtFree()
{
    GameObjPoolDestroyAll(&sPool);
}

void VarnholtUnload()
{
    GameObjPoolReleaseMeshes(&sPool);
    GameTexturesUnload(sTextures, TEXTURE_NUM);
    GameStatePoolSet(nullptr);
    GameStateProbeSet(nullptr);
}
