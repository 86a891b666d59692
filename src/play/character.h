// character.h -- the character's movement, its facing, and the gravity flip with its freeze, cooldown and arrows.
//
// Reads and writes the common flags of gPlay (sOnGround, sJumping, sWallBlocked, sHitHop, sGravityInverted) and
// the flip variables of the level record it is given.
#pragma once

#include "gameobj.h"

struct LevelVars;

const float CHARACTER_GRAVITY = 250.1f;
const float CHARACTER_GROUND_SPEED = 150.0f;
const float CHARACTER_JUMP_SPEED = 200.0f;

// One frame of movement: sets the velocity from keys and gravity. Does nothing while frozen.
void CharacterMove(GameObjInst* pCharacter, f32 dt, u8 frozen);

// A pressed sets sFacingLeft, else D pressed clears it; holding does nothing.
void CharacterFacing(u8* pFacingLeft);

// The freeze and the cooldown of a flip, once a frame: the velocity is held at rest while the freeze runs.
void FlipTimersRun(LevelVars* pL, GameObjInst* pCharacter, f32 dt);

// The left button, when the cooldown allows: turns gravity over, freezes the character and starts the arrows.
// withSound: the gravity sound and the arming of the rock impact (every level but the user level).
void FlipInput(LevelVars* pL, GameObjInst* pCharacter, bool withSound);

// The arrows' places around the camera and their sweep, once a frame.
void FlipArrowsRun(LevelVars* pL, f32 camX, f32 camY);
