// levelshot.cpp -- fitting the camera's range into the picture and shrinking the drawing to the picture's size.
#include "levelshot.h"

#include <algorithm>

void LevelShotFit(int pixelWidth, int pixelHeight, float scaleX, float scaleY, KRMtx33* pFit)
{
    const float rangeWidth = kLevelShotMaxX - kLevelShotMinX;
    const float rangeHeight = kLevelShotMaxY - kLevelShotMinY;
    // Pixels per world unit, the same both ways, then in the view's own units, which the stretch multiplies again.
    const float perUnit = std::min((float)pixelWidth / rangeWidth, (float)pixelHeight / rangeHeight);
    const float sx = perUnit / scaleX;
    const float sy = perUnit / scaleY;
    const float centreX = (kLevelShotMinX + kLevelShotMaxX) * 0.5f;
    const float centreY = (kLevelShotMinY + kLevelShotMaxY) * 0.5f;
    KRMtx33 scale, move;
    KRMtx33Scale(&scale, sx, sy);
    KRMtx33Trans(&move, -centreX * sx, -centreY * sy);
    KRMtx33Concat(pFit, &move, &scale);
}

std::vector<unsigned char> LevelShotShrink(const std::vector<unsigned char>& pixels, int width, int height,
                                           int factor)
{
    const int outWidth = width / factor, outHeight = height / factor;
    std::vector<unsigned char> out((size_t)outWidth * outHeight * 4);
    const int area = factor * factor;
    for (int y = 0; y < outHeight; ++y)
        for (int x = 0; x < outWidth; ++x)
            for (int c = 0; c < 4; ++c)
            {
                int sum = 0;
                for (int dy = 0; dy < factor; ++dy)
                    for (int dx = 0; dx < factor; ++dx)
                        sum += pixels[((size_t)(y * factor + dy) * width + (x * factor + dx)) * 4 + c];
                out[((size_t)y * outWidth + x) * 4 + c] = (unsigned char)((sum + area / 2) / area);
            }
    return out;
}
