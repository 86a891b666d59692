// movers.h -- what moves in the world: the character riding platforms, drop walls under gravity, the travelling
// wall. Motion itself is the integration of velCurr by the level; these routines set velocities and resolve.
#pragma once

#include "gameobj.h"

// Before the platform routine, for a moving platform the character overlaps: carried through its velocity.
void PlatformRideNormal(GameObjInst* pCharacter, const GameObjInst* pPlatform, f32 margin);
void PlatformRideInverted(GameObjInst* pCharacter, const GameObjInst* pPlatform);

// Every live drop wall: gravity, stacking, and the character pushed off its sides.
void DropWallsNormal(GameObjInst* pCharacter, GameObjPool* pPool, f32 margin, f32 dt);
void DropWallsInverted(GameObjInst* pCharacter, GameObjPool* pPool, f32 margin, f32 dt);

// A drop wall X against a platform P (any other kind of X does nothing), with the rock impact sound once a flip.
void DropWallLandNormal(const GameObjInst* pPlatform, GameObjInst* pInst, const GameObjInst* pCharacter);
void DropWallLandInverted(const GameObjInst* pPlatform, GameObjInst* pInst, const GameObjInst* pCharacter);

// The travelling wall moves at speed while its x is strictly between minX and maxX, else stands. Its first frame
// of travel switches the music to the chase. The y arguments are not used.
void MovingWallRun(GameObjInst* pInst, f32 speed, f32 minX, f32 minY, f32 maxX, f32 maxY);
