// playcommon.h -- the common variables of play: shared by the seven levels, the editor's test play, the credits
// and the main menu's walking character, and living with the movement and collision routines.
//
// One record, gPlay, so that every state reads the same flags the routines write. The field names are the
// variables' own. sOnGround starts true when the program starts and no Init touches it; every other field starts
// false, and a level's Init resets only sGravityInverted and sHitHop.
#pragma once

#include "KRTypes.h"

struct PlayCommon
{
    u8 sGravityInverted; // the world is drawn turned over and gravity pulls up
    u8 sOnGround;        // the character stands on something (on a ceiling, when inverted)
    u8 sJumping;         // a jump is under way
    u8 sHitHop;          // a spike's forced hop is under way
    u8 sWallBlocked;     // pressed against a wall: A and D are ignored
    u8 sRockImpactArmed; // a drop wall may sound its impact once more this flip
    u8 sHitByMovingWall; // the collision driver's result: touched a travelling wall moving right

    // The collision latches.
    u8 sSideA;      // a low side contact was resolved against this platform in this call
    u8 sSideB;      // a high side contact was resolved against this platform in this call
    u8 sLedgeLock;  // after a jump against a platform's side, the side cases are off
    u8 sTopContact; // the first case of the platform routine held last time

    // The tutorial boxes of the first level, shown once each.
    u8 sTutorialBox1;
    u8 sTutorialBox2;
    u8 sTutorialBox3;

    u32 sLevelMusicCount; // frames the travelling wall has moved, for its music switch; reset by the boulder level
};

extern PlayCommon gPlay;
