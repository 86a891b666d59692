// gameobjdraw.h -- what every state does with its pool each frame, once: rebuild transforms, draw in slot order.
//
// A state keeps only its own rules: which rotation and position a kind's transform takes, and how a kind is
// drawn (texture, transparency, blending, or not at all). The walk over the 2048 slots, the render state every
// instance starts from and the matrix product live here.
//
//     static void DrawOne(GameObjInst* pInst)
//     {
//         if (pInst->pObject->type == TYPE_WALL)
//             GameObjDrawTextured(pInst, verTEX, 1.0f, KR_GFX_BM_NONE);
//         ...
//     }
//     Draw: GameObjPoolDraw(&sPool, DrawOne);
#pragma once

#include "gameobj.h"

struct KRGfxTexture;

// Calls fn for every live instance, from slot 0 upward.
typedef void (*GameObjInstFn)(GameObjInst* pInst);
void GameObjPoolForEachLive(GameObjPool* pPool, GameObjInstFn fn);

// transform = translate(x, y) x (rotate(angle) x scale(scale, scale)), by KRMtx33Concat.
void GameObjBuildTransform(GameObjInst* pInst, f32 x, f32 y, f32 angle);

// The plain rebuild for states without a turned-over world: every live instance at posCurr, rotated by dirCurr.
void GameObjPoolBuildTransforms(GameObjPool* pPool);

// Draws the live instances in slot order. Before fn sees an instance the render state is the one every instance
// starts from: blend mode 0, textured mode, position (0, 0), white tint.
void GameObjPoolDraw(GameObjPool* pPool, GameObjInstFn fn);

// Draws the instance's mesh with its transform in triangle-list form: textured with the picture at the texture
// offset (texU, texV of the instance), the transparency and the blend mode given.
void GameObjDrawTextured(const GameObjInst* pInst, KRGfxTexture* pTexture, f32 alpha, s32 blendMode);

// The same in the colour mode (vertex colours, no picture).
void GameObjDrawColoured(const GameObjInst* pInst, f32 alpha, s32 blendMode);

// The state whose pool is live, for tests and the replay tool only: each state names its pool in its Load and
// nulls it in its Unload. Nothing in the game reads it.
void GameStatePoolSet(GameObjPool* pPool);
GameObjPool* GameStatePoolGet();
