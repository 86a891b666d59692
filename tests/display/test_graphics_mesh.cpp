// Meshes on a real context: the staging and its three buffers, colours split from 0xAARRGGBB, drawing under either
// program and in every draw mode, and what an invalid mode or a missing program does.
#include "ChildProcess.h"
#include "DrawKit.h"
#include "KRGraphics.h"
#include "KRGraphicsInternal.h"
#include "KRSystem.h"
#include "Pattern.h"
#include "TestEnv.h"

#include <GL/glew.h>
#include <gtest/gtest.h>

namespace {

std::vector<float> BufferFloats(u32 buffer, int count)
{
    std::vector<float> values((size_t)count, -9.0f);
    glBindBuffer(GL_ARRAY_BUFFER, buffer);
    glGetBufferSubData(GL_ARRAY_BUFFER, 0, (GLsizeiptr)(count * sizeof(float)), values.data());
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    return values;
}

GLint BufferSize(u32 buffer)
{
    GLint size = -1;
    glBindBuffer(GL_ARRAY_BUFFER, buffer);
    glGetBufferParameteriv(GL_ARRAY_BUFFER, GL_BUFFER_SIZE, &size);
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    return size;
}

int LitPixels(const std::vector<u32>& pixels)
{
    int lit = 0;
    for (u32 pixel : pixels)
        lit += Rgb(pixel) != 0;
    return lit;
}

} // namespace

TEST(GraphicsMesh, AMeshWithNoVerticesGetsThreeEmptyBuffersAndDrawsNothing)
{
    StartGraphicsWindowed();
    KRGfxMeshStart();
    KRGfxVertexList* pMesh = KRGfxMeshEnd();
    EXPECT_EQ(pMesh->vtxNum, 0u);
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_TRUE(glIsBuffer(pMesh->vbo[i])) << "buffer " << i;
        EXPECT_EQ(BufferSize(pMesh->vbo[i]), 0) << "buffer " << i;
    }
    EXPECT_NE(pMesh->vbo[0], pMesh->vbo[1]);
    EXPECT_NE(pMesh->vbo[1], pMesh->vbo[2]);
    BeginColourFrame();
    KRGfxMeshDraw(pMesh, KR_GFX_MDM_TRIANGLES);
    EXPECT_EQ(LitPixels(ReadRegion(0, 0, 799, 599)), 0);
    KRGfxEnd();
    KRGfxMeshFree(pMesh);
    KRSysExit();
}

TEST(GraphicsMesh, AColourOfFF00FF00GivesTheFloatsZeroOneZeroOneInRedGreenBlueAlphaOrder)
{
    StartGraphicsWindowed();
    KRGfxMeshStart();
    KRGfxVertexAdd(0.0f, 0.0f, 0xFF00FF00u, 0.0f, 0.0f);
    KRGfxVertexAdd(0.0f, 0.0f, 0x80402010u, 0.0f, 0.0f);
    KRGfxVertexList* pMesh = KRGfxMeshEnd();
    std::vector<float> colours = BufferFloats(pMesh->vbo[1], 8);
    EXPECT_EQ(std::vector<float>(colours.begin(), colours.begin() + 4), std::vector<float>({0.0f, 1.0f, 0.0f, 1.0f}));
    EXPECT_FLOAT_EQ(colours[4], 0x40 / 255.0f);
    EXPECT_FLOAT_EQ(colours[5], 0x20 / 255.0f);
    EXPECT_FLOAT_EQ(colours[6], 0x10 / 255.0f);
    EXPECT_FLOAT_EQ(colours[7], 0x80 / 255.0f);
    KRGfxMeshFree(pMesh);
    KRSysExit();
}

TEST(GraphicsMesh, MeshEndUploadsPositionsWithZeroDepthAndTextureCoordinatesAsStaged)
{
    StartGraphicsWindowed();
    KRGfxMeshStart();
    KRGfxTriAdd(1.0f, 2.0f, 0xFFFFFFFFu, 0.1f, 0.2f, 3.0f, 4.0f, 0xFFFFFFFFu, 0.3f, 0.4f, 5.0f, 6.0f, 0xFFFFFFFFu,
                0.5f, 0.6f);
    EXPECT_EQ(gKRMeshBuilding, 1);
    EXPECT_EQ(gKRVertexNum, 3u);
    KRGfxVertexList* pMesh = KRGfxMeshEnd();
    EXPECT_EQ(gKRMeshBuilding, 0);
    EXPECT_EQ(gKRVertexNum, 0u);
    EXPECT_EQ(pMesh->vtxNum, 3u);
    EXPECT_EQ(BufferFloats(pMesh->vbo[0], 9), std::vector<float>({1, 2, 0, 3, 4, 0, 5, 6, 0}));
    EXPECT_EQ(BufferFloats(pMesh->vbo[2], 6), std::vector<float>({0.1f, 0.2f, 0.3f, 0.4f, 0.5f, 0.6f}));
    EXPECT_EQ(BufferSize(pMesh->vbo[0]), 36);
    EXPECT_EQ(BufferSize(pMesh->vbo[1]), 48);
    EXPECT_EQ(BufferSize(pMesh->vbo[2]), 24);
    KRGfxMeshFree(pMesh);
    KRSysExit();
}

TEST(GraphicsMesh, AnUnfinishedMeshJoinsTheNextOne)
{
    StartGraphicsWindowed();
    KRGfxMeshStart();
    KRGfxVertexAdd(1.0f, 1.0f, 0xFFFFFFFFu, 0.0f, 0.0f);
    KRGfxMeshStart();
    KRGfxTriAdd(2.0f, 2.0f, 0xFFFFFFFFu, 0.0f, 0.0f, 3.0f, 3.0f, 0xFFFFFFFFu, 0.0f, 0.0f, 4.0f, 4.0f, 0xFFFFFFFFu,
                0.0f, 0.0f);
    KRGfxVertexList* pMesh = KRGfxMeshEnd();
    EXPECT_EQ(pMesh->vtxNum, 4u);
    EXPECT_EQ(BufferFloats(pMesh->vbo[0], 3), std::vector<float>({1, 1, 0}));
    KRGfxMeshFree(pMesh);
    KRSysExit();
}

TEST(GraphicsMesh, ResetEmptiesTheStaging)
{
    StartGraphicsWindowed();
    KRGfxMeshStart();
    KRGfxVertexAdd(1.0f, 1.0f, 0xFFFFFFFFu, 0.0f, 0.0f);
    KRGfxReset();
    EXPECT_EQ(gKRVertexNum, 0u);
    KRGfxMeshStart();
    KRGfxVertexAdd(7.0f, 8.0f, 0xFFFFFFFFu, 0.0f, 0.0f);
    KRGfxVertexList* pMesh = KRGfxMeshEnd();
    EXPECT_EQ(pMesh->vtxNum, 1u);
    EXPECT_EQ(BufferFloats(pMesh->vbo[0], 3), std::vector<float>({7, 8, 0}));
    KRGfxMeshFree(pMesh);
    KRSysExit();
}

TEST(GraphicsMesh, APointWrittenDuringMeshBuildingReplacesTheFirstStagedVertex)
{
    StartGraphicsWindowed();
    KRGfxMeshStart();
    KRGfxTriAdd(1.0f, 1.0f, 0xFFFFFFFFu, 0.0f, 0.0f, 2.0f, 2.0f, 0xFFFFFFFFu, 0.0f, 0.0f, 3.0f, 3.0f, 0xFFFFFFFFu,
                0.0f, 0.0f);
    KRGfxPoint(9.0f, 8.0f, 7.0f, 0xFF0000FFu);
    EXPECT_EQ(gKRVertexNum, 3u) << "the count is not touched";
    KRGfxVertexList* pMesh = KRGfxMeshEnd();
    EXPECT_EQ(pMesh->vtxNum, 3u);
    EXPECT_EQ(BufferFloats(pMesh->vbo[0], 9), std::vector<float>({9, 8, 7, 2, 2, 0, 3, 3, 0}));
    EXPECT_EQ(BufferFloats(pMesh->vbo[1], 4), std::vector<float>({0, 0, 1, 1}));
    KRGfxMeshFree(pMesh);
    KRSysExit();
}

TEST(GraphicsMesh, AMeshMadeWhileTheColourProgramIsActiveDrawsUnderTheTextureProgramToo)
{
    StartGraphicsWindowed();
    ASSERT_EQ(gKRShader.GetActive(), (u32)KR_GFX_RM_COLOR);
    KRGfxVertexList* pMesh = MakeRectMesh(40.0f, 40.0f, 0xFFFF0000u);
    const unsigned char green[4] = {0, 255, 0, 255};
    KRGfxTexture* pTexture = KRGfxTextureLoadFromMemory(green, 1, 1);

    BeginTexturedFrame();
    KRGfxTextureSet(pTexture, 0.0f, 0.0f);
    KRGfxMeshDraw(pMesh, KR_GFX_MDM_TRIANGLES);
    EXPECT_EQ(Rgb(ReadPixel(400, 300)), 0x00FF00u) << "the texture's colour, not the vertices'";
    KRGfxSetRenderMode(KR_GFX_RM_COLOR);
    KRGfxSetPosition(200.0f, 0.0f);
    KRGfxMeshDraw(pMesh, KR_GFX_MDM_TRIANGLES);
    EXPECT_EQ(Rgb(ReadPixel(600, 300)), 0xFF0000u) << "and the vertices' colour under the colour program";
    KRGfxEnd();
    KRGfxTextureUnload(pTexture);
    KRGfxMeshFree(pMesh);
    KRSysExit();
}

TEST(GraphicsMesh, DrawModesGivePointsLinesLineStripsAndTriangles)
{
    StartGraphicsWindowed();
    // Three vertices at pixel centres: a right angle.
    KRGfxMeshStart();
    KRGfxVertexAdd(-99.5f, 0.5f, 0xFFFFFFFFu, 0.0f, 0.0f);
    KRGfxVertexAdd(0.5f, 0.5f, 0xFFFFFFFFu, 0.0f, 0.0f);
    KRGfxVertexAdd(0.5f, 100.5f, 0xFFFFFFFFu, 0.0f, 0.0f);
    KRGfxVertexList* pMesh = KRGfxMeshEnd();
    int lit[4] = {0, 0, 0, 0};
    for (u32 mode = 0; mode < 4; ++mode)
    {
        BeginColourFrame();
        KRGfxMeshDraw(pMesh, mode);
        lit[mode] = LitPixels(ReadRegion(290, 290, 120, 120));
        KRGfxEnd();
    }
    EXPECT_EQ(lit[KR_GFX_MDM_POINTS], 3);
    EXPECT_NEAR(lit[KR_GFX_MDM_LINES], 100, 2) << "one line, the first two vertices";
    EXPECT_NEAR(lit[KR_GFX_MDM_LINE_STRIP], 200, 3) << "two lines";
    EXPECT_GT(lit[KR_GFX_MDM_TRIANGLES], 4900) << "half of a 100 by 100 square";
    KRGfxMeshFree(pMesh);
    KRSysExit();
}

TEST(GraphicsMesh, MeshDrawLeavesNoAttributeEnabledAndNoBufferBound)
{
    StartGraphicsWindowed();
    KRGfxVertexList* pMesh = MakeRectMesh(10.0f, 10.0f, 0xFFFFFFFFu);
    BeginColourFrame();
    KRGfxMeshDraw(pMesh, KR_GFX_MDM_TRIANGLES);
    for (GLuint attribute = 0; attribute < 4; ++attribute)
    {
        GLint enabled = 1;
        glGetVertexAttribiv(attribute, GL_VERTEX_ATTRIB_ARRAY_ENABLED, &enabled);
        EXPECT_EQ(enabled, 0) << "attribute " << attribute;
    }
    GLint bound = -1;
    glGetIntegerv(GL_ARRAY_BUFFER_BINDING, &bound);
    EXPECT_EQ(bound, 0);
    KRGfxEnd();
    KRGfxMeshFree(pMesh);
    KRSysExit();
}

TEST(GraphicsMesh, FreeDeletesTheThreeBuffers)
{
    StartGraphicsWindowed();
    KRGfxVertexList* pMesh = MakeRectMesh(10.0f, 10.0f, 0xFFFFFFFFu);
    u32 ids[3] = {pMesh->vbo[0], pMesh->vbo[1], pMesh->vbo[2]};
    KRGfxMeshFree(pMesh);
    for (u32 id : ids)
        EXPECT_FALSE(glIsBuffer(id));
    KRSysExit();
}

TEST(GraphicsMesh, ADrawModeAboveThreePrintsItsNumberAndDrawsNothing)
{
    ChildResult child = RunInChild([] {
        StartGraphicsWindowed();
        KRGfxVertexList* pMesh = MakeRectMesh(50.0f, 50.0f, 0xFFFFFFFFu);
        BeginColourFrame();
        KRGfxMeshDraw(pMesh, 4);
        std::printf("lit %d\n", LitPixels(ReadRegion(0, 0, 799, 599)));
        KRGfxEnd();
        std::fflush(stdout);
        KRGfxMeshFree(pMesh);
    });
    EXPECT_EQ(child.exitCode, 0);
    EXPECT_EQ(child.out, "Kestrel Runtime version: 3.03\n\nGraphics: OpenGL\nMesh Draw Mode 4 is invalid!\nlit 0\n");
}

TEST(GraphicsMesh, DrawingWithNoProgramStopsTheProcessAtTheEndOfThatFrame)
{
    ChildResult child = RunInChild([] {
        StartGraphicsWindowed();
        KRGfxVertexList* pMesh = MakeRectMesh(50.0f, 50.0f, 0xFFFFFFFFu);
        KRGfxStart();
        KRGfxSetRenderMode(KR_GFX_RM_NONE);
        KRGfxMeshDraw(pMesh, KR_GFX_MDM_TRIANGLES);
        std::printf("drawn\n");
        std::fflush(stdout);
        KRGfxEnd();
        std::printf("still running\n");
    });
    EXPECT_EQ(child.exitCode, 1);
    const std::string report("Kestrel Runtime version: 3.03\n\nGraphics: OpenGL\ndrawn\n"
                      "CHECK_GL_ERROR:\nLine: [0-9]+\nFunc: KRGfxEnd\nFile: [^\n]*KRGraphics\\.cpp\n"
                      "Code: 0x00000501\nMesg: \n");
    EXPECT_TRUE(MatchesWhole(child.out, report)) << child.out;
}
