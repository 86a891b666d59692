// KRGraphics.h -- the graphics of the Kestrel Runtime: the drawing context and the frame, the two shader programs,
// the camera and window limits, the per-draw render state, meshes, textures, debug primitives and bitmap fonts.
//
// World coordinates: the view is gKRWinWidth by gKRWinHeight world units (800 by 600 in the game), y upward, the
// camera at its centre; one world unit is one pixel of the logical window, in a window and in full screen alike.
// Colours are 0xAARRGGBB in vertices and floats from 0.0 to 1.0 in setters.
#pragma once

#include "KRMtx33.h"
#include "KRTypes.h"

#include <cstdint>

// ---- Frame, camera and window limits (KRGraphics.cpp) ----

extern int32_t gKRWinWidth;   // logical window size given to KRGfxInit; never changed, also not by full screen
extern int32_t gKRWinHeight;
extern float gKRCamPosX;      // camera position in world units
extern float gKRCamPosY;
extern float gKRWinMinX;      // world rectangle the camera sees
extern float gKRWinMaxX;
extern float gKRWinMinY;
extern float gKRWinMaxY;
extern float gKRCameraDistance; // the camera's height above the world plane, 60; KRGfxPrint shares it

int32_t KRGfxInit(int32_t width, int32_t height); // called by KRSysInit only
void KRGfxReset();                                // empties the vertex staging; nothing in the game calls it
void KRGfxExit();                                 // called by KRSysExit only
void KRGfxStart();
void KRGfxEnd();
void KRGfxSetBackgroundColor(float red, float green, float blue);

int32_t KRGetWindowWidth();
int32_t KRGetWindowHeight();
float KRGfxGetWinMinX();
float KRGfxGetWinMaxX();
float KRGfxGetWinMinY();
float KRGfxGetWinMaxY();
// Stores the camera and recomputes the window limits at once; the shader sees it at the next program change.
void KRGfxSetCamPosition(float x, float y);
void KRGfxGetCamPosition(float* pX, float* pY);

// ---- Render state (KRGraphics.cpp) ----

enum
{
    KR_GFX_RM_NONE    = 0, // no program
    KR_GFX_RM_COLOR   = 1, // the colour program: vertex colours
    KR_GFX_RM_TEXTURE = 2, // the texture program: the bound texture
};

enum
{
    KR_GFX_BM_NONE  = 0, // no blending
    KR_GFX_BM_BLEND = 1, // source alpha, one minus source alpha
    KR_GFX_BM_ADD   = 2, // source alpha, one
};

// Makes the program of that mode the active one. Only a change of program uploads the camera (projection, view
// and viewport), so a Draw calls it before it draws. Any other value does nothing.
void KRGfxSetRenderMode(int32_t mode);
// Any other value does nothing. Blending carries over between frames and programs.
void KRGfxSetBlendMode(int32_t mode);

// The world matrix of the next draws: identity with translation, from a 3 by 3 matrix, from a full row-major 4 by 4.
void KRGfxSetPosition(float x, float y);
void KRGfxSetTransform(const KRMtx33* pMtx);
void KRGfxSetTransform3D(const f32 mtx[4][4]);

// Uniforms of the active program only: what is set under one render mode does not reach the other program.
void KRGfxSetTransparency(float alpha);                           // multiplies the alpha only
void KRGfxSetBlendColor(float red, float green, float blue, float alpha); // mixes toward a colour by its alpha
void KRGfxSetTintColor(float red, float green, float blue, float alpha);  // multiplies all four channels

// The one shader holder: three program ids indexed by render mode (index 0 stays 0) and the active index.
class Shader
{
public:
    u32 mProgram[3];
    u32 mActive;

    // Builds the colour program (1) and the texture program (2).
    void Init();
    // Compiles one shader; only a shader that compiled is attached to the program. A failure is silent.
    void Compile(u32 programIndex, const char* source, u32 shaderType);
    // False when that index is already active. Index 0 works as Unuse and gives false.
    bool Use(u32 index);
    void Unuse();
    u32 GetActive() const;
    // In the active program, looked up by name at every call; -1 when no program is active.
    int32_t GetUniformLocation(const char* name) const;
    int32_t GetAttribLocation(const char* name) const;
    // Deletes every program with its attached shaders; no program is active afterwards.
    void Destroy();
};

extern Shader gKRShader;

// The GLSL texts of the two programs (no version line, the 2.0 generation).
extern const char* const gKRColorVertexShader;
extern const char* const gKRColorFragmentShader;
extern const char* const gKRTextureVertexShader;
extern const char* const gKRTextureFragmentShader;

// ---- Meshes (KRGraphicsMesh.cpp) ----

// A mesh: three OpenGL buffers, [0] positions (3 floats), [1] colours (4 floats), [2] texture coordinates (2).
struct KRGfxVertexList
{
    u32* vbo;   // own heap block of three ids
    u32 vtxNum;
};

// One staged vertex.
struct KRGfxVertex
{
    f32 x, y, z;
    u32 color; // 0xAARRGGBB
    f32 u, v;
};

enum
{
    KR_GFX_VERTEX_MAX = 24576 // staged vertices: the largest mesh is 8192 triangles
};

enum
{
    KR_GFX_MDM_POINTS     = 0,
    KR_GFX_MDM_LINES      = 1,
    KR_GFX_MDM_LINE_STRIP = 2,
    KR_GFX_MDM_TRIANGLES  = 3,
};

extern u32 gKRVertexNum;    // vertices staged for the mesh being built
extern u8 gKRMeshBuilding;  // set by KRGfxMeshStart, cleared by KRGfxMeshEnd; nothing reads it

// Building: KRGfxMeshStart, any number of KRGfxTriAdd and KRGfxVertexAdd, KRGfxMeshEnd. The start does not empty
// the staging: an unfinished mesh joins the next one. No bounds check.
void KRGfxMeshStart();
void KRGfxTriAdd(float x0, float y0, u32 c0, float u0, float v0, float x1, float y1, u32 c1, float u1, float v1,
                 float x2, float y2, u32 c2, float u2, float v2);
void KRGfxVertexAdd(float x, float y, u32 color, float u, float v);
KRGfxVertexList* KRGfxMeshEnd();
// Draws with the active program; a mode above 3 prints "Mesh Draw Mode %u is invalid!\n" and draws nothing.
void KRGfxMeshDraw(KRGfxVertexList* pMesh, u32 mode);
void KRGfxMeshFree(KRGfxVertexList* pMesh);
void KRGfxTriListInitialize(KRGfxVertexList* pMesh); // allocates the zeroed block of three ids

// ---- Textures (KRGraphicsTexture.cpp) ----

struct KRGfxTexture
{
    u32* glId;      // own heap block of one id
    char name[256]; // the path as given to KRGfxTextureLoad; all zero for a texture from memory
};

enum
{
    KR_GFX_TM_NEAREST = 0,
    KR_GFX_TM_LINEAR  = 1,
};

// Null only for a path of more than 255 characters. A missing or undecodable file still gives a texture: its
// upload raises an OpenGL error that stops the process at the next CHECK_GL_ERROR.
KRGfxTexture* KRGfxTextureLoad(const char* path);
KRGfxTexture* KRGfxTextureLoadFromMemory(const unsigned char* pRGBA, int32_t width, int32_t height);
// Binds the texture to unit 0 with the offset brought to 1.0 or below; null only unbinds.
void KRGfxTextureSet(KRGfxTexture* pTexture, float offsetX, float offsetY);
// The pointer must not be null.
void KRGfxTextureUnload(KRGfxTexture* pTexture);
// Filters of the bound texture; another mode prints "Unsupported texture mode!\n".
void KRGfxSetTextureMode(int32_t mode);
// Saves nothing; says so.
void KRGfxSaveTextureToFile(KRGfxTexture* pTexture, const char* path);
void KRGfxTextureInitialize(KRGfxTexture* pTexture); // allocates the zeroed block of one id

// ---- Debug primitives (KRGraphicsDebug.cpp) ----
// The writers put vertices into the first staging entries and draw nothing; they leave gKRVertexNum alone.

void KRGfxPoint(float x, float y, float z, u32 color);
void KRGfxLine(float x0, float y0, float z0, float r0, float g0, float b0, float a0, float x1, float y1, float z1,
               float r1, float g1, float b1, float a1); // draws, under the colour program only
void KRGfxTri(float x0, float y0, float z0, u32 c0, float x1, float y1, float z1, u32 c1, float x2, float y2, float z2,
              u32 c2);
void KRGfxQuad(float x0, float y0, float z0, u32 c0, float x1, float y1, float z1, u32 c1, float x2, float y2, float z2,
               u32 c2, float x3, float y3, float z3, u32 c3);
void KRGfxBox(float x, float y, float z, float sizeX, float sizeY, float sizeZ, u32 color0, u32 color1);
void KRGfxSphere(float x, float y, float z, float radius, u32 color0, u32 color1, u32 slices);
// Draws and writes nothing; its arguments are ignored.
void KRGfxCone(float x, float y, float z, float dirX, float dirY, float dirZ, float radius, u32 color);
void KRGfxAxis(float scale);
// A step, not a blend: color0 for any t below 1.0, color1 from 1.0 on.
u32 KRGfxColInterp(u32 color0, u32 color1, float t);

// ---- Fonts (KRGraphicsFont.cpp) ----

// Renders the characters 32 to 127 of a system font into 96 display lists and gives the first list.
u32 KRGfxCreateFont(const char* face, int32_t size, u8 bold, u8 italic);
// Draws text at a world position in a colour, with the blend colour of the active program. The values of the
// format's conversions are the arguments that follow it: x, y, and so on.
void KRGfxPrint(u32 base, const char* format, int32_t x, int32_t y, float red, float green, float blue);
void KRGfxDestroyFont(u32 base);
