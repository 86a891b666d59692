// levelshot.h -- the arithmetic of the level shot: the matrix that fits the camera's range into the picture, and
// the averaging that shrinks the larger drawing to the picture's size.
#pragma once

#include "KRMtx33.h"

#include <vector>

// The world rectangle the camera can show in a level, over all its positions.
const float kLevelShotMinX = -1555.0f;
const float kLevelShotMaxX = 1555.0f;
const float kLevelShotMinY = -550.0f;
const float kLevelShotMaxY = 635.0f;

// The matrix, applied after an instance's own transform with the camera at (0, 0), that puts the camera's range
// in the middle of a picture of pixelWidth by pixelHeight, the same scale on both axes, when one world unit is
// scaleX by scaleY pixels (the full-screen stretch).
void LevelShotFit(int pixelWidth, int pixelHeight, float scaleX, float scaleY, KRMtx33* pFit);

// Every factor by factor block of RGBA pixels averaged into one: width / factor by height / factor pixels.
std::vector<unsigned char> LevelShotShrink(const std::vector<unsigned char>& pixels, int width, int height,
                                           int factor);
