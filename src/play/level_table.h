// level_table.h -- everything that differs between the seven level states, as one row each. The shared level
// reads its row; a difference between levels is a column here, never an if on the level's number.
#pragma once

#include "KRTypes.h"

// An object a level's Init makes itself, ahead of the file unless afterFile.
struct LevelFixedObject
{
    u32 kind;
    f32 scale;
    f32 x, y;
    f32 vx, vy;
    u8 afterFile;
};

// How a moving platform is steered at the level logic step: by limits on x or on y.
enum LevelPlatformAxis
{
    LEVEL_AXIS_X,
    LEVEL_AXIS_Y,
};

// Past upper the platform's speed becomes -100, past lower +100; the tests are strict.
struct LevelPlatformLimit
{
    LevelPlatformAxis axis;
    f32 upper;
    f32 lower;
};

enum LevelPlatformMotion
{
    LEVEL_PLATFORMS_NONE,   // no moving platforms of its own
    LEVEL_PLATFORMS_LIMITS, // back and forth between limits, held during a flip's freeze
    LEVEL_PLATFORMS_LEGS,   // a rectangle walked leg by leg, never held
};

const int LEVEL_FIXED_MAX = 8;

struct LevelConfig
{
    const char* name;       // "Level_0"; the state's Load is named after it in failure reports
    s32 state;              // GS_LEVEL_0 ...
    const char* file;       // the level file in the working directory; null: the user level's file
    s32 nextState;          // on winning
    s32 markIndex;          // the flag StatesMarkLevel sets at the exit; -1: none
    f32 darkHalfW, darkHalfH; // TYPE_DARKNESS's mesh
    f32 darkScale;
    u8 key0Restarts;
    u8 escRefusedUnderConfirm;
    u8 effects;              // the flip, pickup and scream sounds of the Update
    u8 musicStarted;         // MusicPlay at Init
    u8 halfVolumeInPause;
    u8 musicUpdateFirst;     // the sound system is pumped before the pause test, every frame
    u8 damageFlash;          // TYPE_DAMAGE_FLASH and the ghost picture
    u8 pickupClearsFade;
    u8 blinkCreated;         // TYPE_BLINK_SCREEN is created
    u8 blinkDrawn;           // TYPE_BLINK_SCREEN has a mesh and is drawn
    u8 moverBoxes;           // box rules for kinds 5, 33, 34
    u8 moversDrawn;          // kinds 5, 33, 34 drawn
    f32 endScreenScale;      // TYPE_WIN_SCREEN, TYPE_LOSE_SCREEN
    f32 batteryFadeScale;    // TYPE_BATTERY_FADE
    u8 resetsInvincible;     // sInvincible, sBlinkHidden, sBlinkTimer reset at Init
    u8 resetsEndTimer;       // sEndTimer reset at Init
    u8 confirmTransforms;    // the confirmation box follows the camera while paused
    u8 tutorial;             // tutorial boxes, the rising wall and its leftover corners
    u8 textboxKind;          // TYPE_TEXTBOX registered and the tutorial pictures loaded
    u8 boulder;              // the pursuing boulder: its mesh, picture, box, music, arming and catch
    f32 dimX, dimY;          // where TYPE_PAUSE_DIM stands
    f32 fadeX, fadeY;        // where TYPE_BATTERY_FADE and TYPE_BLINK_SCREEN stand
    LevelFixedObject fixed[LEVEL_FIXED_MAX];
    u32 fixedNum;
    LevelPlatformMotion platformMotion;
    LevelPlatformLimit limits[4];
    u32 heldPlatforms;       // how many platform speeds a freeze stores: indices 1 to this
};

enum
{
    LEVEL_ROW_0,
    LEVEL_ROW_1,
    LEVEL_ROW_2,
    LEVEL_ROW_3,
    LEVEL_ROW_4,
    LEVEL_ROW_5,
    LEVEL_ROW_USER,
    LEVEL_ROW_NUM,
};

extern const LevelConfig gLevelConfigs[LEVEL_ROW_NUM];
