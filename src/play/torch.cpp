// torch.cpp -- the aim of the torch from the pointer, and the camera clamp.
#include "torch.h"

#include "KRGraphics.h"
#include "KRInput.h"
#include "KRMath.h"
#include "KRVec2.h"
#include "playkeys.h"

#include <cmath>

static f32 Clamp(f32 value, f32 low, f32 high)
{
    return value < low ? low : (value > high ? high : value);
}

f32 TorchUpdate(GameObjInst* pTorch, const GameObjInst* pCharacter, u8 inverted)
{
    pTorch->posCurr = pCharacter->posCurr;

    // The point of the view where the character is drawn: a little left of and above the middle.
    int32_t mouseX, mouseY;
    KRInputGetCursorPosition(&mouseX, &mouseY);
    f32 mx = (f32)mouseX - 391.0f;
    f32 my = -((f32)mouseY - 280.0f);

    f32 camX, camY;
    KRGfxGetCamPosition(&camX, &camY);
    camX = Clamp(camX, TORCH_CAMERA_MIN_X, TORCH_CAMERA_MAX_X);
    camY = Clamp(camY, TORCH_CAMERA_MIN_Y, TORCH_CAMERA_MAX_Y);
    if (inverted)
    {
        my = -my;
        camY = -camY;
    }
    KRGfxSetCamPosition(camX, camY);
    // The engine's camera is the turned one; the arithmetic below stays in world terms.
    if (inverted)
        camY = -camY;

    // Mouse and world mixed on purpose: at a clamp the difference moves the aim to where the character is drawn.
    KRVec2 aim = {mx - pCharacter->posCurr.x + camX, my - pCharacter->posCurr.y + camY};
    KRVec2Normalize(&aim, &aim);
    const KRVec2 right = {1.0f, 0.0f};
    f32 angle = acosf(KRVec2DotProduct(&aim, &right)) * 180.0f / PLAY_PI;
    if (aim.y < 0.0f)
        angle = 360.0f - angle;
    if (inverted)
        angle = -angle;
    return angle;
}
