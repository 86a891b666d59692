// level_kinds.cpp -- registering a level's kinds and loading its pictures, by its row.
#include "level_textures.h"

#include "gameobjmesh.h"
#include "gameobjshapes.h"
#include "gametextures.h"
#include "level_table.h"

#include <cstdio>

LevelTextures gLevelTex;

#define TEX(var, file) {&gLevelTex.var, file, #var}

// Every level, in the order of loading.
static const GameTexture sCommonTextures[] = {
    TEX(charTEX, "CHARACTER.png"),
    TEX(char_leftTEX, "character_left.png"),
    TEX(GHOSTTEX, "ghost.png"),
    TEX(char_handTEX, "torchlight.png"),
    TEX(Exit_PORTAL_TEX, "PORTAL_EXIT.png"),
    TEX(torchTEX, "VISIBILITY.png"),
    TEX(power1Tex, "POWERUP1.png"),
    TEX(backgroundTEX, "BACKGROUND.png"),
    TEX(HealthTex, "ATTRI_HP_TEX.png"),
    TEX(SideBarTex, "LEATHER4.png"),
    TEX(SideBarBgTex, "BATTERY_BACKGROUND.png"),
    TEX(BlackScreen_TEX, "Blackscreen.png"),
    TEX(CursorTEX, "CURSORTEX.png"),
    TEX(verTEX, "VERTPLATFORMTEXT.png"),
    TEX(horiTEX, "HORIPLATFORMTEXT.png"),
    TEX(Winscreen_TEX, "WINSCREEN.png"),
    TEX(Losescreen_TEX, "LOSESCREEN.png"),
    TEX(TYPE_BATTERYP_TEX, "Battery_pow.png"),
    TEX(vert_drop_TEX, "DROPPING_PLATFORM.png"),
    TEX(Compass_TEX, "COMPASS.png"),
    TEX(Compass_BG_TEX, "COMPASS_BG1.png"),
    TEX(Invert_Up_TEX, "INVERTARROWUP.png"),
    TEX(Invert_Down_TEX, "INVERTARROWDOWN.png"),
    TEX(BACK_TEX, "BACK_TEX.png"),
    TEX(EXIT_BTN_TEX, "level_exit.png"),
    TEX(HELP_BTN_TEX, "level_help.png"),
    TEX(LEVELS_BTN_TEX, "level_levels.png"),
    TEX(OPTION_BTN_TEX, "level_options.png"),
    TEX(RESUME_BTN_TEX, "level_resume.png"),
    TEX(Option_Menu_TEX, "Options_menu.png"),
    TEX(Option_FS_TEX, "Option_fullscreen.png"),
    TEX(Option_VU_TEX, "Option_volumeup.png"),
    TEX(Option_VD_TEX, "Option_volumedown.png"),
    TEX(HUD_Design_TEX, "egypt_design.png"),
    TEX(PAUSE_TEX, "PauseFont.png"),
    TEX(HELP_SCREEN_TEX, "howtoplay_scroll.png"),
    TEX(BlackScreen2_TEX, "Blackscreen.png"),
    TEX(AreYouSureTEX, "ConfirmationBox.png"),
    TEX(Yes_btn_TEX, "ConfirmationYes.png"),
    TEX(No_btn_TEX, "ConfirmationNo.png"),
    TEX(DamageFBTEX, "damagefb.png"),
};

// The first level and the user level: the tutorial pictures.
static const GameTexture sTutorialTextures[] = {
    TEX(TEXTBOX_1_TEX, "tutorial1.png"),
    TEX(TEXTBOX_2_TEX, "tutorial2.png"),
    TEX(TEXTBOX_3_TEX, "tutorial3.png"),
};

// The last level: the boulder and its catch's fade.
static const GameTexture sBoulderTextures[] = {
    TEX(Moving_Wall_TEX, "boulder.png"),
    TEX(Credits1_TEX, "Blackscreen.png"),
};

#undef TEX

static const u32 kCommonNum = sizeof(sCommonTextures) / sizeof(sCommonTextures[0]);
static const u32 kTutorialNum = sizeof(sTutorialTextures) / sizeof(sTutorialTextures[0]);
static const u32 kBoulderNum = sizeof(sBoulderTextures) / sizeof(sBoulderTextures[0]);

// Whether the row registers the kind: some kinds belong to some levels only.
static bool Registers(const LevelConfig* pConfig, u32 kind)
{
    switch (kind)
    {
    case TYPE_TEXTBOX:
        return pConfig->textboxKind;
    case TYPE_BLINK_SCREEN:
        return pConfig->blinkDrawn;
    case TYPE_DAMAGE_FLASH:
        return pConfig->damageFlash;
    case TYPE_CRUSH_FADE:
        return pConfig->boulder;
    default:
        return true;
    }
}

void LevelKindsLoad(GameObjPool* pPool, const LevelConfig* pConfig)
{
    char func[64];
    std::snprintf(func, sizeof(func), "GameState%sLoad", pConfig->name);
    LevelKindsLoadNamed(pPool, pConfig, func);
}

void LevelKindsLoadNamed(GameObjPool* pPool, const LevelConfig* pConfig, const char* func)
{
    for (u32 i = 0; i < gGameObjLevelShapeNum; i++)
    {
        GameObjShape shape = gGameObjLevelShapes[i];
        if (!Registers(pConfig, shape.kind))
            continue;
        if (shape.kind == TYPE_DARKNESS)
        {
            shape.halfW = pConfig->darkHalfW;
            shape.halfH = pConfig->darkHalfH;
        }
        if (shape.kind == TYPE_MOVING_WALL && pConfig->boulder)
        {
            shape.halfW = 253.0f;
            shape.halfH = 149.0f;
        }
        GameObjRegisterShapes(pPool, &shape, 1, func);
    }
    GameTexturesLoad(sCommonTextures, kCommonNum, func);
    if (pConfig->textboxKind)
        GameTexturesLoad(sTutorialTextures, kTutorialNum, func);
    if (pConfig->boulder)
        GameTexturesLoad(sBoulderTextures, kBoulderNum, func);
}

void LevelKindsUnload(GameObjPool* pPool, const LevelConfig* pConfig)
{
    GameObjPoolReleaseMeshes(pPool);
    GameTexturesUnload(sCommonTextures, kCommonNum);
    if (pConfig->textboxKind)
        GameTexturesUnload(sTutorialTextures, kTutorialNum);
    if (pConfig->boulder)
        GameTexturesUnload(sBoulderTextures, kBoulderNum);
}
