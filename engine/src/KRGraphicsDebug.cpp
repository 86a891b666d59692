// KRGraphicsDebug.cpp -- the engine's immediate-mode helpers: points, triangles, quads, boxes, spheres and axes
// written to the vertex staging, one line drawn from client memory, and the colour step between two colours.
//
// Owns:    nothing; the writers overwrite the first staging entries without counting them, so they draw nothing
//          and a mesh built afterwards is not affected. Only KRGfxLine puts anything on the screen.
// Read by: no part of the game; public surface of the engine.
#include "KRGraphics.h"

#include "KRGraphicsInternal.h"
#include "KRMath.h"

#include <GL/glew.h>
#include <cmath>
#include <cstdlib>

static void WriteStaged(u32 index, float x, float y, float z, u32 color)
{
    KRGfxVertex* pVertex = &gKRVertexStaging[index];
    pVertex->x = x;
    pVertex->y = y;
    pVertex->z = z;
    pVertex->color = color;
}

void KRGfxPoint(float x, float y, float z, u32 color)
{
    WriteStaged(0, x, y, z, color);
}

void KRGfxTri(float x0, float y0, float z0, u32 c0, float x1, float y1, float z1, u32 c1, float x2, float y2, float z2,
              u32 c2)
{
    WriteStaged(0, x0, y0, z0, c0);
    WriteStaged(1, x1, y1, z1, c1);
    WriteStaged(2, x2, y2, z2, c2);
}

void KRGfxQuad(float x0, float y0, float z0, u32 c0, float x1, float y1, float z1, u32 c1, float x2, float y2, float z2,
               u32 c2, float x3, float y3, float z3, u32 c3)
{
    // The third and fourth corners change places: a strip's order.
    WriteStaged(0, x0, y0, z0, c0);
    WriteStaged(1, x1, y1, z1, c1);
    WriteStaged(2, x3, y3, z3, c3);
    WriteStaged(3, x2, y2, z2, c2);
}

void KRGfxBox(float x, float y, float z, float sizeX, float sizeY, float sizeZ, u32 color0, u32 color1)
{
    float hx = sizeX * 0.5f, hy = sizeY * 0.5f, hz = sizeZ * 0.5f;
    // The four edges of a face as pairs of ends: first the near face in the first colour, then the far face in
    // the second over the same entries.
    const float kCornerX[4] = {-1.0f, 1.0f, 1.0f, -1.0f};
    const float kCornerY[4] = {-1.0f, -1.0f, 1.0f, 1.0f};
    for (int face = 0; face < 2; ++face)
    {
        float faceZ = z + (face == 0 ? -hz : hz);
        u32 color = face == 0 ? color0 : color1;
        for (u32 edge = 0; edge < 4; ++edge)
        {
            u32 next = (edge + 1) % 4;
            WriteStaged(edge * 2, x + kCornerX[edge] * hx, y + kCornerY[edge] * hy, faceZ, color);
            WriteStaged(edge * 2 + 1, x + kCornerX[next] * hx, y + kCornerY[next] * hy, faceZ, color);
        }
    }
}

void KRGfxSphere(float x, float y, float z, float radius, u32 color0, u32 color1, u32 slices)
{
    if (slices < 4)
        slices = 4;
    if (slices > 32)
        slices = 32;

    // Bands of latitude from the south pole up, each a strip of vertex pairs around the longitude.
    int quarter = (int)slices / 4;
    u32 index = 0;
    for (int lat = -quarter; lat < quarter; ++lat)
    {
        float lat0 = (float)lat / (float)quarter * KR_PI * 0.5f;
        float lat1 = (float)(lat + 1) / (float)quarter * KR_PI * 0.5f;
        u32 color = KRGfxColInterp(color0, color1, std::fabs((float)lat / (float)quarter));
        for (u32 lon = 0; lon <= slices; ++lon)
        {
            float angle = (float)lon / (float)slices * KR_TWO_PI;
            float c = std::cos(angle), s = std::sin(angle);
            WriteStaged(index++, x + radius * std::cos(lat0) * c, y + radius * std::sin(lat0),
                        z + radius * std::cos(lat0) * s, color);
            WriteStaged(index++, x + radius * std::cos(lat1) * c, y + radius * std::sin(lat1),
                        z + radius * std::cos(lat1) * s, color);
        }
    }
}

void KRGfxCone(float x, float y, float z, float dirX, float dirY, float dirZ, float radius, u32 color)
{
    (void)x, (void)y, (void)z, (void)dirX, (void)dirY, (void)dirZ, (void)radius, (void)color;
}

void KRGfxAxis(float scale)
{
    float tip = 0.8f * scale;
    KRGfxSphere(0.0f, 0.0f, 0.0f, scale * 0.1f, 0xFF808080u, 0xFFFFFFFFu, 8);
    KRGfxLine(0.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 1.0f, tip, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 1.0f);
    KRGfxLine(0.0f, 0.0f, 0.0f, 0.0f, 1.0f, 0.0f, 1.0f, 0.0f, tip, 0.0f, 0.0f, 1.0f, 0.0f, 1.0f);
    KRGfxLine(0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 1.0f, 1.0f, 0.0f, 0.0f, tip, 0.0f, 0.0f, 1.0f, 1.0f);
    KRGfxCone(tip, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, scale * 0.05f, 0xFFFF0000u);
    KRGfxCone(0.0f, tip, 0.0f, 0.0f, 1.0f, 0.0f, scale * 0.05f, 0xFF00FF00u);
    KRGfxCone(0.0f, 0.0f, tip, 0.0f, 0.0f, 1.0f, scale * 0.05f, 0xFF0000FFu);
}

void KRGfxLine(float x0, float y0, float z0, float r0, float g0, float b0, float a0, float x1, float y1, float z1,
               float r1, float g1, float b1, float a1)
{
    float* pPositions = (float*)std::malloc(2 * 3 * sizeof(float));
    float* pColors = (float*)std::malloc(2 * 4 * sizeof(float));
    const float positions[6] = {x0, y0, z0, x1, y1, z1};
    const float colors[8] = {r0, g0, b0, a0, r1, g1, b1, a1};
    for (int i = 0; i < 6; ++i)
        pPositions[i] = positions[i];
    for (int i = 0; i < 8; ++i)
        pColors[i] = colors[i];

    // From client memory: no buffer object may be bound while the arrays are pointed at.
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    GLuint position = (GLuint)gKRShader.GetAttribLocation("aPosition");
    glEnableVertexAttribArray(position);
    glVertexAttribPointer(position, 3, GL_FLOAT, GL_FALSE, 0, pPositions);
    // Under the texture program the line has no colours to go with and nothing is drawn.
    if (gKRShader.GetActive() == KR_GFX_RM_COLOR)
    {
        GLuint color = (GLuint)gKRShader.GetAttribLocation("aColor");
        glEnableVertexAttribArray(color);
        glVertexAttribPointer(color, 4, GL_FLOAT, GL_FALSE, 0, pColors);
        glDrawArrays(GL_LINES, 0, 2);
        glDisableVertexAttribArray(color);
    }
    glDisableVertexAttribArray(position);
    std::free(pPositions);
    std::free(pColors);
    glBindBuffer(GL_ARRAY_BUFFER, 0);
}

u32 KRGfxColInterp(u32 color0, u32 color1, float t)
{
    // t is cut to a whole number after clamping, so the result steps from the first colour to the second at 1.0.
    int step = (int)KRClamp(t, 0.0f, 1.0f);
    u32 result = 0;
    for (int shift = 0; shift < 32; shift += 8)
    {
        int a = (int)((color0 >> shift) & 0xFF);
        int b = (int)((color1 >> shift) & 0xFF);
        int channel = (b - a) * step + a;
        if (channel < 0)
            channel = 0;
        if (channel > 255)
            channel = 255;
        result |= (u32)channel << shift;
    }
    return result;
}
