// editor_screen.cpp -- the editor's kinds, pictures and furniture, and how its pool is drawn.
//
// Owns:    the 27 textures of the editor, the list of its 42 kinds, the table of the screen's 27 pieces.
// Used by: the editor's Load (kinds, textures), Init (the screen), Draw and Unload.
#include "editor_internal.h"

#include "KRGraphics.h"
#include "collision_rect.h"
#include "gameobjdraw.h"
#include "gameobjmesh.h"
#include "gameobjshapes.h"
#include "gametextures.h"

namespace {

KRGfxTexture* charTEX;
KRGfxTexture* char_leftTEX;
KRGfxTexture* char_handTEX;
KRGfxTexture* torchTEX;
KRGfxTexture* backgroundTEX;
KRGfxTexture* power1Tex;
KRGfxTexture* SideBarTex;
KRGfxTexture* SideBarBgTex;
KRGfxTexture* Exit_PORTAL_TEX;
KRGfxTexture* TYPE_BATTERYP_TEX;
KRGfxTexture* Invert_Up_TEX;
KRGfxTexture* Invert_Down_TEX;
KRGfxTexture* BlackScreen_TEX;
KRGfxTexture* HUD_Design_TEX;
KRGfxTexture* horiTEX;
KRGfxTexture* verTEX;
KRGfxTexture* saveTEX;
KRGfxTexture* loadTEX;
KRGfxTexture* cursorTEX;
KRGfxTexture* clearTEX;
KRGfxTexture* playTEX;
KRGfxTexture* exitTEX;
KRGfxTexture* font_TEX;
KRGfxTexture* TEX_INDCATOR_TEX;
KRGfxTexture* Yes_btn_TEX;
KRGfxTexture* No_btn_TEX;
KRGfxTexture* AreYouSureTEX;

// The seven pictures after the first platform picture report under its name; the texts are kept as they stand.
const GameTexture sTextures[] = {
    {&charTEX, "CHARACTER.png", "charTEX"},
    {&char_leftTEX, "character_left.png", "char_leftTEX"},
    {&char_handTEX, "torchlight.png", "char_handTEX"},
    {&torchTEX, "VISIBILITY.png", "torchTEX"},
    {&backgroundTEX, "BACKGROUND.png", "backgroundTEX"},
    {&power1Tex, "POWERUP1.png", "power1Tex"},
    {&SideBarTex, "LEATHER4.png", "SideBarTex"},
    {&SideBarBgTex, "BATTERY_BACKGROUND.png", "SideBarBgTex"},
    {&Exit_PORTAL_TEX, "PORTAL_EXIT.png", "Exit_PORTAL_TEX"},
    {&TYPE_BATTERYP_TEX, "Battery_pow.png", "TYPE_BATTERYP_TEX"},
    {&Invert_Up_TEX, "INVERTARROWUP.png", "Invert_Up_TEX"},
    {&Invert_Down_TEX, "INVERTARROWDOWN.png", "Invert_Down_TEX"},
    {&BlackScreen_TEX, "Blackscreen.png", "BlackScreen_TEX"},
    {&HUD_Design_TEX, "egypt_design.png", "HUD_Design_TEX"},
    {&horiTEX, "HORIPLATFORMTEXT.png", "horiTEX"},
    {&verTEX, "VERTPLATFORMTEXT.png", "horiTEX"},
    {&saveTEX, "SAVE.png", "horiTEX"},
    {&loadTEX, "LOAD.png", "horiTEX"},
    {&cursorTEX, "CURSORTEX.png", "horiTEX"},
    {&clearTEX, "CLEAR.png", "horiTEX"},
    {&playTEX, "PLAY.png", "horiTEX"},
    {&exitTEX, "EXIT.png", "horiTEX"},
    {&font_TEX, "lucida_console_f_tex.png", "font_TEX"},
    {&TEX_INDCATOR_TEX, "TEX_INDICATOR_TEX.png", "TEX_INDCATOR_TEX"},
    {&Yes_btn_TEX, "ConfirmationYes.png", "Yes_btn_TEX"},
    {&No_btn_TEX, "ConfirmationNo.png", "No_btn_TEX"},
    {&AreYouSureTEX, "ConfirmationBox.png", "AreYouSureTEX"},
};
const u32 TEXTURE_NUM = sizeof(sTextures) / sizeof(sTextures[0]);

// The kinds in the order of registration.
const u32 sKinds[] = {
    TYPE_BACKGROUND, TYPE_DARKNESS, TYPE_YES_BTN, TYPE_NO_BTN, TYPE_ARE_YOU_SURE, TYPE_CURSOR,
    TYPE_NAME_GLYPH, TYPE_SPARE_GLYPH, TYPE_TEXT_GLYPH, TYPE_TOOLBAR, TYPE_NAME_FIELD, TYPE_SPIKE_ROW_UP,
    TYPE_SPIKE_ROW_DOWN, TYPE_SPIKE_UP, TYPE_SPIKE_DOWN, TYPE_WALL, TYPE_ZOOM_POWERUP, TYPE_SIDEBAR,
    TYPE_SIDEBAR_BG, TYPE_BATTERY_BAR, TYPE_PLATFORM, TYPE_PLATFORM_LONG, TYPE_EXIT_PORTAL, TYPE_SAVE_BTN,
    TYPE_LOAD_BTN, TYPE_CLEAR_BTN, TYPE_EDITOR_EXIT_BTN, TYPE_PLAY_BTN, TYPE_CARET, TYPE_PAUSE_DIM,
    TYPE_BATTERY_FADE, TYPE_DROP_WALL, TYPE_PLATFORM_MOVING, TYPE_CHARACTER, TYPE_HAND, TYPE_BATTERYP,
    TYPE_WIN_SCREEN, TYPE_LOSE_SCREEN, TYPE_INVERT_UP, TYPE_INVERT_DOWN, TYPE_HUD_DESIGN, TYPE_HELP_SCREEN,
};
const u32 KIND_NUM = sizeof(sKinds) / sizeof(sKinds[0]);
static_assert(sizeof(sKinds) / sizeof(sKinds[0]) == 42, "the editor registers 42 kinds");

// One piece of the screen; y is taken from the top or the bottom edge of the window at Init.
enum Edge
{
    EDGE_NONE,
    EDGE_TOP,
    EDGE_BOTTOM,
};

struct Piece
{
    u32 kind;
    f32 scale;
    f32 x;
    Edge edge;
    f32 y; // added to the edge
};

// The screen in the order of creation. The palette icons carry the scale a placed copy inherits.
const Piece sScreen[] = {
    {TYPE_BACKGROUND, 1.0f, 0.0f, EDGE_NONE, 0.0f},
    {TYPE_TOOLBAR, 1.0f, 0.0f, EDGE_TOP, -70.0f},
    {TYPE_CHARACTER, 50.0f, -350.0f, EDGE_TOP, -90.0f},
    {TYPE_ZOOM_POWERUP, 30.0f, -262.5f, EDGE_TOP, -90.0f},
    {TYPE_BATTERYP, 40.0f, -177.5f, EDGE_TOP, -90.0f},
    {TYPE_SPIKE_ROW_UP, 1.0f, -47.5f, EDGE_TOP, -110.0f},
    {TYPE_SPIKE_ROW_DOWN, 1.0f, -47.5f, EDGE_TOP, -80.0f},
    {TYPE_SPIKE_UP, 1.0f, 45.0f, EDGE_TOP, -110.0f},
    {TYPE_SPIKE_DOWN, 1.0f, 45.0f, EDGE_TOP, -80.0f},
    {TYPE_EXIT_PORTAL, 55.0f, 107.5f, EDGE_TOP, -90.0f},
    {TYPE_PLATFORM, 1.0f, 222.5f, EDGE_TOP, -100.0f},
    {TYPE_WALL, 1.0f, 350.0f, EDGE_TOP, -90.0f},
    {TYPE_SAVE_BTN, 35.0f, -350.0f, EDGE_BOTTOM, 25.0f},
    {TYPE_NAME_FIELD, 1.0f, -275.0f, EDGE_BOTTOM, 85.0f},
    {TYPE_LOAD_BTN, 35.0f, -250.0f, EDGE_BOTTOM, 25.0f},
    {TYPE_CLEAR_BTN, 35.0f, -150.0f, EDGE_BOTTOM, 25.0f},
    {TYPE_PLAY_BTN, 35.0f, -50.0f, EDGE_BOTTOM, 25.0f},
    {TYPE_EDITOR_EXIT_BTN, 35.0f, 50.0f, EDGE_BOTTOM, 25.0f},
    {TYPE_HUD_DESIGN, 1.1f, 0.0f, EDGE_NONE, 285.0f},
    {TYPE_DARKNESS, 3.5f, 0.0f, EDGE_NONE, 285.0f},
    {TYPE_PAUSE_DIM, 10.0f, 0.0f, EDGE_NONE, 0.0f},
    {TYPE_INVERT_UP, 0.5f, 0.0f, EDGE_NONE, 0.0f},
    {TYPE_INVERT_DOWN, 0.5f, 0.0f, EDGE_NONE, 0.0f},
    {TYPE_ARE_YOU_SURE, 0.5f, 0.0f, EDGE_BOTTOM, 250.0f},
    {TYPE_YES_BTN, 0.5f, -75.0f, EDGE_BOTTOM, 200.0f},
    {TYPE_NO_BTN, 0.5f, 75.0f, EDGE_BOTTOM, 200.0f},
    {TYPE_CURSOR, 35.0f, 50.0f, EDGE_BOTTOM, 25.0f},
};
const u32 SCREEN_NUM = sizeof(sScreen) / sizeof(sScreen[0]);

// What stays put when the world pans: background, darkness, fade overlay, the two arrows and the cursor.
bool StaysPut(u32 kind)
{
    return kind == TYPE_BACKGROUND || kind == TYPE_DARKNESS || kind == TYPE_PAUSE_DIM || kind == TYPE_INVERT_UP ||
           kind == TYPE_INVERT_DOWN || kind == TYPE_CURSOR;
}

f32 HiddenInTest()
{
    return gEditor.sEditorTesting ? 0.0f : 1.0f;
}

// Pass 1: the background and everything that is part of the level.
void DrawLevelPass(GameObjInst* pInst)
{
    u32 kind = pInst->pObject->type;
    if (pInst->isInterface == 1 && kind != TYPE_BACKGROUND)
        return;

    if (kind == TYPE_BACKGROUND)
        GameObjDrawTextured(pInst, backgroundTEX, 1.0f, KR_GFX_BM_BLEND);
    else if (kind == TYPE_HAND)
        GameObjDrawTextured(pInst, char_handTEX, 1.0f, KR_GFX_BM_BLEND);
    else if (kind == TYPE_CHARACTER)
        GameObjDrawTextured(pInst, gEditor.sEditPlay.sFacingLeft ? char_leftTEX : charTEX, 1.0f, KR_GFX_BM_BLEND);
    else if (kind == TYPE_EXIT_PORTAL)
        GameObjDrawTextured(pInst, Exit_PORTAL_TEX, 1.0f, KR_GFX_BM_BLEND);
    else if (kind == TYPE_PLATFORM || kind == TYPE_PLATFORM_LONG)
        GameObjDrawTextured(pInst, horiTEX, 1.0f, KR_GFX_BM_NONE);
    else if (kind == TYPE_WALL)
        GameObjDrawTextured(pInst, verTEX, 1.0f, KR_GFX_BM_NONE);
    else if (kind == TYPE_ZOOM_POWERUP)
        GameObjDrawTextured(pInst, power1Tex, 1.0f, KR_GFX_BM_BLEND);
    else if (kind == TYPE_BATTERYP)
        GameObjDrawTextured(pInst, TYPE_BATTERYP_TEX, 1.0f, KR_GFX_BM_BLEND);
    else
        GameObjDrawColoured(pInst, 1.0f, KR_GFX_BM_NONE);
}

KRGfxTexture* FurnitureTexture(u32 kind)
{
    if (kind == TYPE_EXIT_PORTAL)
        return Exit_PORTAL_TEX;
    if (kind == TYPE_ZOOM_POWERUP)
        return power1Tex;
    if (kind == TYPE_BATTERYP)
        return TYPE_BATTERYP_TEX;
    if (kind == TYPE_CHARACTER)
        return charTEX;
    if (kind == TYPE_SAVE_BTN)
        return saveTEX;
    if (kind == TYPE_LOAD_BTN)
        return loadTEX;
    if (kind == TYPE_PLATFORM || kind == TYPE_PLATFORM_LONG)
        return horiTEX;
    if (kind == TYPE_WALL)
        return verTEX;
    if (kind == TYPE_HUD_DESIGN)
        return HUD_Design_TEX;
    if (kind == TYPE_CURSOR)
        return cursorTEX;
    if (kind == TYPE_CLEAR_BTN)
        return clearTEX;
    if (kind == TYPE_PLAY_BTN)
        return playTEX;
    if (kind == TYPE_EDITOR_EXIT_BTN)
        return exitTEX;
    return nullptr;
}

// The Yes and No buttons light up under the cursor while the box is up.
f32 ConfirmButtonAlpha(const GameObjInst* pInst)
{
    if (!gEditor.sConfirmSave)
        return 0.0f;
    const GameObjInst* pCursor = gEditor.pCursorInst;
    bool over = pCursor && CollisionIntersection_RectRect(&pCursor->boundingBox, &pCursor->velCurr,
                                                          &pInst->boundingBox, &pInst->velCurr);
    return over ? 1.0f : 0.3f;
}

// Pass 2: the furniture, in front of the whole level.
void DrawFurniturePass(GameObjInst* pInst)
{
    u32 kind = pInst->pObject->type;
    if (pInst->isInterface != 1 || kind == TYPE_BACKGROUND)
        return;

    KRGfxTexture* pTexture = FurnitureTexture(kind);
    if (pTexture)
        GameObjDrawTextured(pInst, pTexture, HiddenInTest(), KR_GFX_BM_BLEND);
    else if (kind == TYPE_NAME_GLYPH || kind == TYPE_SPARE_GLYPH || kind == TYPE_TEXT_GLYPH)
        GameObjDrawTextured(pInst, font_TEX, HiddenInTest(), KR_GFX_BM_BLEND);
    else if (kind == TYPE_DARKNESS)
    {
        // The zoom pulse of a test play hides the darkness while it runs.
        if (!gEditor.sEditPlay.sZoomActive)
            GameObjDrawTextured(pInst, torchTEX, gEditor.sEditorTesting ? 1.0f : 0.0f, KR_GFX_BM_BLEND);
    }
    else if (kind == TYPE_YES_BTN)
        GameObjDrawTextured(pInst, Yes_btn_TEX, ConfirmButtonAlpha(pInst), KR_GFX_BM_BLEND);
    else if (kind == TYPE_NO_BTN)
        GameObjDrawTextured(pInst, No_btn_TEX, ConfirmButtonAlpha(pInst), KR_GFX_BM_BLEND);
    else if (kind == TYPE_ARE_YOU_SURE)
        GameObjDrawTextured(pInst, AreYouSureTEX, gEditor.sConfirmSave ? 1.0f : 0.0f, KR_GFX_BM_BLEND);
    else if (kind == TYPE_INVERT_UP)
        GameObjDrawTextured(pInst, Invert_Up_TEX, gEditor.sEditorTesting ? 0.5f : 0.0f, KR_GFX_BM_BLEND);
    else if (kind == TYPE_INVERT_DOWN)
        GameObjDrawTextured(pInst, Invert_Down_TEX, gEditor.sEditorTesting ? 0.5f : 0.0f, KR_GFX_BM_BLEND);
    else if (kind == TYPE_CARET)
        GameObjDrawTextured(pInst, TEX_INDCATOR_TEX, 1.0f, KR_GFX_BM_NONE);
    else if (kind == TYPE_PAUSE_DIM)
        GameObjDrawTextured(pInst, BlackScreen_TEX, gEditor.sFadeAlpha, KR_GFX_BM_BLEND);
    else if (!gEditor.sEditorTesting)
        GameObjDrawColoured(pInst, 1.0f, KR_GFX_BM_NONE);
}

} // namespace

void EditorRegisterKinds()
{
    GameObjShape rows[KIND_NUM];
    for (u32 i = 0; i < KIND_NUM; ++i)
    {
        const GameObjShape* pRow = GameObjShapeFind(gGameObjEditorShapes, gGameObjEditorShapeNum, sKinds[i]);
        if (!pRow)
            pRow = GameObjShapeFind(gGameObjLevelShapes, gGameObjLevelShapeNum, sKinds[i]);
        rows[i] = *pRow;
    }
    GameObjRegisterShapes(&gEditorPool, rows, KIND_NUM, "GameStateEditorLoad");
}

void EditorTexturesLoad()
{
    GameTexturesLoad(sTextures, TEXTURE_NUM, "GameStateEditorLoad");
}

void EditorTexturesUnload()
{
    GameTexturesUnload(sTextures, TEXTURE_NUM);
}

void EditorScreenCreate()
{
    f32 top = KRGfxGetWinMaxY();
    f32 bottom = KRGfxGetWinMinY();
    u32 furniture = 0;
    for (u32 i = 0; i < SCREEN_NUM; ++i)
    {
        const Piece& piece = sScreen[i];
        f32 y = piece.y + (piece.edge == EDGE_TOP ? top : piece.edge == EDGE_BOTTOM ? bottom : 0.0f);
        KRVec2 pos = {piece.x, y};
        GameObjInst* pInst = EditorCreate(piece.kind, piece.scale, &pos, 0, 1);

        if (piece.kind == TYPE_CURSOR)
            gEditor.pCursorInst = pInst;
        else if (piece.kind == TYPE_NAME_FIELD)
            gEditor.pNameFieldInst = pInst;
        else if (piece.kind == TYPE_PLAY_BTN)
            gEditor.pPlayBtnInst = pInst;
        else if (piece.kind == TYPE_SAVE_BTN)
            gEditor.pSaveBtnInst = pInst;
        else if (piece.kind == TYPE_YES_BTN)
            gEditor.pYesBtnInst = pInst;
        else if (piece.kind == TYPE_NO_BTN)
            gEditor.pNoBtnInst = pInst;
        else if (piece.kind == TYPE_DARKNESS)
            gEditor.pDarknessInst = pInst;
        else if (piece.kind == TYPE_INVERT_UP)
            gEditor.sEditPlay.sArrowUp = pInst;
        else if (piece.kind == TYPE_INVERT_DOWN)
            gEditor.sEditPlay.sArrowDown = pInst;

        if (!StaysPut(piece.kind) && furniture < EDITOR_FURNITURE_NUM)
            gEditor.pFurniture[furniture++] = pInst;
    }
}

void EditorDraw()
{
    GameObjPoolDraw(&gEditorPool, DrawLevelPass);
    GameObjPoolDraw(&gEditorPool, DrawFurniturePass);
}
