// varnholt.h -- the splash, GS_SPLASH: the studio's logo, then the team's, each fading in and out on black, then
// the main menu. Return, Escape, Space or the left button fade the picture out early.
#pragma once

void VarnholtLoad();
void VarnholtInit();
void VarnholtUpdate();
void VarnholtDraw();
void VarnholtFree();
void VarnholtUnload();
