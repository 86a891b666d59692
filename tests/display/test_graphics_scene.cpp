// One whole scene as a Draw would make it: textured and coloured quads, blending, an added glow, a line and a line
// of text, saved as a screenshot for a person to look at ("graphics-scene.png" in the test output folder).
#include "DrawKit.h"
#include "KRGraphics.h"
#include "KRMtx33.h"
#include "KRSystem.h"
#include "TestEnv.h"

#include <gtest/gtest.h>

namespace {

// A sandstone checker of 8 by 8 texels with a dark frame.
std::vector<u32> CheckerPixels()
{
    std::vector<u32> pixels(64);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
        {
            bool frame = x == 0 || y == 0 || x == 7 || y == 7;
            pixels[y * 8 + x] = frame ? 0xFF3A2A14u : ((x + y) % 2 ? 0xFFD8B070u : 0xFFB08848u);
        }
    return pixels;
}

// A round spot fading out toward its edge, 16 by 16.
std::vector<u32> SpotPixels()
{
    std::vector<u32> pixels(256);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
        {
            float dx = (float)x - 7.5f, dy = (float)y - 7.5f;
            float fade = 1.0f - (dx * dx + dy * dy) / 64.0f;
            u32 alpha = fade > 0.0f ? (u32)(fade * 255.0f) : 0u;
            pixels[y * 16 + x] = (alpha << 24) | 0x00FFC040u;
        }
    return pixels;
}

void DrawMesh(KRGfxVertexList* pMesh, float x, float y, float angle, float scale)
{
    KRMtx33 rotate, scaled, move, rs, all;
    KRMtx33Rot(&rotate, angle);
    KRMtx33Scale(&scaled, scale, scale);
    KRMtx33Trans(&move, x, y);
    KRMtx33Concat(&rs, &rotate, &scaled);
    KRMtx33Concat(&all, &move, &rs);
    KRGfxSetTransform(&all);
    KRGfxMeshDraw(pMesh, KR_GFX_MDM_TRIANGLES);
}

} // namespace

TEST(GraphicsScene, ASceneOfTexturedAndColouredQuadsBlendingAndTextIsSavedAsAScreenshot)
{
    std::string folder = MakeTempDir("scene");
    ASSERT_TRUE(WritePng(folder + "/checker.png", 8, 8, CheckerPixels()));
    ASSERT_TRUE(WritePng(folder + "/spot.png", 16, 16, SpotPixels()));
    StartGraphicsWindowed();
    KRGfxTexture* pChecker = KRGfxTextureLoad((folder + "/checker.png").c_str());
    KRGfxTexture* pSpot = KRGfxTextureLoad((folder + "/spot.png").c_str());
    KRGfxVertexList* pQuad = MakeRectMesh(0.5f, 0.5f, 0xFFFFFFFFu);
    KRGfxVertexList* pRed = MakeRectMesh(0.5f, 0.5f, 0xFFC02020u);
    KRGfxVertexList* pTranslucentBlue = MakeRectMesh(0.5f, 0.5f, 0x802040E0u);
    KRGfxMeshStart();
    KRGfxTriAdd(-0.5f, -0.5f, 0xFFFF0000u, 0.0f, 0.0f, 0.5f, -0.5f, 0xFF00FF00u, 0.0f, 0.0f, 0.0f, 0.5f, 0xFF0000FFu,
                0.0f, 0.0f);
    KRGfxVertexList* pRainbow = KRGfxMeshEnd();
    u32 font = KRGfxCreateFont("Arial", 20, 1, 0);

    KRGfxSetBackgroundColor(0.08f, 0.05f, 0.03f);
    KRGfxSetCamPosition(50.0f, 0.0f);
    PresentEmptyFrame();

    KRGfxStart();
    KRGfxSetBlendMode(KR_GFX_BM_BLEND);
    KRGfxSetRenderMode(KR_GFX_RM_TEXTURE);
    KRGfxSetTintColor(1.0f, 1.0f, 1.0f, 1.0f);
    KRGfxSetTransparency(1.0f);
    KRGfxTextureSet(pChecker, 0.0f, 0.0f);
    DrawMesh(pQuad, -200.0f, 100.0f, 0.0f, 160.0f);
    KRGfxTextureSet(pChecker, 0.25f, 0.0f);
    DrawMesh(pQuad, 60.0f, 100.0f, 0.5f, 120.0f);
    KRGfxSetTintColor(0.6f, 0.8f, 1.0f, 0.5f);
    KRGfxTextureSet(pChecker, 0.0f, 0.0f);
    DrawMesh(pQuad, 300.0f, 100.0f, 0.0f, 120.0f);

    KRGfxSetRenderMode(KR_GFX_RM_COLOR);
    KRGfxSetTintColor(1.0f, 1.0f, 1.0f, 1.0f);
    KRGfxSetTransparency(1.0f);
    DrawMesh(pRed, -200.0f, -120.0f, 0.0f, 140.0f);
    DrawMesh(pTranslucentBlue, -140.0f, -160.0f, 0.0f, 140.0f);
    DrawMesh(pRainbow, 100.0f, -140.0f, 0.0f, 150.0f);
    KRGfxSetPosition(0.0f, 0.0f);
    KRGfxLine(-300.0f, -250.5f, 0.0f, 1.0f, 1.0f, 1.0f, 1.0f, 400.0f, -250.5f, 0.0f, 1.0f, 0.6f, 0.0f, 1.0f);
    // Bitmap text takes its alpha from the program's varying colour, which the raster position does not carry
    // here: it is drawn unblended.
    KRGfxSetBlendMode(KR_GFX_BM_NONE);
    KRGfxPrint(font, "Quillon on the Kestrel Runtime, text at %d, %d", -300, 230, 1.0f, 0.85f, 0.4f);

    KRGfxSetRenderMode(KR_GFX_RM_TEXTURE);
    KRGfxSetBlendMode(KR_GFX_BM_ADD);
    KRGfxSetTintColor(1.0f, 1.0f, 1.0f, 1.0f);
    KRGfxSetTransparency(1.0f);
    KRGfxTextureSet(pSpot, 0.0f, 0.0f);
    DrawMesh(pQuad, 320.0f, -140.0f, 0.0f, 160.0f);
    DrawMesh(pQuad, 370.0f, -110.0f, 0.0f, 120.0f);

    std::string shot = TestOutputDir() + "/graphics-scene.png";
    EXPECT_TRUE(SaveScreenshot(shot, 799, 599));
    // Camera at x 50: world x maps to pixel x + 350.
    EXPECT_EQ(Rgb(ReadPixel(-200 + 350 - 75, 100 + 300)), 0x3A2A14u) << "the checker's frame";
    EXPECT_EQ(Rgb(ReadPixel(-250 + 350, -80 + 300)), 0xC02020u) << "the red square where nothing covers it";
    u32 mixed = ReadPixel(-160 + 350, -140 + 300);
    EXPECT_NEAR(Red(mixed), (0xC0 + 0x20) / 2, 2) << "the translucent blue over the red";
    EXPECT_NEAR(Blue(mixed), (0x20 + 0xE0) / 2, 2);
    EXPECT_GT(Red(ReadPixel(320 + 350, -140 + 300)), 200) << "the added glow";
    int text = 0;
    for (u32 pixel : ReadRegion(-300 + 350, 230 + 300 - 4, 400, 28))
        text += Rgb(pixel) == 0xFFD966u;
    EXPECT_GT(text, 300) << "the line of text";
    KRGfxEnd();

    KRGfxDestroyFont(font);
    KRGfxMeshFree(pRainbow);
    KRGfxMeshFree(pTranslucentBlue);
    KRGfxMeshFree(pRed);
    KRGfxMeshFree(pQuad);
    KRGfxTextureUnload(pSpot);
    KRGfxTextureUnload(pChecker);
    KRSysExit();
}
