// KRGraphics.cpp -- the OpenGL context and the frame, the camera and window limits, and the per-draw render state:
// render mode, blend mode, world matrix, transparency, blend colour and tint.
//
// Owns:    gKRWinWidth, gKRWinHeight, the camera, the window limits, gKRCameraDistance.
// Fed by:  the platform back-end (context and present); KRSystem (the full-screen scales).
// Read by: every state's Draw, and KRInput's callers for the cursor in world coordinates.
#include "KRGraphics.h"

#include "KRDebug.h"
#include "KRGraphicsInternal.h"
#include "KRPlatform.h"
#include "KRSystem.h"
#include "Matrix4.h"

#include <GL/glew.h>
#include <cstdio>

int32_t gKRWinWidth = 0;
int32_t gKRWinHeight = 0;
float gKRCamPosX = 0.0f;
float gKRCamPosY = 0.0f;
float gKRWinMinX = 0.0f;
float gKRWinMaxX = 0.0f;
float gKRWinMinY = 0.0f;
float gKRWinMaxY = 0.0f;
float gKRCameraDistance = 60.0f;

static void ComputeWindowLimits()
{
    gKRWinMinX = gKRCamPosX - (float)gKRWinWidth * 0.5f;
    gKRWinMaxX = gKRCamPosX + (float)gKRWinWidth * 0.5f;
    gKRWinMinY = gKRCamPosY - (float)gKRWinHeight * 0.5f;
    gKRWinMaxY = gKRCamPosY + (float)gKRWinHeight * 0.5f;
}

int32_t KRGfxInit(int32_t width, int32_t height)
{
    gKRWinWidth = width;
    gKRWinHeight = height;
    std::printf("Graphics: OpenGL\n");
    std::fflush(stdout);

    // A start that cannot go on says why in one line, in the library's own words, and gives 0.
    if (!gKRPlatform->CreateGLContext())
    {
        std::fprintf(stderr, "Kestrel Runtime: cannot create the OpenGL context: %s\n", gKRPlatform->GetLastError());
        return 0;
    }
    GLenum glewResult = glewInit();
    if (glewResult != GLEW_OK)
    {
        std::fprintf(stderr, "Kestrel Runtime: GLEW cannot load OpenGL: %s\n",
                     (const char*)glewGetErrorString(glewResult));
        return 0;
    }
    if (!GLEW_VERSION_2_0)
    {
        const GLubyte* version = glGetString(GL_VERSION);
        std::fprintf(stderr, "Kestrel Runtime: OpenGL 2.0 is not supported: the context offers OpenGL %s\n",
                     version ? (const char*)version : "of unknown version");
        return 0;
    }

    ComputeWindowLimits();

    gKRShader.Init();

    // Only the colour program gets tint and transparency here: the texture program starts with a tint of zero,
    // so every textured Draw sets its own.
    KRGfxSetRenderMode(KR_GFX_RM_COLOR);
    KRGfxSetTintColor(1.0f, 1.0f, 1.0f, 1.0f);
    KRGfxSetTransparency(1.0f);
    glClearColor(1.0f, 1.0f, 1.0f, 1.0f);
    CHECK_GL_ERROR();
    return 1;
}

void KRGfxExit()
{
    gKRShader.Destroy();
    // The context is deleted without being made non-current first.
    gKRPlatform->DeleteGLContext();
}

void KRGfxStart()
{
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    // The logical size even in full screen: it holds only until the first program change of the frame.
    glViewport(0, 0, gKRWinWidth, gKRWinHeight);
}

void KRGfxEnd()
{
    CHECK_GL_ERROR();
    // Taking the program away makes the first render mode of the next frame a change, which uploads the camera.
    gKRShader.Unuse();
    CHECK_GL_ERROR();
    glFinish();
    gKRPlatform->Present();
}

void KRGfxSetBackgroundColor(float red, float green, float blue)
{
    glClearColor(red, green, blue, 1.0f);
}

int32_t KRGetWindowWidth()
{
    return gKRWinWidth;
}

int32_t KRGetWindowHeight()
{
    return gKRWinHeight;
}

float KRGfxGetWinMinX()
{
    return gKRWinMinX;
}

float KRGfxGetWinMaxX()
{
    return gKRWinMaxX;
}

float KRGfxGetWinMinY()
{
    return gKRWinMinY;
}

float KRGfxGetWinMaxY()
{
    return gKRWinMaxY;
}

void KRGfxSetCamPosition(float x, float y)
{
    gKRCamPosX = x;
    gKRCamPosY = y;
    ComputeWindowLimits();
}

void KRGfxGetCamPosition(float* pX, float* pY)
{
    *pX = gKRCamPosX;
    *pY = gKRCamPosY;
}

// Row-major in memory is column-major for OpenGL: the transposed matrix goes up with transpose false.
static void UploadMatrix(const char* uniform, const Matrix4& glLayout)
{
    glUniformMatrix4fv(gKRShader.GetUniformLocation(uniform), 1, GL_FALSE, &glLayout.m[0][0]);
}

void KRGfxUploadViewMatrix(float scaleX, float scaleY)
{
    Point4 eye(gKRCamPosX, gKRCamPosY, gKRCameraDistance, 1.0f);
    Point4 target(gKRCamPosX, gKRCamPosY, 0.0f, 1.0f);
    Vector4 up(0.0f, 1.0f, 0.0f, 0.0f);
    Matrix4 stretch;
    stretch.Identity();
    stretch.m[0][0] = scaleX;
    stretch.m[1][1] = scaleY;
    // Multiplied on the right of the transposed view, the stretch acts after the camera's translation.
    Matrix4 view = Matrix4Transposed(Matrix4LookAt(eye, target, up)) * stretch;
    UploadMatrix("uVMatrix", view);
}

void SetProjectionAndViewMatrices()
{
    int w = (int)((float)gKRWinWidth * gKRWinScaleX);
    int h = (int)((float)gKRWinHeight * gKRWinScaleY);

    // The projection spans the stretched size and the view stretches by the same scales, so the two cancel:
    // one world unit is one logical pixel, and the window limits are the edges of the viewport.
    float width = (float)w, height = (float)h, nearPlane = 1.0f, farPlane = 1000.0f;
    UploadMatrix("uPMatrix", Matrix4Transposed(Matrix4Ortho(&width, &height, &nearPlane, &farPlane)));

    glViewport(0, 0, w, h);
    CHECK_GL_ERROR();

    KRGfxUploadViewMatrix(gKRWinScaleX, gKRWinScaleY);
    CHECK_GL_ERROR();
}

void KRGfxSetRenderMode(int32_t mode)
{
    if (mode == KR_GFX_RM_NONE)
    {
        gKRShader.Use(0);
        return;
    }
    if (mode != KR_GFX_RM_COLOR && mode != KR_GFX_RM_TEXTURE)
        return;
    // The camera reaches the shader only here, and only when the program changes.
    if (gKRShader.Use((u32)mode))
        SetProjectionAndViewMatrices();
}

void KRGfxSetBlendMode(int32_t mode)
{
    switch (mode)
    {
    case KR_GFX_BM_NONE: glDisable(GL_BLEND); break;
    case KR_GFX_BM_BLEND:
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        break;
    case KR_GFX_BM_ADD:
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE);
        break;
    default: break;
    }
}

static void UploadWorldMatrix(const float m[16])
{
    glUniformMatrix4fv(gKRShader.GetUniformLocation("uWorldMatrix"), 1, GL_FALSE, m);
}

void KRGfxSetPosition(float x, float y)
{
    float m[16] = {1.0f, 0.0f, 0.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 0.0f, 0.0f, 1.0f, 0.0f, x, y, 0.0f, 1.0f};
    UploadWorldMatrix(m);
}

void KRGfxSetTransform(const KRMtx33* pMtx)
{
    float m[16] = {0.0f};
    m[0] = pMtx->m[0][0];
    m[1] = pMtx->m[1][0];
    m[4] = pMtx->m[0][1];
    m[5] = pMtx->m[1][1];
    m[10] = 1.0f;
    m[12] = pMtx->m[0][2];
    m[13] = pMtx->m[1][2];
    m[15] = 1.0f;
    UploadWorldMatrix(m);
}

void KRGfxSetTransform3D(const f32 mtx[4][4])
{
    float m[16];
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            m[c * 4 + r] = mtx[r][c];
    UploadWorldMatrix(m);
}

void KRGfxSetTransparency(float alpha)
{
    glUniform1f(gKRShader.GetUniformLocation("uTransparencyValue"), alpha);
}

void KRGfxSetBlendColor(float red, float green, float blue, float alpha)
{
    glUniform4f(gKRShader.GetUniformLocation("uBlendColor"), red, green, blue, alpha);
    CHECK_GL_ERROR();
}

void KRGfxSetTintColor(float red, float green, float blue, float alpha)
{
    glUniform4f(gKRShader.GetUniformLocation("uTintColor"), red, green, blue, alpha);
}
