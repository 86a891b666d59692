// level_steps.h -- the steps of a level's frame that live in their own units, in the order Update calls them.
#pragma once

#include "level_state.h"

// Pause menu (level_pause.cpp).
void LevelPauseCreate(LevelState* pLevel, f32 x, f32 y);
void LevelPausePlace(LevelState* pLevel, f32 camX, f32 camY);
void LevelPauseRun(LevelState* pLevel);
// The transparency of a pause kind in Draw; false for the other kinds.
bool LevelPauseAlpha(const LevelState* pLevel, const GameObjInst* pInst, f32* pAlpha);

// Boxes, contacts, health and ends (level_contact.cpp).
void LevelBoxes(LevelState* pLevel);
void LevelContactPass(LevelState* pLevel);
void LevelBlink(LevelState* pLevel);
void LevelEndTest(LevelState* pLevel, f32 dt);
void LevelDamageFlash(LevelState* pLevel);
void LevelEndFades(LevelState* pLevel, f32 dt);

// The battery (level_battery.cpp).
void LevelBatteryClock(LevelState* pLevel, f32 dt);
void LevelBatteryBarTests(LevelState* pLevel);
void LevelBatteryBlinkAndFade(LevelState* pLevel, f32 dt);
void LevelBatteryPickup(LevelState* pLevel, GameObjInst* pPickup);

// HUD and compass (level_hud.cpp).
void LevelHudPass(LevelState* pLevel);
// A heart met in the HUD walk while the hit points and the hearts shown differ goes (it is the first in slot
// order), and the count follows: true when it went, and the walk stops there for this frame.
bool LevelHudHeartGoes(LevelVars* pL, GameObjInst* pHeart);
void LevelCompass(LevelState* pLevel, f32 camX, f32 camY);

// The level's own moving things and tutorial (level_logic.cpp).
void LevelBoulderStart(LevelState* pLevel);
void LevelBoulderCatch(LevelState* pLevel);
void LevelTutorialBoxes(LevelState* pLevel);
void LevelRisingWall(LevelState* pLevel);
void LevelPlatformsSteer(LevelState* pLevel);

// Transforms of the whole pool (level_transform.cpp).
void LevelTransforms(LevelState* pLevel);
