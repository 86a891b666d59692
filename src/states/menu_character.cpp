// menu_character.cpp -- the main menu's walking character: the movement of normal gravity with the menu's own
// gravity of 200.1, the hand and the darkness that trail it, and the torch, which either follows the mouse or
// sweeps by the character's place along six stretches that also pick the button Return acts on.
#include "gamestate_menu_internal.h"

#include "KRGraphics.h"
#include "KRInput.h"
#include "collision.h"
#include "gameloop.h"

#include <cmath>

static const f32 MENU_GRAVITY = 200.1f;
static const f32 MENU_PI = 3.1415925f; // the game's own value of pi, for angles and the walk to the left

static u8 KeyHeld(unsigned char key)
{
    // A and D are ignored while the character is pressed against a wall.
    return !gMenu.play.sWallBlocked && KRInputCheckCurr(key);
}

static void MoveInAir(KRVec2* pVel)
{
    const f32 downAngle = 4.712389f;
    KRVec2 g = {std::cos(downAngle), std::sin(downAngle)};
    pVel->x += g.x;
    pVel->y += g.y;
    pVel->y -= MENU_GRAVITY * gFrameDelta;
    pVel->x -= 0.05f * pVel->x;
    if (KeyHeld('A'))
        pVel->x -= 5.0f;
    if (KeyHeld('D'))
        pVel->x += 5.0f;
    pVel->x += g.x;
    pVel->y += g.y;
}

static void MoveOnGround(KRVec2* pVel)
{
    gMenu.play.sJumping = 0;
    pVel->x -= gMenu.friction * pVel->x;

    if (KRInputCheckTriggered(32) && !gMenu.play.sJumping)
    {
        const f32 upAngle = 1.5707963f;
        KRVec2 u = {std::cos(upAngle), std::sin(upAngle)};
        if (KeyHeld('A'))
            pVel->x -= 1.0f;
        if (KeyHeld('D'))
            pVel->x += 1.0f;
        pVel->x += u.x;
        pVel->y += u.y;
        pVel->y = 200.0f;
        gMenu.play.sJumping = 1;
        gMenu.play.sOnGround = 0;
        return;
    }

    pVel->y -= MENU_GRAVITY * gFrameDelta;
    if (KeyHeld('A'))
        pVel->x = 150.0f * std::cos(MENU_PI);
    if (KeyHeld('D'))
        pVel->x = 150.0f * std::cos(0.0f);
}

void MenuCharacterMove()
{
    GameObjInst* pChar = gMenuInst.pCharacter;
    if (KRInputCheckTriggered('A'))
        gMenu.sFacingLeft = 1;
    else if (KRInputCheckTriggered('D'))
        gMenu.sFacingLeft = 0;

    if (!gMenu.play.sOnGround)
        MoveInAir(&pChar->velCurr);
    else
        MoveOnGround(&pChar->velCurr);

    // The character's own rotation, if ever not zero, settles back by 0.1 a frame.
    if (pChar->dirCurr > 0.0f)
        pChar->dirCurr = pChar->dirCurr - 0.1f < 0.0f ? 0.0f : pChar->dirCurr - 0.1f;
    else if (pChar->dirCurr < 0.0f)
        pChar->dirCurr = pChar->dirCurr + 0.1f > 0.0f ? 0.0f : pChar->dirCurr + 0.1f;
}

void MenuAttachmentsFollow()
{
    // Set before this frame's move is integrated, so both trail the character by a frame.
    const KRVec2& pos = gMenuInst.pCharacter->posCurr;
    gMenuInst.pHand->posCurr.x = pos.x;
    gMenuInst.pHand->posCurr.y = pos.y - 8.0f;
    gMenuInst.pDarkness->posCurr = pos;
}

// One stretch of the character's x: the torch swings from base toward base +- swing as the character nears the
// stretch's end, and the stretch lights its button and picks the selection.
struct TorchStretch
{
    f32 from;     // x above this (the first stretch: at least this)
    f32 to;       // x at most this
    f32 base;
    f32 sign;
    f32 swing;
    f32 end;
    f32 length;
    s32 selection;
};

// The lengths of the outer stretches are these exact floats, not the differences of the ends as written.
static const TorchStretch sStretches[] = {
    {-370.667f, -288.0f, 90.0f, -1.0f, 17.0f, -370.667f, 82.6669921875f, 1},
    {-288.0f, -141.0f, 90.0f, 1.0f, 28.0f, -141.0f, 147.0f, 1},
    {-141.0f, 4.0f, 62.0f, 1.0f, 28.0f, 4.0f, 145.0f, 2},
    {4.0f, 144.0f, 90.0f, 1.0f, 28.0f, 144.0f, 140.0f, 2},
    {144.0f, 308.0f, 57.0f, 1.0f, 33.0f, 308.0f, 164.0f, 3},
    {308.0f, 373.667f, 90.0f, 1.0f, 13.0f, 373.667f, 65.6669921875f, 3},
};

static void TorchByStretch(f32 x)
{
    for (u32 i = 0; i < sizeof(sStretches) / sizeof(sStretches[0]); i++)
    {
        const TorchStretch& s = sStretches[i];
        // The first stretch includes its left end; the others start just above theirs.
        u8 inside = (i == 0 ? x >= s.from : x > s.from) && x <= s.to;
        if (!inside)
            continue;
        gMenu.sTorchAngle = s.base + s.sign * s.swing * (1.0f - std::fabs(s.end - x) / s.length);
        gMenu.sMenuSelection = s.selection;
        if (s.selection == 1)
            gMenu.startAlpha = 1.0f;
        else if (s.selection == 2)
            gMenu.controlAlpha = 1.0f;
        else
            gMenu.exitAlpha = 1.0f;
        gMenu.mouse.sMouseIdleTime = 0.0f;
        return;
    }
}

static void TorchByMouse()
{
    s32 cx = 0, cy = 0;
    KRInputGetCursorPosition(&cx, &cy);
    f32 camX = 0.0f, camY = 0.0f;
    KRGfxGetCamPosition(&camX, &camY);
    camX = camX < -1155.0f ? -1155.0f : (camX > 1155.0f ? 1155.0f : camX);
    camY = camY < -250.0f ? -250.0f : (camY > 335.0f ? 335.0f : camY);

    KRVec2 v;
    v.x = (f32)cx - 391.0f - gMenuInst.pCharacter->posCurr.x + camX;
    v.y = 280.0f - (f32)cy - gMenuInst.pCharacter->posCurr.y + camY;
    f32 len = std::sqrt(v.x * v.x + v.y * v.y);
    v.x /= len;
    v.y /= len;
    gMenu.sTorchAngle = std::acos(v.x) * 180.0f / MENU_PI;
    if (v.y < 0.0f)
        gMenu.sTorchAngle = 360.0f - gMenu.sTorchAngle;
}

void MenuTorchUpdate()
{
    gMenu.sTorchAngle = 0.0f;
    if (!gMenu.mouse.sMouseActive && !gMenu.sOptionsOpen)
        TorchByStretch(gMenuInst.pCharacter->posCurr.x);
    else
        TorchByMouse();

    f32 radians = gMenu.sTorchAngle * MENU_PI / 180.0f;
    gMenuInst.pHand->dirCurr = radians;
    gMenuInst.pDarkness->dirCurr = radians;
}

// The normal collision pass of play with margin 10 over the scene's platforms and walls. The play routines work
// on the common record; the menu lends them its own and takes the level's back afterwards.
void MenuCharacterCollide(GameObjPool* pPool)
{
    PlayCommon levelPlay = gPlay;
    gPlay = gMenu.play;
    CollisionPlayNormal(gMenuInst.pCharacter, pPool, 10.0f, gFrameDelta);
    gMenu.play = gPlay;
    gPlay = levelPlay;
}
