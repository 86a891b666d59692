// level_textures.h -- the pictures of a level, loaded at its Load and unloaded at its Unload. One level is
// loaded at a time, so the seven share one set of variables.
#pragma once

struct KRGfxTexture;
struct LevelConfig;

struct LevelTextures
{
    KRGfxTexture *charTEX, *char_leftTEX, *GHOSTTEX, *char_handTEX, *Exit_PORTAL_TEX, *torchTEX, *power1Tex;
    KRGfxTexture *backgroundTEX, *HealthTex, *SideBarTex, *SideBarBgTex, *BlackScreen_TEX, *CursorTEX;
    KRGfxTexture *verTEX, *horiTEX, *Winscreen_TEX, *Losescreen_TEX, *TYPE_BATTERYP_TEX, *vert_drop_TEX;
    KRGfxTexture *Moving_Wall_TEX, *TEXTBOX_1_TEX, *TEXTBOX_2_TEX, *TEXTBOX_3_TEX, *Compass_TEX, *Compass_BG_TEX;
    KRGfxTexture *Invert_Up_TEX, *Invert_Down_TEX, *BACK_TEX, *EXIT_BTN_TEX, *HELP_BTN_TEX, *LEVELS_BTN_TEX;
    KRGfxTexture *OPTION_BTN_TEX, *RESUME_BTN_TEX, *Option_Menu_TEX, *Option_FS_TEX, *Option_VU_TEX;
    KRGfxTexture *Option_VD_TEX, *HUD_Design_TEX, *PAUSE_TEX, *HELP_SCREEN_TEX, *BlackScreen2_TEX, *Credits1_TEX;
    KRGfxTexture *AreYouSureTEX, *Yes_btn_TEX, *No_btn_TEX, *DamageFBTEX;
};

extern LevelTextures gLevelTex;

// The kinds with their meshes (the darkness and the travelling wall by the row), then the pictures in order.
void LevelKindsLoad(struct GameObjPool* pPool, const LevelConfig* pConfig);
// The same for a state that is not one of the seven but registers what a level does (the credits), with the
// name of its Load for the failure reports.
void LevelKindsLoadNamed(struct GameObjPool* pPool, const LevelConfig* pConfig, const char* func);

// Frees the meshes and unloads the pictures in the order of loading.
void LevelKindsUnload(struct GameObjPool* pPool, const LevelConfig* pConfig);
