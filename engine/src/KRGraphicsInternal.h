// KRGraphicsInternal.h -- what the graphics rooms share among themselves and with tests, not with the game.
#pragma once

#include "KRGraphics.h"

#include <string>

// The staging array behind KRGfxVertexAdd and the debug writers.
extern KRGfxVertex gKRVertexStaging[KR_GFX_VERTEX_MAX];

// Builds the view matrix of the camera with the given stretch on its diagonal and uploads it to uVMatrix of the
// active program. SetProjectionAndViewMatrices passes the full-screen scales, KRGfxPrint a third of them.
void KRGfxUploadViewMatrix(float scaleX, float scaleY);
// Projection, viewport and view of the camera, on the active program.
void SetProjectionAndViewMatrices();

// KRGfxPrint's text: the format with x, y, r, g, b as the values of its conversions, in the order a 32-bit
// argument list holds them (one word for each integer, two for a double), into at most 255 characters.
void KRGfxFormatPrintText(char out[256], const char* format, int32_t x, int32_t y, float red, float green,
                          float blue);

// The font file a face name stands for, with its bold and italic variant when the machine has it. *pBoldDone and
// *pItalicDone say whether the file itself is bold and italic, so that the rest is made up by the renderer.
std::string KRGfxFontFile(const char* face, bool bold, bool italic, bool* pBoldDone, bool* pItalicDone);
