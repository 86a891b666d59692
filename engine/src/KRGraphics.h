// KRGraphics.h -- the drawing context, the frame's clear and present, the camera and the window limits.
#pragma once

#include <cstdint>

extern int32_t gKRWinWidth;   // logical window size given to KRGfxInit; never changed, also not by full screen
extern int32_t gKRWinHeight;
extern float gKRCamPosX;      // camera position in world units
extern float gKRCamPosY;
extern float gKRWinMinX;      // world rectangle the camera sees
extern float gKRWinMaxX;
extern float gKRWinMinY;
extern float gKRWinMaxY;
extern float gKRCameraDistance;

int32_t KRGfxInit(int32_t width, int32_t height); // called by KRSysInit only
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
void KRGfxSetCamPosition(float x, float y);
void KRGfxGetCamPosition(float* pX, float* pY);
