// KRGraphics.cpp -- the OpenGL context, the frame's clear and present, the camera and the window limits.
//
// Owns:    gKRWinWidth, gKRWinHeight, the camera, the window limits.
// Fed by:  the platform back-end (context and present).
// Read by: every state's Draw, and KRInput's callers for the cursor in world coordinates.
#include "KRGraphics.h"

#include "KRDebug.h"
#include "KRPlatform.h"

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

    if (!gKRPlatform->CreateGLContext())
        return 0;

    if (glewInit() != GLEW_OK)
        HALT("fail to initialize GLEW!!");
    if (!GLEW_VERSION_2_0)
        HALT("OpenGL 2.0 is not supported!!");

    ComputeWindowLimits();

    glClearColor(1.0f, 1.0f, 1.0f, 1.0f);
    CHECK_GL_ERROR();
    return 1;
}

void KRGfxExit()
{
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
    // The program is taken away here once the shaders stand, so the first render mode of a frame is a change.
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
