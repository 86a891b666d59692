// torch.h -- the torch: aimed at the pointer, centred on the character; the camera's limits live here.
#pragma once

#include "gameobj.h"

// The camera's limits, the same in both gravities.
const float TORCH_CAMERA_MIN_X = -1155.0f;
const float TORCH_CAMERA_MAX_X = 1155.0f;
const float TORCH_CAMERA_MIN_Y = -250.0f;
const float TORCH_CAMERA_MAX_Y = 335.0f;

// Puts the torch on the character, clamps and sets the camera (its y negated with gravity inverted) and returns
// the torch's angle in degrees: 0 to 360 with normal gravity, -360 to 0 inverted, never wrapped or clamped.
f32 TorchUpdate(GameObjInst* pTorch, const GameObjInst* pCharacter, u8 inverted);
