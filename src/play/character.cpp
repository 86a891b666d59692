// character.cpp -- walking, jumping, falling, and the flip of gravity.
//
// Owns:    nothing; the flags live in gPlay and the level's record.
// Used by: the level states at their movement, flip and arrow steps, and the editor's test play.
#include "character.h"

#include "KRInput.h"
#include "fmodsound.h"
#include "levelvars.h"
#include "playcommon.h"
#include "playkeys.h"

#include <cmath>

static void AirMove(GameObjInst* pCharacter, f32 g)
{
    const f32 angle = gPlay.sGravityInverted ? PLAY_HALF_PI : PLAY_THREE_HALF_PI;
    const f32 ux = cosf(angle);
    const f32 uy = sinf(angle);
    KRVec2& v = pCharacter->velCurr;

    v.x += ux;
    v.y += uy;
    if (gPlay.sGravityInverted)
        v.y += g;
    else
        v.y -= g;
    v.x -= v.x * 0.05f;
    // Held keys: both together cancel.
    if (KRInputCheckCurr(PLAY_KEY_A) && !gPlay.sWallBlocked)
        v.x -= 5.0f;
    if (KRInputCheckCurr(PLAY_KEY_D) && !gPlay.sWallBlocked)
        v.x += 5.0f;
    // The second addition of the unit vector: two units of extra gravity a frame in the air.
    v.x += ux;
    v.y += uy;
}

static void Jump(GameObjInst* pCharacter)
{
    KRVec2& v = pCharacter->velCurr;
    EffectPlayJump();
    if (KRInputCheckCurr(PLAY_KEY_A) && !gPlay.sWallBlocked && v.y > -300.0f)
        v.x -= 1.0f;
    if (KRInputCheckCurr(PLAY_KEY_D) && !gPlay.sWallBlocked && v.y > -300.0f)
        v.x += 1.0f;
    v.x += cosf(PLAY_HALF_PI);
    v.y += sinf(PLAY_HALF_PI);
    v.y = gPlay.sGravityInverted ? -CHARACTER_JUMP_SPEED : CHARACTER_JUMP_SPEED;
    gPlay.sJumping = 1;
    gPlay.sOnGround = 0;
    gPlay.sHitHop = 0;
}

static void GroundMove(GameObjInst* pCharacter, f32 g)
{
    KRVec2& v = pCharacter->velCurr;
    gPlay.sJumping = 0;
    v.x -= v.x * 0.15f;

    // A hazard's hop goes through the jump, sound and all, and waits until the character stands again.
    const bool jump = gPlay.sHitHop ? true : KRInputCheckTriggered(PLAY_KEY_SPACE) != 0;
    if (jump)
    {
        Jump(pCharacter);
        return;
    }
    // Always pressed into the floor; collision sets it back every frame.
    if (gPlay.sGravityInverted)
        v.y += g;
    else
        v.y -= g;
    // The speed is assigned, not added: D wins when both are held.
    if (KRInputCheckCurr(PLAY_KEY_A) && !gPlay.sWallBlocked)
        v.x = CHARACTER_GROUND_SPEED * cosf(PLAY_PI);
    if (KRInputCheckCurr(PLAY_KEY_D) && !gPlay.sWallBlocked)
        v.x = CHARACTER_GROUND_SPEED * cosf(0.0f);
}

void CharacterMove(GameObjInst* pCharacter, f32 dt, u8 frozen)
{
    if (frozen)
        return;
    const f32 g = CHARACTER_GRAVITY * dt;
    if (gPlay.sOnGround)
        GroundMove(pCharacter, g);
    else
        AirMove(pCharacter, g);
}

void CharacterFacing(u8* pFacingLeft)
{
    if (KRInputCheckTriggered(PLAY_KEY_A))
        *pFacingLeft = 1;
    else if (KRInputCheckTriggered(PLAY_KEY_D))
        *pFacingLeft = 0;
}

void FlipTimersRun(LevelVars* pL, GameObjInst* pCharacter, f32 dt)
{
    if (pL->sFlipFreezeRunning)
    {
        pL->sFlipFreezeTime += dt;
        if (pL->sFlipFreezeTime >= 1.0f)
        {
            pL->sFlipFreezeTime = 0.0f;
            pL->sFlipFrozen = 0;
            pL->sFlipFreezeRunning = 0;
            pL->sPlatformsHeld = 0;
            pL->sPlatformsSwitch = 1;
        }
        // Held at rest for every frame the freeze was running at the start of this step, its last one too.
        pCharacter->velCurr.x = 0.0f;
        pCharacter->velCurr.y = 0.0f;
    }
    if (pL->sFlipCooldown)
    {
        pL->sFlipCooldownTime += dt;
        if (pL->sFlipCooldownTime > 2.0f)
        {
            pL->sFlipCooldownTime = 0.0f;
            pL->sFlipCooldown = 0;
        }
    }
}

void FlipInput(LevelVars* pL, GameObjInst* pCharacter, bool withSound)
{
    if (!KRInputCheckTriggered(PLAY_KEY_LBUTTON) || pL->sFlipCooldown)
        return;
    if (withSound)
    {
        EffectPlayGravity();
        gPlay.sRockImpactArmed = 1;
    }
    pCharacter->dirCurr += PLAY_PI;
    // A nudge for this frame only: the next frame's freeze zeroes the velocity.
    pCharacter->velCurr.y = gPlay.sGravityInverted ? -4.0f : 4.0f;
    gPlay.sGravityInverted = !gPlay.sGravityInverted;
    pL->sFlipFrozen = 1;
    pL->sFlipFreezeRunning = 1;
    pL->sFlipCooldown = 1;
    pL->sPlatformsHeld = 1;
    pL->sPlatformsSwitch = 1;
    pL->sArrowSweep = 1;
    pL->sCompassFade = 1;
}

void FlipArrowsRun(LevelVars* pL, f32 camX, f32 camY)
{
    pL->sArrowUp->posCurr.x = camX - 100.0f;
    pL->sArrowUp->posCurr.y = camY - 500.0f + pL->sArrowOffset;
    pL->sArrowDown->posCurr.x = camX + 100.0f;
    pL->sArrowDown->posCurr.y = camY + 500.0f - pL->sArrowOffset;
    if (pL->sArrowSweep)
    {
        if (pL->sArrowOffset > 1300.0f)
        {
            pL->sArrowSweep = 0;
            pL->sArrowOffset = 0.0f;
        }
        // Per frame, after the test: a sweep ends at 20, where the next one starts.
        pL->sArrowOffset += 20.0f;
    }
}
