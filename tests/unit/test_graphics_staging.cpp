// The graphics rules that need no context: the vertex staging and its debug writers, the colour step, the text of
// KRGfxPrint, the font files that face names stand for, the window limits and the shader texts.
#include "KRGraphics.h"
#include "KRGraphicsInternal.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

const KRGfxVertex kSentinel = {-7.0f, -7.0f, -7.0f, 0x12345678u, -7.0f, -7.0f};

void FillStaging()
{
    for (KRGfxVertex& vertex : gKRVertexStaging)
        vertex = kSentinel;
}

bool IsSentinel(const KRGfxVertex& vertex)
{
    return std::memcmp(&vertex, &kSentinel, sizeof(vertex)) == 0;
}

int WrittenCount()
{
    int count = 0;
    while (count < KR_GFX_VERTEX_MAX && !IsSentinel(gKRVertexStaging[count]))
        ++count;
    return count;
}

std::string PrintText(const char* format, int32_t x, int32_t y, float r = 0.0f, float g = 0.0f, float b = 0.0f)
{
    char text[256];
    KRGfxFormatPrintText(text, format, x, y, r, g, b);
    return text;
}

} // namespace

TEST(GraphicsColours, InterpolatingHalfwayFromBlackToWhiteGivesBlack)
{
    EXPECT_EQ(KRGfxColInterp(0xFF000000u, 0xFFFFFFFFu, 0.5f), 0xFF000000u);
    EXPECT_EQ(KRGfxColInterp(0xFF000000u, 0xFFFFFFFFu, 0.999f), 0xFF000000u);
}

TEST(GraphicsColours, InterpolatingAtOneOrBeyondGivesTheSecondColour)
{
    EXPECT_EQ(KRGfxColInterp(0x10203040u, 0xA0B0C0D0u, 7.0f), 0xA0B0C0D0u);
    EXPECT_EQ(KRGfxColInterp(0x10203040u, 0xA0B0C0D0u, 1.0f), 0xA0B0C0D0u);
    EXPECT_EQ(KRGfxColInterp(0xA0B0C0D0u, 0x10203040u, 1.0f), 0x10203040u) << "downward channels too";
}

TEST(GraphicsColours, InterpolatingBelowZeroGivesTheFirstColour)
{
    EXPECT_EQ(KRGfxColInterp(0x10203040u, 0xA0B0C0D0u, -3.0f), 0x10203040u);
}

TEST(GraphicsStaging, VerticesAreStagedWithZeroDepthAndCounted)
{
    KRGfxReset();
    KRGfxMeshStart();
    KRGfxVertexAdd(1.0f, 2.0f, 0xFF00FF00u, 0.25f, 0.75f);
    KRGfxTriAdd(3.0f, 4.0f, 1u, 0.0f, 0.0f, 5.0f, 6.0f, 2u, 0.0f, 0.0f, 7.0f, 8.0f, 3u, 1.0f, 1.0f);
    EXPECT_EQ(gKRVertexNum, 4u);
    EXPECT_EQ(gKRMeshBuilding, 1);
    const KRGfxVertex& first = gKRVertexStaging[0];
    EXPECT_EQ(first.x, 1.0f);
    EXPECT_EQ(first.y, 2.0f);
    EXPECT_EQ(first.z, 0.0f);
    EXPECT_EQ(first.color, 0xFF00FF00u);
    EXPECT_EQ(first.u, 0.25f);
    EXPECT_EQ(first.v, 0.75f);
    EXPECT_EQ(gKRVertexStaging[3].x, 7.0f);
    EXPECT_EQ(gKRVertexStaging[3].color, 3u);
    KRGfxReset();
    EXPECT_EQ(gKRVertexNum, 0u);
}

TEST(GraphicsStaging, APointDuringMeshBuildingReplacesTheFirstStagedVertexAndLeavesTheCount)
{
    KRGfxReset();
    KRGfxMeshStart();
    KRGfxVertexAdd(1.0f, 1.0f, 0xFFFFFFFFu, 0.5f, 0.5f);
    KRGfxVertexAdd(2.0f, 2.0f, 0xFFFFFFFFu, 0.5f, 0.5f);
    KRGfxPoint(9.0f, 8.0f, 7.0f, 0xFF0000FFu);
    EXPECT_EQ(gKRVertexNum, 2u);
    EXPECT_EQ(gKRVertexStaging[0].x, 9.0f);
    EXPECT_EQ(gKRVertexStaging[0].y, 8.0f);
    EXPECT_EQ(gKRVertexStaging[0].z, 7.0f);
    EXPECT_EQ(gKRVertexStaging[0].color, 0xFF0000FFu);
    EXPECT_EQ(gKRVertexStaging[1].x, 2.0f);
    KRGfxReset();
}

TEST(GraphicsStaging, ATriangleWritesTheFirstThreeEntries)
{
    FillStaging();
    KRGfxReset();
    KRGfxTri(1, 2, 3, 10u, 4, 5, 6, 11u, 7, 8, 9, 12u);
    EXPECT_EQ(WrittenCount(), 3);
    EXPECT_EQ(gKRVertexStaging[2].z, 9.0f);
    EXPECT_EQ(gKRVertexStaging[2].color, 12u);
    EXPECT_EQ(gKRVertexNum, 0u);
}

TEST(GraphicsStaging, AQuadWritesFourEntriesWithTheThirdAndFourthCornersSwapped)
{
    FillStaging();
    KRGfxQuad(0, 0, 0, 1u, 1, 0, 0, 2u, 1, 1, 0, 3u, 0, 1, 0, 4u);
    EXPECT_EQ(WrittenCount(), 4);
    EXPECT_EQ(gKRVertexStaging[0].color, 1u);
    EXPECT_EQ(gKRVertexStaging[1].color, 2u);
    EXPECT_EQ(gKRVertexStaging[2].color, 4u);
    EXPECT_EQ(gKRVertexStaging[3].color, 3u);
    EXPECT_EQ(gKRVertexStaging[2].x, 0.0f);
    EXPECT_EQ(gKRVertexStaging[2].y, 1.0f);
}

TEST(GraphicsStaging, ABoxWritesItsEdgesIntoTheFirstEightEntriesTwiceOver)
{
    FillStaging();
    KRGfxBox(10.0f, 20.0f, 30.0f, 2.0f, 4.0f, 6.0f, 0xFF111111u, 0xFF222222u);
    EXPECT_EQ(WrittenCount(), 8);
    for (int i = 0; i < 8; ++i)
    {
        const KRGfxVertex& vertex = gKRVertexStaging[i];
        EXPECT_EQ(vertex.color, 0xFF222222u) << "the second pass wrote last";
        EXPECT_EQ(vertex.z, 33.0f);
        EXPECT_TRUE(vertex.x == 9.0f || vertex.x == 11.0f);
        EXPECT_TRUE(vertex.y == 18.0f || vertex.y == 22.0f);
    }
    // Pairs of ends: each edge runs between neighbouring corners.
    for (int edge = 0; edge < 4; ++edge)
    {
        const KRGfxVertex& a = gKRVertexStaging[edge * 2];
        const KRGfxVertex& b = gKRVertexStaging[edge * 2 + 1];
        EXPECT_EQ((a.x != b.x) + (a.y != b.y), 1) << "edge " << edge;
    }
}

TEST(GraphicsStaging, ASphereWithMoreThan32SlicesIsDrawnWith32)
{
    FillStaging();
    KRGfxSphere(1.0f, 2.0f, 3.0f, 5.0f, 0xFF000000u, 0xFFFFFFFFu, 32);
    int count32 = WrittenCount();
    std::vector<KRGfxVertex> with32(gKRVertexStaging, gKRVertexStaging + count32);
    FillStaging();
    KRGfxSphere(1.0f, 2.0f, 3.0f, 5.0f, 0xFF000000u, 0xFFFFFFFFu, 100);
    EXPECT_GT(count32, 0);
    ASSERT_EQ(WrittenCount(), count32);
    EXPECT_EQ(std::memcmp(with32.data(), gKRVertexStaging, with32.size() * sizeof(KRGfxVertex)), 0);
}

TEST(GraphicsStaging, ASphereWithFewerThan4SlicesIsDrawnWith4)
{
    FillStaging();
    KRGfxSphere(0.0f, 0.0f, 0.0f, 1.0f, 0xFF000000u, 0xFFFFFFFFu, 4);
    int count4 = WrittenCount();
    std::vector<KRGfxVertex> with4(gKRVertexStaging, gKRVertexStaging + count4);
    FillStaging();
    KRGfxSphere(0.0f, 0.0f, 0.0f, 1.0f, 0xFF000000u, 0xFFFFFFFFu, 1);
    EXPECT_GT(count4, 0);
    ASSERT_EQ(WrittenCount(), count4);
    EXPECT_EQ(std::memcmp(with4.data(), gKRVertexStaging, with4.size() * sizeof(KRGfxVertex)), 0);
    FillStaging();
    KRGfxSphere(0.0f, 0.0f, 0.0f, 1.0f, 0xFF000000u, 0xFFFFFFFFu, 8);
    EXPECT_GT(WrittenCount(), count4) << "more slices, more vertices";
}

TEST(GraphicsStaging, ASpherePutsItsVerticesOnItsSurfaceAndLeavesTheCount)
{
    FillStaging();
    KRGfxReset();
    KRGfxSphere(1.0f, 2.0f, 3.0f, 5.0f, 0xFF000000u, 0xFFFFFFFFu, 16);
    int count = WrittenCount();
    for (int i = 0; i < count; ++i)
    {
        const KRGfxVertex& v = gKRVertexStaging[i];
        float distance = std::sqrt((v.x - 1.0f) * (v.x - 1.0f) + (v.y - 2.0f) * (v.y - 2.0f) +
                                   (v.z - 3.0f) * (v.z - 3.0f));
        ASSERT_NEAR(distance, 5.0f, 1e-4f) << "vertex " << i;
    }
    EXPECT_EQ(gKRVertexNum, 0u);
}

TEST(GraphicsStaging, AConeWritesNothing)
{
    FillStaging();
    KRGfxCone(1.0f, 2.0f, 3.0f, 0.0f, 1.0f, 0.0f, 1.0f, 0xFFFFFFFFu);
    EXPECT_EQ(WrittenCount(), 0);
}

TEST(GraphicsPrintText, ConversionsTakeXAndYAsTheirValues)
{
    EXPECT_EQ(PrintText("score %d of %d", 12, -5), "score 12 of -5");
    EXPECT_EQ(PrintText("%4d|%-3d|%x", 7, 255), "   7|255|0");
    EXPECT_EQ(PrintText("plain text", 1, 2), "plain text");
    EXPECT_EQ(PrintText("100%%", 1, 2), "100%");
}

TEST(GraphicsPrintText, ConversionsPastTheWordsOfXAndYReadTheColourBits)
{
    // The third word is the red float's bits.
    EXPECT_EQ(PrintText("%d %d %x", 1, 2, 1.0f), "1 2 3f800000");
    // A double takes two words: x and y as its low and high halves.
    u64 bits = ((u64)0x40091EB8u << 32) | 0x51EB851Fu;
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof(value));
    char expected[64];
    std::snprintf(expected, sizeof(expected), "%.2f", value);
    EXPECT_EQ(PrintText("%.2f", (int32_t)0x51EB851F, (int32_t)0x40091EB8), expected);
    EXPECT_EQ(PrintText("%d %d %d %d %d %d", 1, 2), "1 2 0 0 0 0") << "past the five words: zero";
}

TEST(GraphicsPrintText, TheTextIsCutAt255Characters)
{
    std::string longFormat(400, 'a');
    EXPECT_EQ(PrintText(longFormat.c_str(), 0, 0), std::string(255, 'a'));
}

TEST(GraphicsFonts, FaceNamesMapToTheDejaVuFamilies)
{
    bool bold = true, italic = true;
    EXPECT_EQ(KRGfxFontFile("Arial", false, false, &bold, &italic),
              "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
    EXPECT_FALSE(bold);
    EXPECT_FALSE(italic);
    EXPECT_EQ(KRGfxFontFile("Courier New", false, false, &bold, &italic),
              "/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf");
    EXPECT_EQ(KRGfxFontFile("Times New Roman", false, false, &bold, &italic),
              "/usr/share/fonts/truetype/dejavu/DejaVuSerif.ttf");
    EXPECT_EQ(KRGfxFontFile("DejaVu Sans Mono", false, false, &bold, &italic),
              "/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf");
    EXPECT_EQ(KRGfxFontFile("Microsoft Sans Serif", false, false, &bold, &italic),
              "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
    EXPECT_EQ(KRGfxFontFile(nullptr, false, false, &bold, &italic),
              "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
}

TEST(GraphicsFonts, BoldUsesTheBoldFileAndItalicUsesItsFileOnlyWhereTheMachineHasIt)
{
    bool bold = false, italic = true;
    EXPECT_EQ(KRGfxFontFile("Arial", true, false, &bold, &italic),
              "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf");
    EXPECT_TRUE(bold);
    EXPECT_FALSE(italic);

    std::string oblique = "/usr/share/fonts/truetype/dejavu/DejaVuSans-BoldOblique.ttf";
    std::string path = KRGfxFontFile("Arial", true, true, &bold, &italic);
    if (access(oblique.c_str(), R_OK) == 0)
    {
        EXPECT_EQ(path, oblique);
        EXPECT_TRUE(italic);
    }
    else
    {
        EXPECT_EQ(path, "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf");
        EXPECT_FALSE(italic) << "the slant is left to the renderer";
    }
    EXPECT_TRUE(bold);
}

TEST(GraphicsLimits, TheCameraMovesTheWindowLimitsAtOnce)
{
    int32_t savedWidth = gKRWinWidth, savedHeight = gKRWinHeight;
    gKRWinWidth = 800;
    gKRWinHeight = 600;
    KRGfxSetCamPosition(-20.0f, 35.5f);
    EXPECT_EQ(KRGfxGetWinMinX(), -420.0f);
    EXPECT_EQ(KRGfxGetWinMaxX(), 380.0f);
    EXPECT_EQ(KRGfxGetWinMinY(), -264.5f);
    EXPECT_EQ(KRGfxGetWinMaxY(), 335.5f);
    KRGfxSetCamPosition(0.0f, 0.0f);
    gKRWinWidth = savedWidth;
    gKRWinHeight = savedHeight;
}

TEST(GraphicsShaders, TheTextsNameTheirUniformsAndAttributesAndHaveNoVersionLine)
{
    for (const char* vertex : {gKRColorVertexShader, gKRTextureVertexShader})
    {
        std::string text = vertex;
        for (const char* name : {"uPMatrix", "uVMatrix", "uWorldMatrix", "aPosition"})
            EXPECT_NE(text.find(name), std::string::npos) << name;
        EXPECT_NE(text.find("uPMatrix * uVMatrix * uWorldMatrix * aPosition"), std::string::npos);
    }
    EXPECT_NE(std::string(gKRColorVertexShader).find("vColor"), std::string::npos);
    EXPECT_NE(std::string(gKRTextureVertexShader).find("vTextureCoordinate"), std::string::npos);
    for (const char* fragment : {gKRColorFragmentShader, gKRTextureFragmentShader})
        for (const char* name : {"uBlendColor", "uTransparencyValue", "uTintColor"})
            EXPECT_NE(std::string(fragment).find(name), std::string::npos) << name;
    for (const char* name : {"uTexture", "uTextureOffset"})
        EXPECT_NE(std::string(gKRTextureFragmentShader).find(name), std::string::npos) << name;
    for (const char* text : {gKRColorVertexShader, gKRColorFragmentShader, gKRTextureVertexShader,
                             gKRTextureFragmentShader})
        EXPECT_EQ(std::string(text).find("#version"), std::string::npos);
}
