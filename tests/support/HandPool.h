// HandPool.h -- a hand-made pool for the unit tests of the play routines: kinds registered by number only, a
// character, platforms, walls and drop walls with the boxes the level's box step gives them, and a keyboard the
// test holds keys on.
#pragma once

#include "FakeKeys.h"
#include "KRInput.h"
#include "collision.h"
#include "gameloop.h"
#include "playcommon.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>

class HandPool : public FakeKeys
{
protected:
    void SetUp() override;

    // The character at (x, y), scale 50: a box a third of its width wide and its whole height high.
    GameObjInst* Character(f32 x, f32 y, f32 vx = 0.0f, f32 vy = 0.0f);
    GameObjInst* Make(u32 kind, f32 scale, f32 x, f32 y, f32 vx = 0.0f, f32 vy = 0.0f);
    // A platform of 100 by 20 around (x, y).
    GameObjInst* Platform(f32 x, f32 y, u32 kind = TYPE_PLATFORM, f32 vx = 0.0f, f32 vy = 0.0f);
    // A wall, or a drop wall, of 20 by 100 around (x, y).
    GameObjInst* Wall(f32 x, f32 y);
    GameObjInst* DropWall(f32 x, f32 y, f32 vy = 0.0f);
    // Space goes down for the next routine call: triggered, as in the first frame of a press.
    void PressSpace();

    std::unique_ptr<GameObjPool> mPool;
};
