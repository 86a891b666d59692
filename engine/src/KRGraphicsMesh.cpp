// KRGraphicsMesh.cpp -- meshes: the shared vertex staging on the CPU, its upload into three static OpenGL
// buffers, drawing a mesh with the active program, and freeing it.
//
// Owns:    gKRVertexStaging, gKRVertexNum, gKRMeshBuilding.
// Fed by:  the states' Load (KRGfxMeshStart, KRGfxTriAdd, KRGfxVertexAdd, KRGfxMeshEnd) and the debug writers,
//          which overwrite the first entries without counting.
// Read by: every state's Draw through KRGfxMeshDraw.
#include "KRGraphics.h"

#include "KRDebug.h"
#include "KRGraphicsInternal.h"

#include <GL/glew.h>
#include <cstdio>
#include <cstdlib>

KRGfxVertex gKRVertexStaging[KR_GFX_VERTEX_MAX];
u32 gKRVertexNum = 0;
u8 gKRMeshBuilding = 0;

void KRGfxReset()
{
    gKRVertexNum = 0;
}

void KRGfxMeshStart()
{
    // The count is not reset: an unfinished mesh joins the next one.
    gKRMeshBuilding = 1;
}

void KRGfxVertexAdd(float x, float y, u32 color, float u, float v)
{
    // No bounds check: callers stay far below the staging size.
    KRGfxVertex* pVertex = &gKRVertexStaging[gKRVertexNum];
    pVertex->x = x;
    pVertex->y = y;
    pVertex->z = 0.0f;
    pVertex->color = color;
    pVertex->u = u;
    pVertex->v = v;
    ++gKRVertexNum;
}

void KRGfxTriAdd(float x0, float y0, u32 c0, float u0, float v0, float x1, float y1, u32 c1, float u1, float v1,
                 float x2, float y2, u32 c2, float u2, float v2)
{
    KRGfxVertexAdd(x0, y0, c0, u0, v0);
    KRGfxVertexAdd(x1, y1, c1, u1, v1);
    KRGfxVertexAdd(x2, y2, c2, u2, v2);
}

void KRGfxTriListInitialize(KRGfxVertexList* pMesh)
{
    pMesh->vbo = (u32*)std::calloc(3, sizeof(u32));
}

static void UploadBuffer(GLuint id, const float* pData, size_t bytes)
{
    glBindBuffer(GL_ARRAY_BUFFER, id);
    glBufferData(GL_ARRAY_BUFFER, (GLsizeiptr)bytes, pData, GL_STATIC_DRAW);
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glFinish();
}

KRGfxVertexList* KRGfxMeshEnd()
{
    KRGfxVertexList* pMesh = (KRGfxVertexList*)std::calloc(1, sizeof(KRGfxVertexList));
    KRGfxTriListInitialize(pMesh);
    pMesh->vtxNum = gKRVertexNum;
    glGenBuffers(3, pMesh->vbo);

    // One more entry than needed, so that an empty mesh still has arrays to point at.
    size_t count = gKRVertexNum;
    float* pPositions = (float*)std::malloc((count * 3 + 1) * sizeof(float));
    float* pColors = (float*)std::malloc((count * 4 + 1) * sizeof(float));
    float* pCoordinates = (float*)std::malloc((count * 2 + 1) * sizeof(float));
    for (size_t i = 0; i < count; ++i)
    {
        const KRGfxVertex& vertex = gKRVertexStaging[i];
        pPositions[i * 3 + 0] = vertex.x;
        pPositions[i * 3 + 1] = vertex.y;
        pPositions[i * 3 + 2] = vertex.z;
        // 0xAARRGGBB into red, green, blue, alpha.
        pColors[i * 4 + 0] = (float)((vertex.color >> 16) & 0xFF) / 255.0f;
        pColors[i * 4 + 1] = (float)((vertex.color >> 8) & 0xFF) / 255.0f;
        pColors[i * 4 + 2] = (float)(vertex.color & 0xFF) / 255.0f;
        pColors[i * 4 + 3] = (float)((vertex.color >> 24) & 0xFF) / 255.0f;
        pCoordinates[i * 2 + 0] = vertex.u;
        pCoordinates[i * 2 + 1] = vertex.v;
    }

    // All three buffers always exist, whichever program will draw the mesh.
    UploadBuffer(pMesh->vbo[0], pPositions, count * 3 * sizeof(float));
    UploadBuffer(pMesh->vbo[1], pColors, count * 4 * sizeof(float));
    UploadBuffer(pMesh->vbo[2], pCoordinates, count * 2 * sizeof(float));
    CHECK_GL_ERROR();

    std::free(pPositions);
    std::free(pColors);
    std::free(pCoordinates);
    gKRVertexNum = 0;
    gKRMeshBuilding = 0;
    return pMesh;
}

// Binds a buffer to a named attribute of the active program, draws, and lets go of the attribute again.
static void DrawWithAttribute(const char* name, GLuint buffer, GLint components, GLenum primitive, u32 count)
{
    glBindBuffer(GL_ARRAY_BUFFER, buffer);
    GLuint location = (GLuint)gKRShader.GetAttribLocation(name);
    glEnableVertexAttribArray(location);
    glVertexAttribPointer(location, components, GL_FLOAT, GL_FALSE, 0, nullptr);
    glDrawArrays(primitive, 0, (GLsizei)count);
    glDisableVertexAttribArray(location);
}

void KRGfxMeshDraw(KRGfxVertexList* pMesh, u32 mode)
{
    static const GLenum kPrimitives[4] = {GL_POINTS, GL_LINES, GL_LINE_STRIP, GL_TRIANGLES};
    if (mode > KR_GFX_MDM_TRIANGLES)
    {
        std::printf("Mesh Draw Mode %u is invalid!\n", mode);
        return;
    }
    GLenum primitive = kPrimitives[mode];

    // With no program active the location is -1, an OpenGL error that stops the process at the frame's end.
    GLuint position = (GLuint)gKRShader.GetAttribLocation("aPosition");
    glEnableVertexAttribArray(position);
    glBindBuffer(GL_ARRAY_BUFFER, pMesh->vbo[0]);
    glVertexAttribPointer(position, 3, GL_FLOAT, GL_FALSE, 0, nullptr);

    if (gKRShader.GetActive() == KR_GFX_RM_COLOR)
        DrawWithAttribute("aColor", pMesh->vbo[1], 4, primitive, pMesh->vtxNum);
    if (gKRShader.GetActive() == KR_GFX_RM_TEXTURE)
        DrawWithAttribute("aTextureCoordinate", pMesh->vbo[2], 2, primitive, pMesh->vtxNum);

    glDisableVertexAttribArray(position);
    glBindBuffer(GL_ARRAY_BUFFER, 0);
}

void KRGfxMeshFree(KRGfxVertexList* pMesh)
{
    glDeleteBuffers(3, pMesh->vbo);
    std::free(pMesh->vbo);
    std::free(pMesh);
}
