// Debug drawing and bitmap fonts on a real context: lines from client memory, the axis, fonts in display lists,
// and text placed at world positions through the tripled viewport.
#include "DrawKit.h"
#include "KRGraphics.h"
#include "KRGraphicsInternal.h"
#include "KRSystem.h"
#include "TestEnv.h"

#include <GL/glew.h>
#include <gtest/gtest.h>

namespace {

int CountWhere(const std::vector<u32>& pixels, u32 rgb)
{
    int count = 0;
    for (u32 pixel : pixels)
        count += Rgb(pixel) == rgb;
    return count;
}

int CountLit(const std::vector<u32>& pixels)
{
    int count = 0;
    for (u32 pixel : pixels)
        count += Rgb(pixel) != 0;
    return count;
}

std::vector<float> Uniform(const char* name, int count)
{
    std::vector<float> values(16, -9.0f);
    GLuint program = gKRShader.mProgram[gKRShader.GetActive()];
    glGetUniformfv(program, glGetUniformLocation(program, name), values.data());
    values.resize((size_t)count);
    return values;
}

} // namespace

TEST(GraphicsDebug, ALineIsDrawnFromClientMemoryUnderTheColourProgram)
{
    StartGraphicsWindowed();
    BeginColourFrame();
    KRGfxLine(-100.0f, 0.5f, 0.0f, 1.0f, 0.0f, 0.0f, 1.0f, 100.0f, 0.5f, 0.0f, 1.0f, 0.0f, 0.0f, 1.0f);
    std::vector<u32> band = ReadRegion(280, 298, 240, 5);
    EXPECT_NEAR(CountWhere(band, 0xFF0000u), 200, 2) << "one row of 200 red pixels";
    EXPECT_EQ(Rgb(ReadPixel(400, 300)), 0xFF0000u);
    GLint bound = -1, enabled = 1;
    glGetIntegerv(GL_ARRAY_BUFFER_BINDING, &bound);
    glGetVertexAttribiv(0, GL_VERTEX_ATTRIB_ARRAY_ENABLED, &enabled);
    EXPECT_EQ(bound, 0);
    EXPECT_EQ(enabled, 0);
    KRGfxEnd();
    KRSysExit();
}

TEST(GraphicsDebug, ALineAfterAMeshDrawIsStillReadFromClientMemory)
{
    StartGraphicsWindowed();
    KRGfxVertexList* pMesh = MakeRectMesh(5.0f, 5.0f, 0xFF0000FFu);
    BeginColourFrame();
    KRGfxSetPosition(-300.0f, 0.0f);
    KRGfxMeshDraw(pMesh, KR_GFX_MDM_TRIANGLES);
    glBindBuffer(GL_ARRAY_BUFFER, pMesh->vbo[0]); // left bound by someone else
    KRGfxSetPosition(0.0f, 0.0f);
    KRGfxLine(-100.0f, 0.5f, 0.0f, 0.0f, 1.0f, 0.0f, 1.0f, 100.0f, 0.5f, 0.0f, 0.0f, 1.0f, 0.0f, 1.0f);
    EXPECT_EQ(Rgb(ReadPixel(400, 300)), 0x00FF00u);
    KRGfxEnd();
    KRGfxMeshFree(pMesh);
    KRSysExit();
}

TEST(GraphicsDebug, ALineDrawsNothingUnderTheTextureProgram)
{
    StartGraphicsWindowed();
    BeginTexturedFrame();
    KRGfxLine(-100.0f, 0.5f, 0.0f, 1.0f, 0.0f, 0.0f, 1.0f, 100.0f, 0.5f, 0.0f, 1.0f, 0.0f, 0.0f, 1.0f);
    EXPECT_EQ(CountLit(ReadRegion(0, 0, 799, 599)), 0);
    KRGfxEnd();
    EXPECT_EQ(glGetError(), (GLenum)GL_NO_ERROR);
    KRSysExit();
}

TEST(GraphicsDebug, TheAxisDrawsARedLineAlongXAndAGreenOneAlongY)
{
    StartGraphicsWindowed();
    // Half a unit off, so that lines along the axes run through pixel centres.
    KRGfxSetCamPosition(-0.5f, -0.5f);
    PresentEmptyFrame();
    BeginColourFrame();
    KRGfxAxis(100.0f);
    std::vector<u32> region = ReadRegion(300, 200, 200, 200);
    EXPECT_NEAR(CountWhere(region, 0xFF0000u), 80, 2) << "0.8 of the scale along x";
    EXPECT_NEAR(CountWhere(region, 0x00FF00u), 80, 2) << "and along y";
    EXPECT_EQ(Rgb(ReadPixel(400 + 40, 300)), 0xFF0000u);
    EXPECT_EQ(Rgb(ReadPixel(400, 300 + 40)), 0x00FF00u);
    KRGfxEnd();
    KRSysExit();
}

TEST(GraphicsDebug, CreatingAFontMakes96DisplayListsAndDestroyingItDeletesThem)
{
    StartGraphicsWindowed();
    u32 base = KRGfxCreateFont("Arial", 16, 0, 0);
    ASSERT_NE(base, 0u);
    for (u32 i = 0; i < 96; ++i)
        ASSERT_TRUE(glIsList(base + i)) << "list " << i;
    EXPECT_FALSE(glIsList(base + 96));
    KRGfxDestroyFont(base);
    for (u32 i = 0; i < 96; ++i)
        ASSERT_FALSE(glIsList(base + i)) << "list " << i;
    KRSysExit();
}

TEST(GraphicsDebug, PrintPutsVisibleTextOnTheScreenInItsColour)
{
    StartGraphicsWindowed();
    u32 base = KRGfxCreateFont("Arial", 24, 0, 0);
    BeginColourFrame();
    KRGfxPrint(base, "Quillon", -100, 0, 1.0f, 1.0f, 0.0f);
    // From x = -100 (pixel 300) rightward, from the baseline at y = 0 (row 300) up about 24 rows.
    std::vector<u32> text = ReadRegion(295, 292, 150, 40);
    int yellow = CountWhere(text, 0xFFFF00u);
    EXPECT_GT(yellow, 150) << "the letters are there";
    EXPECT_EQ(CountLit(text), yellow) << "in one colour";
    EXPECT_EQ(CountLit(ReadRegion(0, 0, 799, 599)), yellow) << "and nowhere else";
    KRGfxEnd();
    KRGfxDestroyFont(base);
    KRSysExit();
}

TEST(GraphicsDebug, PrintRestoresViewportViewAndBlendColour)
{
    StartGraphicsFullScreen(1920, 1080);
    u32 base = KRGfxCreateFont("Arial", 16, 0, 0);
    KRGfxSetCamPosition(25.0f, -40.0f);
    BeginColourFrame();
    std::vector<float> view = Uniform("uVMatrix", 16);
    KRGfxPrint(base, "text", 0, 0, 1.0f, 1.0f, 1.0f);
    EXPECT_EQ(Viewport(), std::vector<int>({0, 0, 1920, 1080}));
    std::vector<float> after = Uniform("uVMatrix", 16);
    for (int i = 0; i < 16; ++i)
        EXPECT_FLOAT_EQ(after[i], view[i]) << "element " << i;
    EXPECT_EQ(Uniform("uBlendColor", 4), std::vector<float>({0.0f, 0.0f, 0.0f, 0.0f}));
    EXPECT_EQ(Uniform("uWorldMatrix", 16), std::vector<float>({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}));
    KRGfxEnd();
    KRGfxDestroyFont(base);
    KRSysExit();
}

TEST(GraphicsDebug, PrintInFullScreenPlacesTextAtTheStretchedPosition)
{
    StartGraphicsFullScreen(1920, 1080);
    u32 base = KRGfxCreateFont("Arial", 24, 1, 0);
    BeginColourFrame();
    KRGfxPrint(base, "MMMM", 100, 100, 1.0f, 1.0f, 1.0f);
    // World (100, 100) is pixel (1200, 720); the letters are not stretched.
    std::vector<u32> near = ReadRegion(1195, 712, 120, 40);
    int lit = CountLit(near);
    EXPECT_GT(lit, 150);
    EXPECT_EQ(CountLit(ReadRegion(0, 0, 1920, 1080)), lit);
    KRGfxEnd();
    KRGfxDestroyFont(base);
    KRSysExit();
}

TEST(GraphicsDebug, TextStartingLeftOfTheScreenShowsItsVisiblePart)
{
    StartGraphicsWindowed();
    u32 base = KRGfxCreateFont("Arial", 24, 0, 0);
    BeginColourFrame();
    // The start lies 60 units left of the window; only the tripled viewport keeps the raster position valid.
    KRGfxPrint(base, "WWWWWWWWWWWW", -460, 0, 1.0f, 1.0f, 1.0f);
    EXPECT_GT(CountLit(ReadRegion(0, 292, 200, 40)), 150);
    KRGfxEnd();
    KRGfxDestroyFont(base);
    KRSysExit();
}

TEST(GraphicsDebug, TextFarOffTheScreenIsSkippedWithoutTouchingTheViewport)
{
    StartGraphicsWindowed();
    u32 base = KRGfxCreateFont("Arial", 24, 0, 0);
    BeginColourFrame();
    glViewport(0, 0, 10, 10);
    // The range: x from -399 - 800 to 399, y from -299 - 600 to 299.
    KRGfxPrint(base, "far", -1200, 0, 1.0f, 1.0f, 1.0f);
    KRGfxPrint(base, "far", 400, 0, 1.0f, 1.0f, 1.0f);
    KRGfxPrint(base, "far", 0, -900, 1.0f, 1.0f, 1.0f);
    KRGfxPrint(base, "far", 0, 300, 1.0f, 1.0f, 1.0f);
    KRGfxPrint(base, nullptr, 0, 0, 1.0f, 1.0f, 1.0f);
    EXPECT_EQ(Viewport(), std::vector<int>({0, 0, 10, 10})) << "skipped before anything was set";
    KRGfxPrint(base, "near", -1199, -899, 1.0f, 1.0f, 1.0f);
    EXPECT_EQ(Viewport(), std::vector<int>({0, 0, 800, 600})) << "the edge of the range still prints";
    KRGfxEnd();
    KRGfxDestroyFont(base);
    KRSysExit();
}

TEST(GraphicsDebug, PrintFillsItsFormatFromThePosition)
{
    StartGraphicsWindowed();
    u32 base = KRGfxCreateFont("DejaVu Sans Mono", 20, 0, 0);
    BeginColourFrame();
    KRGfxPrint(base, "%d", 37, 0, 1.0f, 1.0f, 1.0f);
    std::vector<u32> formatted = ReadRegion(430, 290, 60, 40);
    KRGfxEnd();
    BeginColourFrame();
    KRGfxPrint(base, "37", 37, 0, 1.0f, 1.0f, 1.0f);
    std::vector<u32> literal = ReadRegion(430, 290, 60, 40);
    KRGfxEnd();
    EXPECT_GT(CountLit(literal), 50);
    EXPECT_EQ(formatted, literal);
    KRGfxDestroyFont(base);
    KRSysExit();
}

TEST(GraphicsDebug, BoldTextIsHeavierAndItalicTextIsSlanted)
{
    StartGraphicsWindowed();
    u32 regular = KRGfxCreateFont("Arial", 24, 0, 0);
    u32 bold = KRGfxCreateFont("Arial", 24, 1, 0);
    u32 italic = KRGfxCreateFont("Arial", 24, 0, 1);
    BeginColourFrame();
    KRGfxPrint(regular, "IIII", -200, 100, 1.0f, 1.0f, 1.0f);
    KRGfxPrint(bold, "IIII", -200, 0, 1.0f, 1.0f, 1.0f);
    KRGfxPrint(italic, "IIII", -200, -100, 1.0f, 1.0f, 1.0f);
    std::vector<u32> regularPixels = ReadRegion(195, 395, 100, 35);
    std::vector<u32> boldPixels = ReadRegion(195, 295, 100, 35);
    std::vector<u32> italicPixels = ReadRegion(195, 195, 100, 35);
    KRGfxEnd();
    EXPECT_GT(CountLit(boldPixels), CountLit(regularPixels) * 5 / 4);
    // An upright I has the same columns in its top and bottom rows; a slanted one does not.
    auto leftmostInRow = [](const std::vector<u32>& pixels, int row) {
        for (int col = 0; col < 100; ++col)
            if (Rgb(pixels[row * 100 + col]) != 0)
                return col;
        return -1;
    };
    auto lowest = [&](const std::vector<u32>& pixels) {
        for (int row = 0; row < 35; ++row)
            if (leftmostInRow(pixels, row) >= 0)
                return row;
        return -1;
    };
    auto highest = [&](const std::vector<u32>& pixels) {
        for (int row = 34; row >= 0; --row)
            if (leftmostInRow(pixels, row) >= 0)
                return row;
        return -1;
    };
    int regularShift = leftmostInRow(regularPixels, highest(regularPixels)) -
                       leftmostInRow(regularPixels, lowest(regularPixels));
    int italicShift =
        leftmostInRow(italicPixels, highest(italicPixels)) - leftmostInRow(italicPixels, lowest(italicPixels));
    EXPECT_EQ(regularShift, 0);
    EXPECT_GE(italicShift, 3);
    KRGfxDestroyFont(regular);
    KRGfxDestroyFont(bold);
    KRGfxDestroyFont(italic);
    KRSysExit();
}
