// gamestate_menu.cpp -- the main menu, GS_MENU: a small playable scene read from "Main_Menu.txt" in which the
// character walks under three buttons with the torch sweeping over them, with the Options page, the credits
// entry and the exit confirmation drawn over it. Every picture is alive all the time; a closed page is drawn
// at alpha 0.
//
// Owns:    the menu's pool and pictures, gMenu, gMenuInst, the frame's order, the box rule and the drawing.
// Rules:   menu_character.cpp (the walk and the torch), menu_options.cpp (the buttons and the pages).
#include "gamestate_menu.h"
#include "gamestate_menu_internal.h"

#include "KRGraphics.h"
#include "KRInput.h"
#include "fmodsound.h"
#include "frontkinds.h"
#include "gameloop.h"
#include "gameobjdraw.h"
#include "gameobjshapes.h"
#include "gamestatemgr.h"
#include "gametextures.h"
#include "levelfile.h"
#include "stateprobe.h"

#include <cstring>

MenuState gMenu;
MenuInstances gMenuInst;

static GameObjPool sPool;

static GameObjInst* gameObjInstCreate(u32 type, f32 scale, const KRVec2* pPos, const KRVec2* pVel, f32 dir,
                                      const KRVec2* pAux)
{
    return gameObjInstCreate(&sPool, type, scale, pPos, pVel, dir, pAux);
}

static KRGfxTexture* backgroundTEX;
static KRGfxTexture* verTEX;
static KRGfxTexture* horiTEX;
static KRGfxTexture* charTEX;
static KRGfxTexture* char_leftTEX;
static KRGfxTexture* char_handTEX;
static KRGfxTexture* START_TEX;
static KRGfxTexture* CONTROL_TEX;
static KRGfxTexture* EXIT_TEX;
static KRGfxTexture* HUD_Design_TEX;
static KRGfxTexture* torchTEX;
static KRGfxTexture* Quillon_Main_TEX;
static KRGfxTexture* BlackScreen_TEX;
static KRGfxTexture* Option_Menu_TEX;
static KRGfxTexture* Option_FS_TEX;
static KRGfxTexture* Option_VU_TEX;
static KRGfxTexture* Option_VD_TEX;
static KRGfxTexture* credit_btn_TEX;
static KRGfxTexture* BACK_TEX;
static KRGfxTexture* AreYouSureTEX;
static KRGfxTexture* Yes_btn_TEX;
static KRGfxTexture* No_btn_TEX;
static KRGfxTexture* cursorTEX;

static const GameTexture sTextures[] = {
    {&backgroundTEX, "BACKGROUND.png", "backgroundTEX"},
    {&verTEX, "VERTPLATFORMTEXT.png", "verTEX"},
    {&horiTEX, "HORIPLATFORMTEXT.png", "horiTEX"},
    {&charTEX, "CHARACTER.png", "charTEX"},
    {&char_leftTEX, "character_left.png", "char_leftTEX"},
    {&char_handTEX, "torchlight.png", "char_handTEX"},
    {&START_TEX, "START_TEX.png", "START_TEX"},
    {&CONTROL_TEX, "CONTROL_TEX.png", "CONTROL_TEX"},
    {&EXIT_TEX, "EXIT_TEX.png", "EXIT_TEX"},
    {&HUD_Design_TEX, "egypt_design2.png", "HUD_Design_TEX"},
    {&torchTEX, "VISIBILITY.png", "torchTEX"},
    {&Quillon_Main_TEX, "EgyptMain.png", "Quillon_Main_TEX"},
    {&BlackScreen_TEX, "Blackscreen.png", "BlackScreen_TEX"},
    {&Option_Menu_TEX, "Options_menu.png", "Option_Menu_TEX"},
    {&Option_FS_TEX, "Option_fullscreen.png", "Option_FS_TEX"},
    {&Option_VU_TEX, "Option_volumeup.png", "Option_VU_TEX"},
    {&Option_VD_TEX, "Option_volumedown.png", "Option_VD_TEX"},
    {&credit_btn_TEX, "creditsbutton.png", "credit_btn_TEX"},
    {&BACK_TEX, "BACK_TEX.png", "BACK_TEX"},
    {&AreYouSureTEX, "ConfirmationBox.png", "AreYouSureTEX"},
    {&Yes_btn_TEX, "ConfirmationYes.png", "Yes_btn_TEX"},
    {&No_btn_TEX, "ConfirmationNo.png", "No_btn_TEX"},
    {&cursorTEX, "CURSORTEX.png", "cursorTEX"},
};
static const u32 TEXTURE_NUM = sizeof(sTextures) / sizeof(sTextures[0]);

// The menu's own buttons and title; the rest of its kinds are the world's meshes.
static const GameObjShape sMenuShapes[] = {
    {TYPE_QUIT_BTN, GAME_OBJ_FORM_QUAD, 65.0f, 25.0f, GAME_OBJ_WHITE, nullptr},
    {TYPE_CONTROL_BTN, GAME_OBJ_FORM_QUAD, 65.0f, 25.0f, GAME_OBJ_WHITE, nullptr},
    {TYPE_START_BTN, GAME_OBJ_FORM_QUAD, 65.0f, 25.0f, GAME_OBJ_WHITE, nullptr},
    {TYPE_TITLE, GAME_OBJ_FORM_QUAD, 400.0f, 100.0f, GAME_OBJ_WHITE, nullptr},
    {TYPE_CREDITS_BTN, GAME_OBJ_FORM_QUAD, 90.0f, 25.0f, GAME_OBJ_WHITE, nullptr},
};

// The kinds of the world the menu registers: the scene's solids and spikes, the character and its torch, and
// the furniture it shares with the pause menu. The battery pickup (32) holds a slot and has no mesh here.
static const u32 sWorldKinds[] = {
    TYPE_WALL, TYPE_PLATFORM, TYPE_PLATFORM_LONG, TYPE_SPIKE_UP, TYPE_SPIKE_DOWN, TYPE_CHARACTER, TYPE_HAND,
    TYPE_DARKNESS, TYPE_BACKGROUND, TYPE_PAUSE_DIM, TYPE_CURSOR, TYPE_SPIKE_ROW_UP, TYPE_SPIKE_ROW_DOWN,
    TYPE_BACK_BTN, TYPE_OPTION_MENU, TYPE_OPTION_FS, TYPE_OPTION_VU, TYPE_OPTION_VD, TYPE_HUD_DESIGN,
    TYPE_ARE_YOU_SURE, TYPE_YES_BTN, TYPE_NO_BTN,
};

void GameStateMenuLoad()
{
    MusicSetTrack("ANCIENT RUINS - NewAge MSCNEW2_33.ogg");
    GameObjPoolReset(&sPool, GAME_OBJ_NUM_MAX_FRONT, LEVEL_GAME_OBJ_NUM);
    std::memset(&gMenuInst, 0, sizeof(gMenuInst));
    for (u32 i = 0; i < sizeof(sWorldKinds) / sizeof(sWorldKinds[0]); i++)
        GameObjRegisterShapes(&sPool, GameObjShapeFind(gGameObjLevelShapes, gGameObjLevelShapeNum, sWorldKinds[i]),
                              1, "GameStateMenuLoad");
    GameObjRegisterShapes(&sPool, sMenuShapes, sizeof(sMenuShapes) / sizeof(sMenuShapes[0]), "GameStateMenuLoad");
    GameTexturesLoad(sTextures, TEXTURE_NUM, "GameStateMenuLoad");
    GameStatePoolSet(&sPool);
    GameStateProbeSet(MenuProbe);
}

static GameObjInst* CreateAt(u32 type, f32 scale, f32 x, f32 y)
{
    KRVec2 pos = {x, y};
    return gameObjInstCreate(type, scale, &pos, nullptr, 0.0f, nullptr);
}

static void MenuVariablesInit()
{
    std::memset(&gMenu, 0, sizeof(gMenu));
    gMenu.sMenuFade = 1.0f;
    gMenu.startAlpha = gMenu.controlAlpha = gMenu.exitAlpha = 1.0f;
    gMenu.friction = 0.15f;
}

static void MenuBox(GameObjInst* pInst);

void GameStateMenuInit()
{
    MusicPlay(0);
    CreateAt(TYPE_BACKGROUND, 1.0f, 0.0f, 0.0f);
    gMenuInst.pCharacter = nullptr;
    LevelFileRead("Main_Menu.txt", gameObjInstCreate, &gMenuInst.pCharacter, LEVEL_FILE_SCALES_SCENE);
    CreateAt(TYPE_BATTERYP, 40.0f, 530.0f, -150.0f); // holds a slot, never drawn
    gMenuInst.pHand = CreateAt(TYPE_HAND, 15.0f, 0.0f, 0.0f);
    gMenuInst.pStart = CreateAt(TYPE_START_BTN, 1.0f, -300.0f, 150.0f);
    gMenuInst.pControl = CreateAt(TYPE_CONTROL_BTN, 1.0f, 0.0f, 150.0f);
    gMenuInst.pQuit = CreateAt(TYPE_QUIT_BTN, 1.0f, 300.0f, 150.0f);
    CreateAt(TYPE_HUD_DESIGN, 1.0f, 0.0f, 275.0f);
    gMenuInst.pDarkness = CreateAt(TYPE_DARKNESS, 3.5f, 0.0f, 0.0f);
    CreateAt(TYPE_TITLE, 1.0f, 0.0f, -250.0f);
    CreateAt(TYPE_PAUSE_DIM, 5.0f, 0.0f, 0.0f);
    gMenuInst.pOptionPage = CreateAt(TYPE_OPTION_MENU, 0.9f, 0.0f, 50.0f);
    gMenuInst.pFullScreen = CreateAt(TYPE_OPTION_FS, 0.9f, 70.0f, 120.0f);
    gMenuInst.pVolumeUp = CreateAt(TYPE_OPTION_VU, 0.9f, -150.0f, -70.0f);
    gMenuInst.pVolumeDown = CreateAt(TYPE_OPTION_VD, 0.9f, -60.0f, -70.0f);
    gMenuInst.pCredits = CreateAt(TYPE_CREDITS_BTN, 0.9f, -105.0f, -135.0f);
    gMenuInst.pBack = CreateAt(TYPE_BACK_BTN, 0.9f, 150.0f, -100.0f);
    gMenuInst.pConfirmBox = CreateAt(TYPE_ARE_YOU_SURE, 0.9f, 0.0f, 100.0f);
    gMenuInst.pYes = CreateAt(TYPE_YES_BTN, 0.9f, -75.0f, 0.0f);
    gMenuInst.pNo = CreateAt(TYPE_NO_BTN, 0.9f, 75.0f, 0.0f);
    gMenuInst.pCursor = CreateAt(TYPE_CURSOR, 35.0f, 0.0f, 0.0f);

    // The scene must hold exactly one character: it is moved at once, without a test.
    gMenuInst.pCharacter->posCurr.x = -288.0f;

    MenuVariablesInit();
    // The buttons' tests of the first frame come before that frame's boxes: give them real ones.
    GameObjPoolForEachLive(&sPool, MenuBox);
    KRGfxSetCamPosition(0.0f, 0.0f);
    KRInputShowCursor(0);
    KRInputUpdate();
}

static void MenuFade()
{
    if (gMenu.sMenuFadeAction == 0 && gMenu.sMenuFade > 0.0f)
    {
        gMenu.sMenuFade -= 0.01f;
        if (gMenu.sMenuFade <= 0.0f)
        {
            gMenu.sMenuFade = 0.0f;
            gMenu.sMenuFadeAction = 1;
        }
    }
    s32 action = gMenu.sMenuFadeAction;
    if ((action == 2 || action == 3 || action == 4) && !gMenu.sOptionsOpen && !gMenu.sOptionsLock)
    {
        if (action == 3)
        {
            MenuOptionsOpen();
            return;
        }
        if (gMenu.sMenuFade < 1.0f)
            gMenu.sMenuFade += 0.01f;
        if (gMenu.sMenuFade >= 1.0f)
        {
            gGameStateNext = action == 2 ? GS_LS : GS_QUIT;
            gMenu.sMenuFadeAction = 0;
        }
    }
}

static void SetBox(GameObjInst* pInst, f32 left, f32 bottom, f32 right, f32 top)
{
    pInst->boundingBox.minX = pInst->posCurr.x - left;
    pInst->boundingBox.minY = pInst->posCurr.y - bottom;
    pInst->boundingBox.maxX = pInst->posCurr.x + right;
    pInst->boundingBox.maxY = pInst->posCurr.y + top;
}

static void MenuBox(GameObjInst* pInst)
{
    u32 type = pInst->pObject->type;
    if (type == TYPE_PLATFORM || type == TYPE_PLATFORM_MOVING)
        SetBox(pInst, 50.0f, 10.0f, 50.0f, 10.0f);
    else if (type == TYPE_PLATFORM_LONG)
        SetBox(pInst, 75.0f, 10.0f, 75.0f, 10.0f);
    else if (type == TYPE_WALL || type == TYPE_DROP_WALL)
        SetBox(pInst, 10.0f, 50.0f, 10.0f, 50.0f);
    else if (type == TYPE_SPIKE_UP || type == TYPE_SPIKE_DOWN)
        SetBox(pInst, 5.5f, 11.5f, 5.5f, 11.5f);
    else if (type == TYPE_SPIKE_ROW_UP)
        SetBox(pInst, 60.5f, 11.5f, 60.5f, 0.0f);
    else if (type == TYPE_SPIKE_ROW_DOWN)
        SetBox(pInst, 60.5f, 0.0f, 60.5f, 11.5f);
    else if (type == TYPE_QUIT_BTN || type == TYPE_CONTROL_BTN || type == TYPE_START_BTN)
        SetBox(pInst, 65.0f, 25.0f, 65.0f, 25.0f);
    else if (type == TYPE_BACK_BTN)
        SetBox(pInst, 25.0f, 25.0f, 25.0f, 25.0f);
    else if (type == TYPE_OPTION_FS)
        SetBox(pInst, 62.0f, 52.0f, 62.0f, 52.0f);
    else if (type == TYPE_OPTION_VU || type == TYPE_OPTION_VD)
        SetBox(pInst, 42.0f, 30.0f, 42.0f, 30.0f);
    else if (type == TYPE_CREDITS_BTN && gMenu.sOptionsOpen)
        SetBox(pInst, 95.0f, 25.0f, 95.0f, 25.0f);
    else if ((type == TYPE_YES_BTN || type == TYPE_NO_BTN) && gMenu.sConfirmOpen)
        SetBox(pInst, 50.0f, 20.0f, 50.0f, 20.0f);
    else
    {
        // The character and the cursor among them: a third of the scale wide, the scale high.
        f32 w = pInst->scale / 6.0f, h = pInst->scale / 2.0f;
        SetBox(pInst, w, h, w, h);
    }
}

static void MenuInstancesUpdate()
{
    for (u32 i = 0; i < GAME_OBJ_INST_NUM_MAX; i++)
    {
        // Every slot, live or not.
        GameObjInst* pInst = &sPool.sGameObjInstList[i];
        pInst->posCurr.x += pInst->velCurr.x * gFrameDelta;
        pInst->posCurr.y += pInst->velCurr.y * gFrameDelta;
    }
    GameObjPoolForEachLive(&sPool, MenuBox);
    MenuCharacterCollide(&sPool);
    GameObjPoolBuildTransforms(&sPool);
}

void GameStateMenuUpdate()
{
    MusicUpdate();
    MenuFade();
    PointerIdleUpdate(&gMenu.mouse);
    MenuOptionsLockTick();

    MenuCharacterMove();
    MenuAttachmentsFollow();
    MenuTorchUpdate();
    PointerPlace(gMenuInst.pCursor);

    MenuMainButtonsByMouse();
    MenuReturnKey();
    MenuOptionsPage();
    MenuConfirmation();

    MenuInstancesUpdate();
}

// Yes, No and credits: hidden while their page is closed, else hot under the cursor and dim at 0.3.
static f32 PopupAlpha(u8 open, const GameObjInst* pInst)
{
    return open ? PointerAlpha(PointerOver(gMenuInst.pCursor, pInst), 0.3f) : 0.0f;
}

static void MenuDrawOne(GameObjInst* pInst)
{
    u32 type = pInst->pObject->type;
    if (!pInst->pObject->pMesh)
        return;
    const s32 blend = KR_GFX_BM_BLEND;
    if (type == TYPE_BACKGROUND)
        GameObjDrawTextured(pInst, backgroundTEX, 1.0f, blend);
    else if (type == TYPE_WALL)
        GameObjDrawTextured(pInst, verTEX, 1.0f, blend);
    else if (type == TYPE_PLATFORM || type == TYPE_PLATFORM_LONG)
        GameObjDrawTextured(pInst, horiTEX, 1.0f, blend);
    else if (type == TYPE_SPIKE_UP || type == TYPE_SPIKE_DOWN || type == TYPE_SPIKE_ROW_UP ||
             type == TYPE_SPIKE_ROW_DOWN)
        GameObjDrawColoured(pInst, 1.0f, blend);
    else if (type == TYPE_CHARACTER)
        GameObjDrawTextured(pInst, gMenu.sFacingLeft ? char_leftTEX : charTEX, 1.0f, blend);
    else if (type == TYPE_HAND)
        GameObjDrawTextured(pInst, char_handTEX, 1.0f, blend);
    else if (type == TYPE_START_BTN)
        GameObjDrawTextured(pInst, START_TEX, gMenu.startAlpha, blend);
    else if (type == TYPE_CONTROL_BTN)
        GameObjDrawTextured(pInst, CONTROL_TEX, gMenu.controlAlpha, blend);
    else if (type == TYPE_QUIT_BTN)
        GameObjDrawTextured(pInst, EXIT_TEX, gMenu.exitAlpha, blend);
    else if (type == TYPE_HUD_DESIGN)
        GameObjDrawTextured(pInst, HUD_Design_TEX, 1.0f, blend);
    else if (type == TYPE_DARKNESS)
        GameObjDrawTextured(pInst, torchTEX, 0.8f, blend);
    else if (type == TYPE_TITLE)
        GameObjDrawTextured(pInst, Quillon_Main_TEX, 1.0f, blend);
    else if (type == TYPE_PAUSE_DIM)
        GameObjDrawTextured(pInst, BlackScreen_TEX, gMenu.sMenuFade, blend);
    else if (type == TYPE_OPTION_MENU)
        GameObjDrawTextured(pInst, Option_Menu_TEX, gMenu.pageAlpha, blend);
    else if (type == TYPE_OPTION_FS)
        GameObjDrawTextured(pInst, Option_FS_TEX, gMenu.fullScreenAlpha, blend);
    else if (type == TYPE_OPTION_VU)
        GameObjDrawTextured(pInst, Option_VU_TEX, gMenu.volumeUpAlpha, blend);
    else if (type == TYPE_OPTION_VD)
        GameObjDrawTextured(pInst, Option_VD_TEX, gMenu.volumeDownAlpha, blend);
    else if (type == TYPE_CREDITS_BTN)
        GameObjDrawTextured(pInst, credit_btn_TEX, PopupAlpha(gMenu.sOptionsOpen, pInst), blend);
    else if (type == TYPE_BACK_BTN)
        GameObjDrawTextured(pInst, BACK_TEX, gMenu.backAlpha, blend);
    else if (type == TYPE_ARE_YOU_SURE)
        GameObjDrawTextured(pInst, AreYouSureTEX, gMenu.sConfirmOpen ? 1.0f : 0.0f, blend);
    else if (type == TYPE_YES_BTN)
        GameObjDrawTextured(pInst, Yes_btn_TEX, PopupAlpha(gMenu.sConfirmOpen, pInst), blend);
    else if (type == TYPE_NO_BTN)
        GameObjDrawTextured(pInst, No_btn_TEX, PopupAlpha(gMenu.sConfirmOpen, pInst), blend);
    else if (type == TYPE_CURSOR)
        GameObjDrawTextured(pInst, cursorTEX, 1.0f, blend);
}

void GameStateMenuDraw()
{
    GameObjPoolDraw(&sPool, MenuDrawOne);
}

void GameStateMenuFree()
{
    GameObjPoolDestroyAll(&sPool);
}

void GameStateMenuUnload()
{
    GameObjPoolReleaseMeshes(&sPool);
    GameTexturesUnload(sTextures, TEXTURE_NUM);
    GameStatePoolSet(nullptr);
    GameStateProbeSet(nullptr);
}

void MenuProbe(std::string* pOut)
{
    ProbeInt(pOut, "sMenuSelection", gMenu.sMenuSelection);
    ProbeInt(pOut, "sMouseActive", gMenu.mouse.sMouseActive);
    ProbeFloat(pOut, "sMenuFade", gMenu.sMenuFade);
    ProbeInt(pOut, "sMenuFadeAction", gMenu.sMenuFadeAction);
    ProbeInt(pOut, "sOptionsOpen", gMenu.sOptionsOpen);
    ProbeInt(pOut, "sOptionsLock", gMenu.sOptionsLock);
    ProbeInt(pOut, "sOptionsIndex", gMenu.sOptionsIndex);
    ProbeInt(pOut, "sConfirmOpen", gMenu.sConfirmOpen);
    ProbeFloat(pOut, "sTorchAngle", gMenu.sTorchAngle);
    ProbeFloat(pOut, "startAlpha", gMenu.startAlpha);
    ProbeFloat(pOut, "controlAlpha", gMenu.controlAlpha);
    ProbeFloat(pOut, "exitAlpha", gMenu.exitAlpha);
    ProbeInt(pOut, "sMenuFullScreen", gMenu.sMenuFullScreen);
    ProbeInt(pOut, "sOnGround", gMenu.play.sOnGround);
    if (gMenuInst.pCharacter)
    {
        ProbeFloat(pOut, "charx", gMenuInst.pCharacter->posCurr.x);
        ProbeFloat(pOut, "chary", gMenuInst.pCharacter->posCurr.y);
    }
}
