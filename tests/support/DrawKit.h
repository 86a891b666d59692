// DrawKit.h -- what the drawing tests share: an engine started on a real window, rectangle meshes, small PNG
// files, and reading back regions of the frame being drawn.
#pragma once

#include "KRGraphics.h"

#include <string>
#include <vector>

// Starts the engine on the scripted back-end in a window of 800 by 600 logical (its client is 799 by 599), camera
// at the origin, black background. The world point (x, y) then lies on pixel (x + 400, y + 300) from the bottom left.
void StartGraphicsWindowed();

// The same, then full screen on a scripted screen of that size, with two frames presented so that the back buffer
// has the new size.
void StartGraphicsFullScreen(int screenWidth, int screenHeight);

// An empty frame, started and ended: afterwards no program is in use, as at the start of any Draw but the very
// first (the engine's start leaves the colour program active).
void PresentEmptyFrame();

// A rectangle centred on its origin: two triangles of one colour, texture coordinates 0 to 1 with v = 0 at the top.
KRGfxVertexList* MakeRectMesh(float halfWidth, float halfHeight, u32 color);

// Writes a PNG of 0xAARRGGBB pixels, top row first.
bool WritePng(const std::string& path, int width, int height, const std::vector<u32>& pixels);

// Reads a rectangle of the back buffer (origin bottom left) as 0xAARRGGBB, bottom row first; zeros, and the test
// fails, when the frame was not drawn.
std::vector<u32> ReadRegion(int x, int y, int width, int height);

// Red, green or blue of a 0xAARRGGBB pixel.
inline int Red(u32 pixel) { return (int)((pixel >> 16) & 0xFF); }
inline int Green(u32 pixel) { return (int)((pixel >> 8) & 0xFF); }
inline int Blue(u32 pixel) { return (int)(pixel & 0xFF); }
// The pixel without its alpha: the colour on screen.
inline u32 Rgb(u32 pixel) { return pixel & 0x00FFFFFFu; }

// Starts a frame with the texture program active, a white tint, full transparency, blending off and the world
// matrix at the origin, as a state's Draw sets them; the frame stays open for drawing and reading.
void BeginTexturedFrame();

// The same with the colour program active.
void BeginColourFrame();

// The viewport as OpenGL has it: x, y, width, height.
std::vector<int> Viewport();
