// Textures on a real context: PNG files decoded and uploaded top row first in their own colours, nearest filtering
// and repeat wrapping, the offset of KRGfxTextureSet and the texture program's one subtraction, the path rule, and
// the stop that a missing picture causes.
#include "ChildProcess.h"
#include "DrawKit.h"
#include "KRGraphics.h"
#include "KRSystem.h"
#include "Pattern.h"
#include "TestEnv.h"
#include "replayframe.h"

#include <GL/glew.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

std::string WriteTestPng(const std::string& name, int width, int height, const std::vector<u32>& pixels)
{
    std::string path = MakeTempDir("textures") + "/" + name;
    EXPECT_TRUE(WritePng(path, width, height, pixels));
    return path;
}

// Draws a textured square of half-size 50 at the origin and gives the row of pixels through its middle.
std::vector<u32> DrawSquareRow(KRGfxTexture* pTexture, float offsetX, float offsetY)
{
    KRGfxVertexList* pMesh = MakeRectMesh(50.0f, 50.0f, 0xFFFFFFFFu);
    BeginTexturedFrame();
    KRGfxTextureSet(pTexture, offsetX, offsetY);
    KRGfxMeshDraw(pMesh, KR_GFX_MDM_TRIANGLES);
    std::vector<u32> row = ReadRegion(350, 300, 100, 1);
    KRGfxEnd();
    KRGfxMeshFree(pMesh);
    for (u32& pixel : row)
        pixel = Rgb(pixel);
    return row;
}

// Four texels in a row: red, green, blue, white.
const std::vector<u32> kFourColours = {0xFFFF0000u, 0xFF00FF00u, 0xFF0000FFu, 0xFFFFFFFFu};

std::vector<float> OffsetUniform()
{
    float offset[2] = {-9.0f, -9.0f};
    glGetUniformfv(gKRShader.mProgram[2], glGetUniformLocation(gKRShader.mProgram[2], "uTextureOffset"), offset);
    return {offset[0], offset[1]};
}

// The texels of a texture's first row up to `count`, as RGBA bytes, with one of its level parameters.
std::vector<int> ReadTexels(const KRGfxTexture* pTexture, size_t count, GLenum parameter, GLint* pValue)
{
    std::vector<unsigned char> rgba(count * 4, 0);
    glBindTexture(GL_TEXTURE_2D, *pTexture->glId);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glGetTexImage(GL_TEXTURE_2D, 0, GL_RGBA, GL_UNSIGNED_BYTE, rgba.data());
    glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, parameter, pValue);
    glBindTexture(GL_TEXTURE_2D, 0);
    return std::vector<int>(rgba.begin(), rgba.end());
}

} // namespace

TEST(GraphicsTexture, TheTopRowOfAPngIsDrawnAtTheTop)
{
    std::string path = WriteTestPng("rows.png", 1, 2, {0xFFFF0000u, 0xFF0000FFu});
    StartGraphicsWindowed();
    KRGfxTexture* pTexture = KRGfxTextureLoad(path.c_str());
    KRGfxVertexList* pMesh = MakeRectMesh(50.0f, 50.0f, 0xFFFFFFFFu);
    BeginTexturedFrame();
    KRGfxTextureSet(pTexture, 0.0f, 0.0f);
    KRGfxMeshDraw(pMesh, KR_GFX_MDM_TRIANGLES);
    EXPECT_EQ(Rgb(ReadPixel(400, 340)), 0xFF0000u) << "upper half: the file's first row";
    EXPECT_EQ(Rgb(ReadPixel(400, 260)), 0x0000FFu) << "lower half: the file's last row";
    KRGfxEnd();
    KRGfxMeshFree(pMesh);
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsTexture, APureRedPngPixelIsRedOnScreenAndBlueIsBlue)
{
    std::string path = WriteTestPng("columns.png", 2, 1, {0xFFFF0000u, 0xFF0000FFu});
    StartGraphicsWindowed();
    KRGfxTexture* pTexture = KRGfxTextureLoad(path.c_str());
    std::vector<u32> row = DrawSquareRow(pTexture, 0.0f, 0.0f);
    EXPECT_EQ(row[10], 0xFF0000u) << "the left column is the file's first pixel";
    EXPECT_EQ(row[90], 0x0000FFu);
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsTexture, ColourAndAlphaOfThePictureAreUploadedUnaltered)
{
    std::string path = WriteTestPng("translucent.png", 2, 1, {0x40C08020u, 0x00FFFFFFu});
    StartGraphicsWindowed();
    KRGfxTexture* pTexture = KRGfxTextureLoad(path.c_str());
    GLint format = 0;
    EXPECT_EQ(ReadTexels(pTexture, 2, GL_TEXTURE_INTERNAL_FORMAT, &format),
              std::vector<int>({0xC0, 0x80, 0x20, 0x40, 0xFF, 0xFF, 0xFF, 0x00}))
        << "not premultiplied, not colour corrected";
    EXPECT_EQ(format, GL_RGBA8);
    EXPECT_STREQ(pTexture->name, path.c_str());
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsTexture, AnOpaquePictureStoredWithoutAlphaIsUploadedWithFullAlpha)
{
    // The art keeps pictures drawn unblended edge to edge as RGB files.
    const std::string path = MakeTempDir("textures") + "/opaque.png";
    ASSERT_TRUE(ReplayWritePng(path, 2, 1, {0xC0, 0x80, 0x20, 0x10, 0x20, 0x30}, PngPacking::kQuick, 3));
    StartGraphicsWindowed();
    KRGfxTexture* pTexture = KRGfxTextureLoad(path.c_str());
    GLint width = 0;
    EXPECT_EQ(ReadTexels(pTexture, 2, GL_TEXTURE_WIDTH, &width),
              std::vector<int>({0xC0, 0x80, 0x20, 0xFF, 0x10, 0x20, 0x30, 0xFF}));
    EXPECT_EQ(width, 2);
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsTexture, TexturesAreNearestFilteredWithRepeatWrapping)
{
    std::string path = WriteTestPng("four.png", 4, 1, kFourColours);
    StartGraphicsWindowed();
    KRGfxTexture* pTexture = KRGfxTextureLoad(path.c_str());
    glBindTexture(GL_TEXTURE_2D, *pTexture->glId);
    GLint minFilter = 0, magFilter = 0, wrapS = 0, wrapT = 0;
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &minFilter);
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, &magFilter);
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, &wrapS);
    glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, &wrapT);
    glBindTexture(GL_TEXTURE_2D, 0);
    EXPECT_EQ(minFilter, GL_NEAREST);
    EXPECT_EQ(magFilter, GL_NEAREST);
    EXPECT_EQ(wrapS, GL_REPEAT);
    EXPECT_EQ(wrapT, GL_REPEAT);

    // Each texel covers 25 pixels exactly, with no mixing at the seams.
    std::vector<u32> row = DrawSquareRow(pTexture, 0.0f, 0.0f);
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(row[i], Rgb(kFourColours[i / 25])) << "pixel " << i;
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsTexture, TextureOffsetTwoAndAHalfSamplesLikeAHalf)
{
    std::string path = WriteTestPng("four.png", 4, 1, kFourColours);
    StartGraphicsWindowed();
    KRGfxTexture* pTexture = KRGfxTextureLoad(path.c_str());
    std::vector<u32> plain = DrawSquareRow(pTexture, 0.0f, 0.0f);
    std::vector<u32> half = DrawSquareRow(pTexture, 0.5f, 0.0f);
    std::vector<u32> twoAndAHalf = DrawSquareRow(pTexture, 2.5f, 0.0f);
    EXPECT_EQ(half[10], 0x0000FFu) << "the picture moved by half its width";
    EXPECT_NE(half, plain);
    EXPECT_EQ(twoAndAHalf, half);
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsTexture, SettingOffsetTwoAndAHalfSendsAHalfAndAnOffsetOfOneStaysOne)
{
    StartGraphicsWindowed();
    KRGfxTexture* pTexture = KRGfxTextureLoadFromMemory((const unsigned char*)"\xff\xff\xff\xff", 1, 1);
    KRGfxSetRenderMode(KR_GFX_RM_TEXTURE);
    KRGfxTextureSet(pTexture, 2.5f, 0.0f);
    EXPECT_EQ(OffsetUniform(), std::vector<float>({0.5f, 0.0f}));
    KRGfxTextureSet(pTexture, 1.0f, 1.0f);
    EXPECT_EQ(OffsetUniform(), std::vector<float>({1.0f, 1.0f})) << "only an offset above 1.0 is reduced";
    KRGfxTextureSet(pTexture, -3.25f, 7.75f);
    EXPECT_EQ(OffsetUniform(), std::vector<float>({-3.25f, 0.75f})) << "negative offsets stay";
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsTexture, SettingANullTextureUnbindsAndLeavesTheOffsetAsItWas)
{
    StartGraphicsWindowed();
    KRGfxTexture* pTexture = KRGfxTextureLoadFromMemory((const unsigned char*)"\xff\xff\xff\xff", 1, 1);
    KRGfxSetRenderMode(KR_GFX_RM_TEXTURE);
    KRGfxTextureSet(pTexture, 0.25f, 0.75f);
    GLint bound = 0;
    glGetIntegerv(GL_TEXTURE_BINDING_2D, &bound);
    EXPECT_EQ((u32)bound, *pTexture->glId);
    KRGfxTextureSet(nullptr, 0.5f, 0.5f);
    glGetIntegerv(GL_TEXTURE_BINDING_2D, &bound);
    EXPECT_EQ(bound, 0);
    EXPECT_EQ(OffsetUniform(), std::vector<float>({0.25f, 0.75f}));
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsTexture, SettingATextureUsesUnitZeroForTheSampler)
{
    StartGraphicsWindowed();
    KRGfxTexture* pTexture = KRGfxTextureLoadFromMemory((const unsigned char*)"\xff\xff\xff\xff", 1, 1);
    KRGfxSetRenderMode(KR_GFX_RM_TEXTURE);
    glActiveTexture(GL_TEXTURE1);
    KRGfxTextureSet(pTexture, 0.0f, 0.0f);
    GLint unit = 0, sampler = -1;
    glGetIntegerv(GL_ACTIVE_TEXTURE, &unit);
    glGetUniformiv(gKRShader.mProgram[2], glGetUniformLocation(gKRShader.mProgram[2], "uTexture"), &sampler);
    EXPECT_EQ(unit, GL_TEXTURE0);
    EXPECT_EQ(sampler, 0);
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsTexture, ACoordinatePlusOffsetAboveOneLosesOneOnceAndANegativeSumIsLeftAlone)
{
    std::string path = WriteTestPng("four.png", 4, 1, kFourColours);
    StartGraphicsWindowed();
    KRGfxTexture* pTexture = KRGfxTextureLoad(path.c_str());
    // Clamping at the edges instead of repeating shows exactly which coordinate the shader sampled.
    glBindTexture(GL_TEXTURE_2D, *pTexture->glId);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glBindTexture(GL_TEXTURE_2D, 0);
    KRGfxVertexList* pMesh = MakeRectMesh(50.0f, 50.0f, 0xFFFFFFFFu);
    auto rowWithOffset = [&](float offsetX) {
        BeginTexturedFrame();
        KRGfxTextureSet(pTexture, 0.0f, 0.0f);
        glUniform2f(gKRShader.GetUniformLocation("uTextureOffset"), offsetX, 0.0f);
        KRGfxMeshDraw(pMesh, KR_GFX_MDM_TRIANGLES);
        std::vector<u32> row = ReadRegion(350, 300, 100, 1);
        KRGfxEnd();
        return row;
    };

    // 2.5 to 3.5 becomes 1.5 to 2.5: past the right edge everywhere.
    std::vector<u32> far = rowWithOffset(2.5f);
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(Rgb(far[i]), 0xFFFFFFu) << "pixel " << i;
    // 0.5 to 1.5 becomes 0.5 to 1.0 and then 0.0 to 0.5.
    std::vector<u32> half = rowWithOffset(0.5f);
    EXPECT_EQ(Rgb(half[10]), 0x0000FFu);
    EXPECT_EQ(Rgb(half[90]), 0x00FF00u);
    // -0.75 to 0.25 stays: left of the edge and the first texel.
    std::vector<u32> negative = rowWithOffset(-0.75f);
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(Rgb(negative[i]), 0xFF0000u) << "pixel " << i;

    KRGfxMeshFree(pMesh);
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsTexture, APathOfExactly255CharactersLoadsAndOneOf256GivesNull)
{
    std::string folder = MakeTempDir("long-paths");
    std::string path = folder + "/";
    // Pad with a folder so that the file name itself stays short.
    std::string pad(255 - path.size() - std::string("/a.png").size(), 'p');
    std::string padded = folder + "/" + pad;
    mkdir(padded.c_str(), 0755);
    std::string path255 = padded + "/a.png";
    ASSERT_EQ(path255.size(), 255u);
    ASSERT_TRUE(WritePng(path255, 1, 1, {0xFFFF0000u}));
    std::string path256 = padded + "/ab.png";
    ASSERT_TRUE(WritePng(path256, 1, 1, {0xFFFF0000u}));

    StartGraphicsWindowed();
    KRGfxTexture* pTexture = KRGfxTextureLoad(path255.c_str());
    ASSERT_NE(pTexture, nullptr);
    EXPECT_STREQ(pTexture->name, path255.c_str());
    EXPECT_EQ(DrawSquareRow(pTexture, 0.0f, 0.0f)[50], 0xFF0000u);
    EXPECT_EQ(KRGfxTextureLoad(path256.c_str()), nullptr);
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsTexture, ATextureFromMemoryHasNoNameAndTakesItsBytesInRgbaOrder)
{
    StartGraphicsWindowed();
    const unsigned char pixels[8] = {255, 0, 0, 255, 0, 0, 255, 255};
    KRGfxTexture* pTexture = KRGfxTextureLoadFromMemory(pixels, 2, 1);
    for (char c : pTexture->name)
        ASSERT_EQ(c, 0);
    std::vector<u32> row = DrawSquareRow(pTexture, 0.0f, 0.0f);
    EXPECT_EQ(row[10], 0xFF0000u);
    EXPECT_EQ(row[90], 0x0000FFu);
    KRGfxTextureUnload(pTexture);
    KRSysExit();
}

TEST(GraphicsTexture, UnloadDeletesTheTexture)
{
    StartGraphicsWindowed();
    KRGfxTexture* pTexture = KRGfxTextureLoadFromMemory((const unsigned char*)"\xff\xff\xff\xff", 1, 1);
    u32 id = *pTexture->glId;
    EXPECT_TRUE(glIsTexture(id));
    KRGfxTextureUnload(pTexture);
    EXPECT_FALSE(glIsTexture(id));
    KRSysExit();
}

TEST(GraphicsTexture, TextureModeSetsTheFiltersOfTheBoundTextureAndAnUnknownModeSaysItIsUnsupported)
{
    ChildResult child = RunInChild([] {
        StartGraphicsWindowed();
        KRGfxTexture* pTexture = KRGfxTextureLoadFromMemory((const unsigned char*)"\xff\xff\xff\xff", 1, 1);
        glBindTexture(GL_TEXTURE_2D, *pTexture->glId);
        GLint minFilter = 0, magFilter = 0;
        KRGfxSetTextureMode(KR_GFX_TM_LINEAR);
        glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &minFilter);
        glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, &magFilter);
        std::printf("linear %d\n", minFilter == GL_LINEAR && magFilter == GL_LINEAR);
        KRGfxSetTextureMode(KR_GFX_TM_NEAREST);
        glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &minFilter);
        glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, &magFilter);
        std::printf("nearest %d\n", minFilter == GL_NEAREST && magFilter == GL_NEAREST);
        KRGfxSetTextureMode(2);
        glGetTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &minFilter);
        std::printf("unchanged %d\n", minFilter == GL_NEAREST);
        std::fflush(stdout);
        KRGfxTextureUnload(pTexture);
    });
    EXPECT_EQ(child.exitCode, 0);
    EXPECT_EQ(child.out, "Kestrel Runtime version: 3.03\n\nGraphics: OpenGL\nlinear 1\nnearest 1\n"
                         "Unsupported texture mode!\nunchanged 1\n");
}

TEST(GraphicsTexture, SavingATextureToAFileSavesNothingAndSaysSo)
{
    std::string folder = MakeTempDir("save-texture");
    std::string target = folder + "/saved.png";
    ChildResult child = RunInChild([&] {
        StartGraphicsWindowed();
        KRGfxTexture* pTexture = KRGfxTextureLoadFromMemory((const unsigned char*)"\xff\xff\xff\xff", 1, 1);
        KRGfxSaveTextureToFile(pTexture, target.c_str());
        KRGfxSaveTextureToFile(nullptr, target.c_str());
        KRGfxSaveTextureToFile(pTexture, nullptr);
        std::fflush(stdout);
        KRGfxTextureUnload(pTexture);
    });
    EXPECT_EQ(child.exitCode, 0);
    EXPECT_EQ(child.out, "Kestrel Runtime version: 3.03\n\nGraphics: OpenGL\n"
                         "KRGfxSaveTextureToFile not supported in the OpenGL version of the Kestrel Runtime!\n");
    struct stat info;
    EXPECT_NE(stat(target.c_str(), &info), 0) << "no file was written";
}

TEST(GraphicsTexture, AMissingPictureGivesATextureAndStopsTheProcessAtTheFramesEndWithStatusOne)
{
    ChildResult child = RunInChild([] {
        StartGraphicsWindowed();
        KRGfxTexture* pTexture = KRGfxTextureLoad("no-such-picture.png");
        std::printf("texture %s\n", pTexture ? "given" : "null");
        std::fflush(stdout);
        KRGfxStart();
        KRGfxEnd();
        std::printf("still running\n");
    });
    EXPECT_EQ(child.exitCode, 1);
    const std::string report("Kestrel Runtime version: 3.03\n\nGraphics: OpenGL\ntexture given\n"
                      "CHECK_GL_ERROR:\nLine: [0-9]+\nFunc: KRGfxEnd\nFile: [^\n]*KRGraphics\\.cpp\n"
                      "Code: 0x00000501\nMesg: \n");
    EXPECT_TRUE(MatchesWhole(child.out, report)) << child.out;
}

TEST(GraphicsTexture, AnUndecodablePictureStopsTheProcessAtTheNextTextureSet)
{
    std::string folder = MakeTempDir("bad-picture");
    std::string path = folder + "/not-a-picture.png";
    WriteFileText(path, "this is text, not a picture\n");
    ChildResult child = RunInChild([&] {
        StartGraphicsWindowed();
        KRGfxSetRenderMode(KR_GFX_RM_TEXTURE);
        KRGfxTexture* pTexture = KRGfxTextureLoad(path.c_str());
        KRGfxTextureSet(pTexture, 0.0f, 0.0f);
        std::printf("still running\n");
    });
    EXPECT_EQ(child.exitCode, 1);
    const std::string report("Kestrel Runtime version: 3.03\n\nGraphics: OpenGL\n"
                      "CHECK_GL_ERROR:\nLine: [0-9]+\nFunc: KRGfxTextureSet\nFile: [^\n]*KRGraphicsTexture\\.cpp\n"
                      "Code: 0x00000501\nMesg: \n");
    EXPECT_TRUE(MatchesWhole(child.out, report)) << child.out;
}
