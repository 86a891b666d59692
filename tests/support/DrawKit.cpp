// DrawKit.cpp -- start-up on a real window, rectangles, PNG files and read-backs for the drawing tests.
#include "DrawKit.h"

#include "KRPlatformScripted.h"
#include "KRSystem.h"
#include "TestEnv.h"
#include "replayframe.h"

#include <GL/glew.h>
#include <gtest/gtest.h>

void StartGraphicsWindowed()
{
    KRPlatformUse(&gKRPlatformScripted);
    KRScriptReset();
    ASSERT_EQ(KRSysInit(nullptr, 1, 800, 600, 1, 60, nullptr), 1);
    KRGfxSetCamPosition(0.0f, 0.0f);
    KRGfxSetBackgroundColor(0.0f, 0.0f, 0.0f);
}

void StartGraphicsFullScreen(int screenWidth, int screenHeight)
{
    StartGraphicsWindowed();
    KRScriptSetScreenSize(screenWidth, screenHeight);
    KRToogleFullScreen(true);
    // The first frames after a resize may still be drawn at the old size.
    for (int frame = 0; frame < 2; ++frame)
    {
        KRSysUpdate();
        PresentEmptyFrame();
    }
}

void PresentEmptyFrame()
{
    KRGfxStart();
    KRGfxEnd();
}

KRGfxVertexList* MakeRectMesh(float halfWidth, float halfHeight, u32 color)
{
    KRGfxMeshStart();
    KRGfxTriAdd(-halfWidth, -halfHeight, color, 0.0f, 1.0f, halfWidth, -halfHeight, color, 1.0f, 1.0f, -halfWidth,
                halfHeight, color, 0.0f, 0.0f);
    KRGfxTriAdd(halfWidth, -halfHeight, color, 1.0f, 1.0f, halfWidth, halfHeight, color, 1.0f, 0.0f, -halfWidth,
                halfHeight, color, 0.0f, 0.0f);
    return KRGfxMeshEnd();
}

bool WritePng(const std::string& path, int width, int height, const std::vector<u32>& pixels)
{
    std::vector<unsigned char> rgba(pixels.size() * 4);
    for (size_t i = 0; i < pixels.size(); ++i)
    {
        rgba[i * 4 + 0] = (unsigned char)Red(pixels[i]);
        rgba[i * 4 + 1] = (unsigned char)Green(pixels[i]);
        rgba[i * 4 + 2] = (unsigned char)Blue(pixels[i]);
        rgba[i * 4 + 3] = (unsigned char)(pixels[i] >> 24);
    }
    return ReplayWritePng(path, width, height, rgba, PngPacking::kQuick);
}

std::vector<u32> ReadRegion(int x, int y, int width, int height)
{
    std::vector<unsigned char> rgba((size_t)width * height * 4);
    if (!FrameWasDrawn("ReadRegion"))
        return std::vector<u32>((size_t)width * height, 0);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadBuffer(GL_BACK);
    glReadPixels(x, y, width, height, GL_RGBA, GL_UNSIGNED_BYTE, rgba.data());
    std::vector<u32> pixels((size_t)width * height);
    for (size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = ((u32)rgba[i * 4 + 3] << 24) | ((u32)rgba[i * 4 + 0] << 16) | ((u32)rgba[i * 4 + 1] << 8) |
                    rgba[i * 4 + 2];
    return pixels;
}

static void BeginFrameIn(int32_t mode)
{
    KRGfxStart();
    KRGfxSetBlendMode(KR_GFX_BM_NONE);
    KRGfxSetRenderMode(mode);
    KRGfxSetTintColor(1.0f, 1.0f, 1.0f, 1.0f);
    KRGfxSetTransparency(1.0f);
    KRGfxSetPosition(0.0f, 0.0f);
}

void BeginTexturedFrame()
{
    BeginFrameIn(KR_GFX_RM_TEXTURE);
}

void BeginColourFrame()
{
    BeginFrameIn(KR_GFX_RM_COLOR);
}

std::vector<int> Viewport()
{
    std::vector<int> viewport(4, 0);
    glGetIntegerv(GL_VIEWPORT, viewport.data());
    return viewport;
}
