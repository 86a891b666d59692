// KRPlatformScripted.h -- the test back-end: keys, buttons, cursor, window closing and frame time come from a
// script, step by step, so that any game state runs frame by frame and deterministically through the real loop.
//
// A step is the time between two message pumps: step 0 runs until the pump at the end of the first frame, step s
// covers frame s and whatever input updates come before it (a state's Init and its two updates). The window and
// its OpenGL context are real (the SDL back-end's), so whatever is drawn can be read back.
#pragma once

#include "KRPlatform.h"

extern const KRPlatform gKRPlatformScripted;

// Back to an empty script: no keys, cursor at (0, 0), every step 1/60 s, a screen of 1920 by 1080, step 0.
void KRScriptReset();

void KRScriptHoldKey(unsigned char key, int firstStep, int lastStep); // down from firstStep to lastStep, inclusive
void KRScriptSetCursor(int step, int x, int y);                       // client pixels, from this step on
void KRScriptSetFrameTime(int step, double seconds);                  // the frame of this step only
void KRScriptSetDefaultFrameTime(double seconds);
void KRScriptCloseWindowAt(int step);            // the pump at the end of this step's frame reports the close
void KRScriptActivateAt(int step, int active);   // the pump at the end of this step's frame reports (de)activation
void KRScriptSetScreenSize(int width, int height);
void KRScriptSetPresentHook(void (*hook)(int step)); // called at each present, before the buffers swap

// Which steps' frames are drawn. Every one, as a player sees them (the default, and after a reset), or only those
// asked for: the frames of the other steps go through the whole loop and every OpenGL call, but their clears and
// triangles are discarded before they become pixels (GL_RASTERIZER_DISCARD), and the present shows nothing (the
// buffers are swapped only when the window's size has changed since the last shown frame, which is when the
// renderer takes a new size), so a run that looks only at the game's variables costs no shading and no copying to
// the window. Takes effect at once: a step asked for before its frame starts is drawn.
void KRScriptDrawEveryStep();
void KRScriptDrawNoStep();
void KRScriptDrawStep(int step);     // this step's frame too
int KRScriptStepDrawn(int step);
// Whether the picture in the back buffer was drawn: that of the frame last presented (during the present hook,
// the frame being presented); before the first present, whether the step under way is drawn.
int KRScriptFrameDrawn();

// Reads a script text, one command per line, '#' starts a comment:
//   key <name> <first>[-<last>]   hold a key (A, 7, F1, Return, Escape, Space, LButton, RButton, Shift, Control,
//                                  Minus, or a number such as 0x70)
//   cursor <x> <y> <step>         cursor from that step on
//   frametime <seconds> [<step>]  that step's frame time, or the default without a step
//   close <step>                  the window is closed at the end of that step's frame
//   screen <width> <height>       the screen size full screen stretches to
// Gives 1, or 0 with a message on standard error for a line it cannot read.
int KRScriptParse(const char* text);

int KRScriptGetStep();          // pumps so far
int KRScriptCursorVisible();    // what the game last asked of the cursor
int KRScriptKeyFromName(const char* name); // -1 for an unknown name
