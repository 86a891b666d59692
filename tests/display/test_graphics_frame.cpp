// The graphics frame on a real context: the two programs, render modes, the camera's upload, window limits,
// world matrices, blend modes and the colour arithmetic of the shaders, read back from the framebuffer.
#include "DrawKit.h"
#include "KRGraphics.h"
#include "KRMtx33.h"
#include "KRPlatformScripted.h"
#include "KRSystem.h"
#include "TestEnv.h"

#include <GL/glew.h>
#include <cmath>
#include <gtest/gtest.h>

namespace {

// Draws a rectangle of one colour centred at (x, y) with the program that is active.
void DrawRect(float x, float y, float halfWidth, float halfHeight, u32 color)
{
    KRGfxVertexList* pMesh = MakeRectMesh(halfWidth, halfHeight, color);
    KRGfxSetPosition(x, y);
    KRGfxMeshDraw(pMesh, KR_GFX_MDM_TRIANGLES);
    KRGfxMeshFree(pMesh);
}

void StartColourFrame()
{
    KRGfxStart();
    KRGfxSetBlendMode(KR_GFX_BM_NONE);
    KRGfxSetRenderMode(KR_GFX_RM_COLOR);
    KRGfxSetTintColor(1.0f, 1.0f, 1.0f, 1.0f);
    KRGfxSetTransparency(1.0f);
}

KRGfxTexture* WhiteTexture()
{
    const unsigned char white[4] = {255, 255, 255, 255};
    return KRGfxTextureLoadFromMemory(white, 1, 1);
}

std::vector<float> UniformOf(u32 programIndex, const char* name, int count)
{
    std::vector<float> values(16, -99.0f);
    GLint location = glGetUniformLocation(gKRShader.mProgram[programIndex], name);
    glGetUniformfv(gKRShader.mProgram[programIndex], location, values.data());
    values.resize(count);
    return values;
}

} // namespace

TEST(GraphicsFrame, InitBuildsTheColourAndTextureProgramsWithTheirNames)
{
    StartGraphicsWindowed();
    EXPECT_EQ(gKRShader.mProgram[0], 0u) << "index 0 stays without a program";
    for (u32 index = 1; index <= 2; ++index)
    {
        GLint linked = 0, attached = 0;
        glGetProgramiv(gKRShader.mProgram[index], GL_LINK_STATUS, &linked);
        glGetProgramiv(gKRShader.mProgram[index], GL_ATTACHED_SHADERS, &attached);
        EXPECT_EQ(linked, GL_TRUE) << "program " << index;
        EXPECT_EQ(attached, 2) << "program " << index;
        KRGfxSetRenderMode((int32_t)index);
        for (const char* name : {"uPMatrix", "uVMatrix", "uWorldMatrix", "uBlendColor", "uTransparencyValue",
                                 "uTintColor"})
            EXPECT_GE(gKRShader.GetUniformLocation(name), 0) << name << " in program " << index;
        EXPECT_EQ(gKRShader.GetAttribLocation("aPosition"), 0) << "positions share attribute 0 with raster positions";
    }
    KRGfxSetRenderMode(KR_GFX_RM_COLOR);
    EXPECT_GE(gKRShader.GetAttribLocation("aColor"), 0);
    KRGfxSetRenderMode(KR_GFX_RM_TEXTURE);
    EXPECT_GE(gKRShader.GetAttribLocation("aTextureCoordinate"), 0);
    EXPECT_GE(gKRShader.GetUniformLocation("uTexture"), 0);
    EXPECT_GE(gKRShader.GetUniformLocation("uTextureOffset"), 0);
    KRSysExit();
}

TEST(GraphicsFrame, InitGivesOnlyTheColourProgramTintAndTransparencySoTexturesStartWithZeroTint)
{
    StartGraphicsWindowed();
    EXPECT_EQ(gKRShader.GetActive(), (u32)KR_GFX_RM_COLOR);
    EXPECT_EQ(UniformOf(1, "uTintColor", 4), std::vector<float>({1.0f, 1.0f, 1.0f, 1.0f}));
    EXPECT_EQ(UniformOf(1, "uTransparencyValue", 1), std::vector<float>({1.0f}));
    EXPECT_EQ(UniformOf(2, "uTintColor", 4), std::vector<float>({0.0f, 0.0f, 0.0f, 0.0f}));
    EXPECT_EQ(UniformOf(2, "uTransparencyValue", 1), std::vector<float>({0.0f}));
    EXPECT_EQ(UniformOf(1, "uBlendColor", 4), std::vector<float>({0.0f, 0.0f, 0.0f, 0.0f})) << "no blending";
    KRSysExit();
}

TEST(GraphicsFrame, UseGivesFalseForTheActiveIndexAndIndexZeroWorksAsUnuse)
{
    StartGraphicsWindowed();
    gKRShader.Unuse();
    EXPECT_TRUE(gKRShader.Use(2));
    EXPECT_FALSE(gKRShader.Use(2));
    GLint current = 0;
    glGetIntegerv(GL_CURRENT_PROGRAM, &current);
    EXPECT_EQ((u32)current, gKRShader.mProgram[2]);
    EXPECT_FALSE(gKRShader.Use(0));
    glGetIntegerv(GL_CURRENT_PROGRAM, &current);
    EXPECT_EQ(current, 0);
    EXPECT_EQ(gKRShader.GetActive(), 0u);
    EXPECT_EQ(gKRShader.GetUniformLocation("uTintColor"), -1) << "no program, no location";
    EXPECT_EQ(gKRShader.GetAttribLocation("aPosition"), -1);
    KRSysExit();
}

TEST(GraphicsFrame, RenderModeNoneLeavesNoProgramAndAnUnknownModeChangesNothing)
{
    StartGraphicsWindowed();
    KRGfxSetRenderMode(KR_GFX_RM_TEXTURE);
    KRGfxSetRenderMode(7);
    EXPECT_EQ(gKRShader.GetActive(), (u32)KR_GFX_RM_TEXTURE);
    KRGfxSetRenderMode(KR_GFX_RM_NONE);
    EXPECT_EQ(gKRShader.GetActive(), 0u);
    KRSysExit();
}

TEST(GraphicsFrame, TheFramesEndTakesTheProgramAwaySoTheFirstModeOfAFrameIsAChange)
{
    StartGraphicsWindowed();
    KRGfxStart();
    KRGfxSetRenderMode(KR_GFX_RM_COLOR);
    KRGfxEnd();
    EXPECT_EQ(gKRShader.GetActive(), 0u);
    GLint current = -1;
    glGetIntegerv(GL_CURRENT_PROGRAM, &current);
    EXPECT_EQ(current, 0);
    EXPECT_TRUE(gKRShader.Use(KR_GFX_RM_COLOR));
    KRSysExit();
}

TEST(GraphicsFrame, DestroyDeletesBothProgramsWithTheirShaders)
{
    StartGraphicsWindowed();
    PresentEmptyFrame(); // as at the game's end: no program in use
    GLuint programs[2] = {gKRShader.mProgram[1], gKRShader.mProgram[2]};
    GLuint shaders[2][3];
    GLsizei counts[2] = {0, 0};
    for (int i = 0; i < 2; ++i)
        glGetAttachedShaders(programs[i], 3, &counts[i], shaders[i]);
    gKRShader.Destroy();
    EXPECT_EQ(gKRShader.GetActive(), 0u);
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_FALSE(glIsProgram(programs[i]));
        ASSERT_EQ(counts[i], 2);
        for (int s = 0; s < counts[i]; ++s)
            EXPECT_FALSE(glIsShader(shaders[i][s]));
    }
    EXPECT_EQ(glGetError(), (GLenum)GL_NO_ERROR);
}

TEST(GraphicsFrame, WindowLimitsAreHalfTheLogicalSizeAroundTheCamera)
{
    StartGraphicsWindowed();
    EXPECT_EQ(KRGfxGetWinMinX(), -400.0f);
    EXPECT_EQ(KRGfxGetWinMaxX(), 400.0f);
    EXPECT_EQ(KRGfxGetWinMinY(), -300.0f);
    EXPECT_EQ(KRGfxGetWinMaxY(), 300.0f);
    KRGfxSetCamPosition(100.0f, -50.0f);
    EXPECT_EQ(KRGfxGetWinMinX(), -300.0f);
    EXPECT_EQ(KRGfxGetWinMaxX(), 500.0f);
    EXPECT_EQ(KRGfxGetWinMinY(), -350.0f);
    EXPECT_EQ(KRGfxGetWinMaxY(), 250.0f);
    float x = 0.0f, y = 0.0f;
    KRGfxGetCamPosition(&x, &y);
    EXPECT_EQ(x, 100.0f);
    EXPECT_EQ(y, -50.0f);
    KRSysExit();
}

TEST(GraphicsFrame, TexturedQuadOfKnownHalfSizeLandsOnTheExpectedPixelsBeforeAndAfterACameraMove)
{
    StartGraphicsWindowed();
    KRGfxTexture* pTexture = WhiteTexture();
    KRGfxVertexList* pMesh = MakeRectMesh(50.0f, 30.0f, 0xFFFFFFFFu);

    BeginTexturedFrame();
    KRGfxTextureSet(pTexture, 0.0f, 0.0f);
    KRGfxMeshDraw(pMesh, KR_GFX_MDM_TRIANGLES);
    // World -50..50 by -30..30 covers the pixels 350..449 by 270..329.
    std::vector<u32> region = ReadRegion(349, 269, 102, 62);
    for (int row = 0; row < 62; ++row)
        for (int col = 0; col < 102; ++col)
        {
            bool inside = row >= 1 && row <= 60 && col >= 1 && col <= 100;
            ASSERT_EQ(Rgb(region[row * 102 + col]), inside ? 0xFFFFFFu : 0u)
                << "pixel " << 349 + col << ", " << 269 + row;
        }
    KRGfxEnd();

    KRGfxSetCamPosition(120.0f, -40.0f);
    BeginTexturedFrame();
    KRGfxTextureSet(pTexture, 0.0f, 0.0f);
    KRGfxMeshDraw(pMesh, KR_GFX_MDM_TRIANGLES);
    // The quad moves the other way: left by 120 and up by 40.
    EXPECT_EQ(Rgb(ReadPixel(230, 310)), 0xFFFFFFu);
    EXPECT_EQ(Rgb(ReadPixel(329, 369)), 0xFFFFFFu);
    EXPECT_EQ(Rgb(ReadPixel(229, 310)), 0u);
    EXPECT_EQ(Rgb(ReadPixel(330, 310)), 0u);
    EXPECT_EQ(Rgb(ReadPixel(230, 309)), 0u);
    EXPECT_EQ(Rgb(ReadPixel(230, 370)), 0u);
    EXPECT_EQ(Rgb(ReadPixel(400, 300)), 0u) << "the old place is empty";
    KRGfxEnd();

    KRGfxMeshFree(pMesh);
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsFrame, WorldYGrowsUpward)
{
    StartGraphicsWindowed();
    StartColourFrame();
    DrawRect(0.0f, 200.0f, 10.0f, 10.0f, 0xFF00FF00u);
    EXPECT_EQ(Rgb(ReadPixel(400, 500)), 0x00FF00u) << "200 above the centre is 200 rows above the middle";
    EXPECT_EQ(Rgb(ReadPixel(400, 100)), 0u);
    KRGfxEnd();
    KRSysExit();
}

TEST(GraphicsFrame, CameraSetAfterTheFirstRenderModeMovesTheLimitsAtOnceButThePictureOnlyAtTheNextModeChange)
{
    StartGraphicsWindowed();
    StartColourFrame();
    KRGfxSetCamPosition(100.0f, 0.0f);
    EXPECT_EQ(KRGfxGetWinMinX(), -300.0f) << "the limits follow at once";
    DrawRect(0.0f, 0.0f, 10.0f, 10.0f, 0xFFFF0000u);
    EXPECT_EQ(Rgb(ReadPixel(400, 300)), 0xFF0000u) << "drawn with the camera of the mode change, at the origin";
    EXPECT_EQ(Rgb(ReadPixel(300, 300)), 0u);

    KRGfxSetRenderMode(KR_GFX_RM_COLOR);
    DrawRect(0.0f, 100.0f, 10.0f, 10.0f, 0xFF00FF00u);
    EXPECT_EQ(Rgb(ReadPixel(400, 400)), 0x00FF00u) << "the same mode again is no change";

    KRGfxSetRenderMode(KR_GFX_RM_TEXTURE);
    KRGfxSetRenderMode(KR_GFX_RM_COLOR);
    DrawRect(0.0f, -100.0f, 10.0f, 10.0f, 0xFF0000FFu);
    EXPECT_EQ(Rgb(ReadPixel(300, 200)), 0x0000FFu) << "a change of mode brings the camera";
    EXPECT_EQ(Rgb(ReadPixel(400, 200)), 0u);
    KRGfxEnd();

    StartColourFrame();
    DrawRect(0.0f, 0.0f, 10.0f, 10.0f, 0xFFFFFFFFu);
    EXPECT_EQ(Rgb(ReadPixel(300, 300)), 0xFFFFFFu) << "the next frame sees the camera from its first mode";
    KRGfxEnd();
    KRSysExit();
}

TEST(GraphicsFrame, AFrameWithoutRenderModeClearsAndPresentsNothingAtTheSmallViewport)
{
    StartGraphicsFullScreen(1920, 1080);
    KRGfxSetBackgroundColor(0.0f, 0.0f, 1.0f);
    StartColourFrame();
    DrawRect(0.0f, 0.0f, 100.0f, 100.0f, 0xFFFF0000u);
    KRGfxEnd();

    KRGfxStart();
    EXPECT_EQ(Viewport(), std::vector<int>({0, 0, 800, 600})) << "the logical size, although full screen";
    std::vector<u32> screen = ReadRegion(0, 0, 1920, 1080);
    int others = 0;
    for (u32 pixel : screen)
        others += Rgb(pixel) != 0x0000FFu;
    EXPECT_EQ(others, 0) << "the whole screen is cleared to the background";
    KRGfxEnd();
    EXPECT_EQ(glGetError(), (GLenum)GL_NO_ERROR);
    KRSysExit();
}

TEST(GraphicsFrame, SettingTheSameRenderModeTwiceCostsNothingAndLeavesTheMatrices)
{
    StartGraphicsWindowed();
    StartColourFrame();
    std::vector<float> view = UniformOf(1, "uVMatrix", 16);
    std::vector<float> projection = UniformOf(1, "uPMatrix", 16);
    glViewport(0, 0, 10, 10);
    KRGfxSetCamPosition(50.0f, 70.0f);
    KRGfxSetRenderMode(KR_GFX_RM_COLOR);
    EXPECT_EQ(UniformOf(1, "uVMatrix", 16), view);
    EXPECT_EQ(UniformOf(1, "uPMatrix", 16), projection);
    EXPECT_EQ(Viewport(), std::vector<int>({0, 0, 10, 10})) << "no viewport was set";
    KRGfxEnd();
    KRSysExit();
}

TEST(GraphicsFrame, ProjectionAndViewAreTheOrthographicViewAndTheCameraLookingDown)
{
    StartGraphicsWindowed();
    PresentEmptyFrame();
    KRGfxSetCamPosition(10.0f, 20.0f);
    StartColourFrame();
    std::vector<float> p = UniformOf(1, "uPMatrix", 16);
    std::vector<float> v = UniformOf(1, "uVMatrix", 16);
    // Column-major as OpenGL holds them.
    EXPECT_FLOAT_EQ(p[0], 2.0f / 800.0f);
    EXPECT_FLOAT_EQ(p[5], 2.0f / 600.0f);
    EXPECT_FLOAT_EQ(p[10], -2.0f / 999.0f);
    EXPECT_FLOAT_EQ(p[14], -1001.0f / 999.0f);
    EXPECT_FLOAT_EQ(p[15], 1.0f);
    EXPECT_FLOAT_EQ(v[0], 1.0f);
    EXPECT_FLOAT_EQ(v[5], 1.0f);
    EXPECT_FLOAT_EQ(v[10], 1.0f);
    EXPECT_FLOAT_EQ(v[12], -10.0f);
    EXPECT_FLOAT_EQ(v[13], -20.0f);
    EXPECT_FLOAT_EQ(v[14], -60.0f) << "the camera stands 60 above the world";
    KRGfxEnd();
    KRSysExit();
}

TEST(GraphicsFrame, FullScreenViewIsStretchedByTheScalesAfterTheCamerasTranslation)
{
    StartGraphicsFullScreen(1920, 1080);
    KRGfxSetCamPosition(10.0f, 20.0f);
    StartColourFrame();
    EXPECT_EQ(Viewport(), std::vector<int>({0, 0, 1920, 1080}));
    std::vector<float> p = UniformOf(1, "uPMatrix", 16);
    std::vector<float> v = UniformOf(1, "uVMatrix", 16);
    EXPECT_FLOAT_EQ(p[0], 2.0f / 1920.0f);
    EXPECT_FLOAT_EQ(p[5], 2.0f / 1080.0f);
    EXPECT_FLOAT_EQ(v[0], 2.4f);
    EXPECT_FLOAT_EQ(v[5], 1.8f);
    EXPECT_FLOAT_EQ(v[12], -10.0f * 2.4f);
    EXPECT_FLOAT_EQ(v[13], -20.0f * 1.8f);
    KRGfxEnd();
    KRSysExit();
}

TEST(GraphicsFrame, FullScreenStretchesTheSamePictureOverTheWholeScreen)
{
    StartGraphicsWindowed();
    const unsigned char checker[16] = {255, 0, 0, 255, 0, 255, 0, 255, 0, 0, 255, 255, 255, 255, 0, 255};
    KRGfxTexture* pTexture = KRGfxTextureLoadFromMemory(checker, 2, 2);
    KRGfxVertexList* pQuad = MakeRectMesh(120.0f, 80.0f, 0xFFFFFFFFu);
    KRGfxSetCamPosition(30.0f, -20.0f);
    PresentEmptyFrame();
    auto drawScene = [&]() {
        StartColourFrame();
        DrawRect(-250.0f, 150.0f, 60.0f, 40.0f, 0xFFFF8000u);
        DrawRect(300.0f, -200.0f, 50.0f, 50.0f, 0xFF00A0FFu);
        KRGfxSetRenderMode(KR_GFX_RM_TEXTURE);
        KRGfxSetTintColor(1.0f, 1.0f, 1.0f, 1.0f);
        KRGfxSetTransparency(1.0f);
        KRGfxTextureSet(pTexture, 0.0f, 0.0f);
        KRGfxSetPosition(0.0f, 0.0f);
        KRGfxMeshDraw(pQuad, KR_GFX_MDM_TRIANGLES);
    };

    drawScene();
    std::vector<u32> windowed = ReadRegion(0, 0, 799, 599);
    KRGfxEnd();

    KRScriptSetScreenSize(1920, 1080);
    KRToogleFullScreen(true);
    for (int frame = 0; frame < 2; ++frame)
    {
        KRSysUpdate();
        KRGfxStart();
        KRGfxEnd();
    }
    drawScene();
    std::vector<u32> full = ReadRegion(0, 0, 1920, 1080);
    KRGfxEnd();

    // Every logical pixel's centre, stretched by 2.4 and 1.8, shows what the window showed there; pixels on an edge
    // of a shape may round either way and are left out.
    int compared = 0, differing = 0, lit = 0;
    for (int y = 1; y < 598; ++y)
        for (int x = 1; x < 798; ++x)
        {
            u32 here = Rgb(windowed[y * 799 + x]);
            bool edge = Rgb(windowed[y * 799 + x - 1]) != here || Rgb(windowed[y * 799 + x + 1]) != here ||
                        Rgb(windowed[(y - 1) * 799 + x]) != here || Rgb(windowed[(y + 1) * 799 + x]) != here;
            if (edge)
                continue;
            int fx = (int)((x + 0.5f) * 2.4f), fy = (int)((y + 0.5f) * 1.8f);
            ++compared;
            lit += here != 0;
            differing += Rgb(full[fy * 1920 + fx]) != here;
        }
    EXPECT_GT(lit, 20000) << "the scene has something in it";
    EXPECT_EQ(differing, 0) << "of " << compared << " pixels compared";
    KRGfxMeshFree(pQuad);
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsFrame, BlendModeNoneWritesTheSourceColourWhateverItsAlpha)
{
    StartGraphicsWindowed();
    KRGfxSetBackgroundColor(0.25f, 0.25f, 0.25f);
    StartColourFrame();
    KRGfxSetBlendMode(KR_GFX_BM_NONE);
    DrawRect(0.0f, 0.0f, 10.0f, 10.0f, 0x80FFFFFFu);
    EXPECT_EQ(Rgb(ReadPixel(400, 300)), 0xFFFFFFu);
    EXPECT_EQ(Rgb(ReadPixel(100, 100)), 0x404040u);
    KRGfxEnd();
    KRSysExit();
}

TEST(GraphicsFrame, BlendModeBlendMixesTheSourceOverTheFrameByItsAlpha)
{
    StartGraphicsWindowed();
    KRGfxSetBackgroundColor(0.25f, 0.25f, 0.25f);
    StartColourFrame();
    KRGfxSetBlendMode(KR_GFX_BM_BLEND);
    DrawRect(0.0f, 0.0f, 10.0f, 10.0f, 0x80FFFFFFu);
    u32 pixel = ReadPixel(400, 300);
    // 128/255 of white and 127/255 of 64.
    EXPECT_NEAR(Red(pixel), 160, 2);
    EXPECT_NEAR(Green(pixel), 160, 2);
    EXPECT_NEAR(Blue(pixel), 160, 2);
    KRGfxEnd();
    KRSysExit();
}

TEST(GraphicsFrame, BlendModeAddAddsTheSourceTimesItsAlphaToTheFrame)
{
    StartGraphicsWindowed();
    KRGfxSetBackgroundColor(0.25f, 0.25f, 0.25f);
    StartColourFrame();
    KRGfxSetBlendMode(KR_GFX_BM_ADD);
    DrawRect(0.0f, 0.0f, 10.0f, 10.0f, 0x80FFFFFFu);
    u32 pixel = ReadPixel(400, 300);
    EXPECT_NEAR(Red(pixel), 64 + 128, 2);
    EXPECT_NEAR(Blue(pixel), 64 + 128, 2);
    GLint source = 0, destination = 0;
    glGetIntegerv(GL_BLEND_SRC_RGB, &source);
    glGetIntegerv(GL_BLEND_DST_RGB, &destination);
    EXPECT_EQ(source, GL_SRC_ALPHA);
    EXPECT_EQ(destination, GL_ONE);
    KRGfxEnd();
    KRSysExit();
}

TEST(GraphicsFrame, AnUnknownBlendModeLeavesBlendingAsItWasAcrossFrames)
{
    StartGraphicsWindowed();
    KRGfxSetBlendMode(KR_GFX_BM_BLEND);
    KRGfxStart();
    KRGfxEnd();
    KRGfxSetBlendMode(3);
    EXPECT_TRUE(glIsEnabled(GL_BLEND)) << "blending is OpenGL state and carries over";
    GLint destination = 0;
    glGetIntegerv(GL_BLEND_DST_RGB, &destination);
    EXPECT_EQ(destination, GL_ONE_MINUS_SRC_ALPHA);
    KRGfxSetBlendMode(KR_GFX_BM_NONE);
    EXPECT_FALSE(glIsEnabled(GL_BLEND));
    KRSysExit();
}

TEST(GraphicsFrame, TransparencyZeroWithBlendingMakesAnObjectInvisibleWhileItIsStillDrawn)
{
    StartGraphicsWindowed();
    KRGfxSetBackgroundColor(0.0f, 0.0f, 0.5f);
    StartColourFrame();
    KRGfxSetBlendMode(KR_GFX_BM_BLEND);
    KRGfxSetTransparency(0.0f);
    GLuint query = 0;
    glGenQueries(1, &query);
    glBeginQuery(GL_SAMPLES_PASSED, query);
    DrawRect(0.0f, 0.0f, 20.0f, 20.0f, 0xFFFFFF00u);
    glEndQuery(GL_SAMPLES_PASSED);
    GLuint samples = 0;
    glGetQueryObjectuiv(query, GL_QUERY_RESULT, &samples);
    glDeleteQueries(1, &query);
    EXPECT_EQ(samples, 40u * 40u) << "every fragment of the object was drawn";
    EXPECT_EQ(Rgb(ReadPixel(400, 300)), 0x000080u) << "and none of them shows";
    KRGfxEnd();
    KRSysExit();
}

TEST(GraphicsFrame, TintAlphaHalfHalvesTheAlphaAsTransparencyHalfDoesAndBothTogetherGiveAQuarter)
{
    StartGraphicsWindowed();
    KRGfxTexture* pTexture = WhiteTexture();
    BeginTexturedFrame();
    KRGfxSetBlendMode(KR_GFX_BM_BLEND);
    KRGfxTextureSet(pTexture, 0.0f, 0.0f);

    KRGfxSetTintColor(1.0f, 1.0f, 1.0f, 0.5f);
    DrawRect(-200.0f, 0.0f, 10.0f, 10.0f, 0xFFFFFFFFu);
    KRGfxSetTintColor(1.0f, 1.0f, 1.0f, 1.0f);
    KRGfxSetTransparency(0.5f);
    DrawRect(0.0f, 0.0f, 10.0f, 10.0f, 0xFFFFFFFFu);
    KRGfxSetTintColor(1.0f, 1.0f, 1.0f, 0.5f);
    DrawRect(200.0f, 0.0f, 10.0f, 10.0f, 0xFFFFFFFFu);

    EXPECT_NEAR(Red(ReadPixel(200, 300)), 128, 1) << "tint alpha 0.5";
    EXPECT_NEAR(Red(ReadPixel(400, 300)), 128, 1) << "transparency 0.5";
    EXPECT_NEAR(Red(ReadPixel(600, 300)), 64, 1) << "both";
    KRGfxEnd();
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsFrame, TintMultipliesEachColourChannel)
{
    StartGraphicsWindowed();
    StartColourFrame();
    KRGfxSetTintColor(0.5f, 1.0f, 0.0f, 1.0f);
    DrawRect(0.0f, 0.0f, 10.0f, 10.0f, 0xFFFFFFFFu);
    u32 pixel = ReadPixel(400, 300);
    EXPECT_NEAR(Red(pixel), 128, 1);
    EXPECT_EQ(Green(pixel), 255);
    EXPECT_EQ(Blue(pixel), 0);
    KRGfxEnd();
    KRSysExit();
}

TEST(GraphicsFrame, BlendColourMixesTowardItsColourByItsOwnAlphaBeforeTheTint)
{
    StartGraphicsWindowed();
    StartColourFrame();
    KRGfxSetBlendColor(0.0f, 0.0f, 1.0f, 0.5f);
    DrawRect(-100.0f, 0.0f, 10.0f, 10.0f, 0xFFFF0000u);
    KRGfxSetTintColor(1.0f, 1.0f, 0.5f, 1.0f);
    DrawRect(100.0f, 0.0f, 10.0f, 10.0f, 0xFFFF0000u);
    KRGfxSetBlendColor(0.0f, 0.0f, 0.0f, 0.0f);
    u32 mixed = ReadPixel(300, 300), tinted = ReadPixel(500, 300);
    EXPECT_NEAR(Red(mixed), 128, 1);
    EXPECT_EQ(Green(mixed), 0);
    EXPECT_NEAR(Blue(mixed), 128, 1);
    EXPECT_NEAR(Red(tinted), 128, 1);
    EXPECT_NEAR(Blue(tinted), 64, 1);
    KRGfxEnd();
    KRSysExit();
}

TEST(GraphicsFrame, UniformsSetUnderOneModeDoNotReachTheOtherProgram)
{
    StartGraphicsWindowed();
    KRGfxSetRenderMode(KR_GFX_RM_TEXTURE);
    KRGfxSetTintColor(0.1f, 0.2f, 0.3f, 0.4f);
    KRGfxSetTransparency(0.6f);
    KRGfxSetRenderMode(KR_GFX_RM_COLOR);
    EXPECT_EQ(UniformOf(1, "uTintColor", 4), std::vector<float>({1.0f, 1.0f, 1.0f, 1.0f}));
    EXPECT_EQ(UniformOf(1, "uTransparencyValue", 1), std::vector<float>({1.0f}));
    EXPECT_EQ(UniformOf(2, "uTintColor", 4), std::vector<float>({0.1f, 0.2f, 0.3f, 0.4f}));
    EXPECT_EQ(UniformOf(2, "uTransparencyValue", 1), std::vector<float>({0.6f}));
    KRSysExit();
}

TEST(GraphicsFrame, WorldMatricesAreUploadedInOpenGLColumnOrder)
{
    StartGraphicsWindowed();
    KRGfxSetRenderMode(KR_GFX_RM_COLOR);

    KRGfxSetPosition(3.0f, 4.0f);
    EXPECT_EQ(UniformOf(1, "uWorldMatrix", 16),
              std::vector<float>({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 3, 4, 0, 1}));

    KRMtx33 m = {{{1.0f, 2.0f, 3.0f}, {4.0f, 5.0f, 6.0f}, {7.0f, 8.0f, 9.0f}}};
    KRGfxSetTransform(&m);
    EXPECT_EQ(UniformOf(1, "uWorldMatrix", 16),
              std::vector<float>({1, 4, 0, 0, 2, 5, 0, 0, 0, 0, 1, 0, 3, 6, 0, 1}))
        << "the third row of the 3 by 3 matrix is not used";

    const f32 full[4][4] = {{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}, {13, 14, 15, 16}};
    KRGfxSetTransform3D(full);
    EXPECT_EQ(UniformOf(1, "uWorldMatrix", 16),
              std::vector<float>({1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15, 4, 8, 12, 16}));
    KRSysExit();
}

TEST(GraphicsFrame, ATransformScalesAndMovesTheMesh)
{
    StartGraphicsWindowed();
    StartColourFrame();
    KRGfxVertexList* pMesh = MakeRectMesh(10.0f, 10.0f, 0xFFFFFFFFu);
    KRMtx33 scale, move, both;
    KRMtx33Scale(&scale, 3.0f, 2.0f);
    KRMtx33Trans(&move, 100.0f, -50.0f);
    KRMtx33Concat(&both, &move, &scale);
    KRGfxSetTransform(&both);
    KRGfxMeshDraw(pMesh, KR_GFX_MDM_TRIANGLES);
    // x from 70 to 130, y from -70 to -30.
    EXPECT_EQ(Rgb(ReadPixel(470, 230)), 0xFFFFFFu);
    EXPECT_EQ(Rgb(ReadPixel(529, 269)), 0xFFFFFFu);
    EXPECT_EQ(Rgb(ReadPixel(469, 250)), 0u);
    EXPECT_EQ(Rgb(ReadPixel(530, 250)), 0u);
    EXPECT_EQ(Rgb(ReadPixel(500, 229)), 0u);
    EXPECT_EQ(Rgb(ReadPixel(500, 270)), 0u);
    KRGfxEnd();
    KRGfxMeshFree(pMesh);
    KRSysExit();
}
