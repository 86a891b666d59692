// levelvars.h -- one level state's own variables and remembered instances, as one record.
//
// Each of the seven level states keeps its own record beside its own pool; the shared routines of play take the
// record they work on. Field names are the variables' own. LevelVarsReset is the variable reset of Init.
#pragma once

#include "gameobj.h"

struct LevelConfig;

const int LEVEL_MOVING_PLATFORM_MAX = 4;
const int LEVEL_TOUCHED_MAX = 8;

struct LevelVars
{
    // Zoom power-up.
    f32 sZoomScale;
    u8 sZoomReturning;
    u8 sZoomActive;

    // The flip.
    u8 sFlipFrozen;
    u8 sFlipFreezeRunning;
    f32 sFlipFreezeTime;
    u8 sFlipCooldown;
    f32 sFlipCooldownTime;
    u8 sArrowSweep;
    f32 sArrowOffset;
    u8 sCompassFade; // set by every flip, read by nothing

    // Moving platforms.
    u8 sPlatformsHeld;
    u8 sPlatformsSwitch;
    f32 sPlatformVelocity[LEVEL_MOVING_PLATFORM_MAX];
    s32 sPlatformLeg;

    // Health.
    s32 sHitPoints;
    s32 sHeartsShown;
    f32 sInvincibleTime;
    f32 sInvincibleTimer;
    u8 sInvincible;
    u8 sBlinkHidden;
    f32 sBlinkTimer;
    f32 sBlinkFloor;

    // Torch and battery.
    u8 sDarknessOff;
    f32 sTorchAngle; // degrees, the result of the torch routine this frame
    f32 sBatteryLife;
    f32 sBatterySecond;
    f32 sBatteryBarWidth;
    f32 sBatteryBarStep;
    f32 sBatteryUsed;
    f32 sBatteryLowRatio;
    f32 sBatteryLowTime;
    u8 sBatteryLow;
    u8 sBatteryDying;
    u8 sBatteryBlink;
    f32 sBatteryBlinkTimer;
    f32 sBatteryBlinkPause;
    s32 sBatteryBlinkCount;
    f32 sBatteryFadeAlpha;
    f32 sBatteryFadeTimer;
    f32 sBarOffset;
    f32 sBarFull;

    u8 sFacingLeft;

    // Ends.
    u8 sWon;
    u8 sLost;
    f32 sWinAlpha;
    f32 sLoseAlpha;
    f32 sEndTimer;
    u8 sMarked; // the exit's flag went to the progress file in this win
    f32 sCompassAngle;
    u8 sDamageFlash;
    s32 sDamageFalling;
    f32 sDamageAlpha;
    u8 sIsGhost;

    // The boulder of the last level.
    u8 sBoulderArmed;
    u8 sCrushed;
    u8 sCrushReturning;
    f32 sCrushAlpha;

    // The pause menu.
    u8 sPaused;
    u8 sPauseHelp;
    u8 sPauseOptions;
    u8 sPauseConfirm;
    s32 sPauseSelected; // survives a restart

    u8 sPauseKeyUsed; // set, never read

    // For testers: the kinds the contact pass found touching the character this frame, in slot order.
    u32 sTouchedKinds[LEVEL_TOUCHED_MAX];
    u32 sTouchedNum;

    // The remembered instances.
    GameObjInst* sPlayer;
    GameObjInst* sTorch;
    GameObjInst* sHand;
    GameObjInst* sWinScreen;
    GameObjInst* sLoseScreen;
    GameObjInst* sCompass;
    GameObjInst* sArrowUp;
    GameObjInst* sArrowDown;
    GameObjInst* sDamageFlashObj;
    GameObjInst* sCursor;
    GameObjInst* sBtnResume;
    GameObjInst* sBtnOptions;
    GameObjInst* sBtnLevels;
    GameObjInst* sBtnHelp;
    GameObjInst* sBtnExit;
    GameObjInst* sPauseTitle;
    GameObjInst* sHelpPage;
    GameObjInst* sBackBtn;
    GameObjInst* sOptionPage;
    GameObjInst* sBtnFullScreen;
    GameObjInst* sBtnVolumeUp;
    GameObjInst* sBtnVolumeDown;
    GameObjInst* sConfirmBox;
    GameObjInst* sBtnYes;
    GameObjInst* sBtnNo;
    GameObjInst* sCrushFade;
    GameObjInst* sMovingWall;
    GameObjInst* sDropWall;
    GameObjInst* sTextBox[3];
    GameObjInst* sMovingPlatforms[LEVEL_MOVING_PLATFORM_MAX];
    u32 sMovingPlatformNum;
};

// The variable reset of Init, by the level's row: what it resets and to what.
void LevelVarsReset(LevelVars* pL, const LevelConfig* pConfig);
