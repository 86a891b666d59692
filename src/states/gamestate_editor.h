// gamestate_editor.h -- the level editor's six state functions and its two fades.
#pragma once

#include "KRTypes.h"

void GameStateEditorLoad();
void GameStateEditorInit();
void GameStateEditorUpdate();
void GameStateEditorDraw();
void GameStateEditorFree();
void GameStateEditorUnload();

// While the alpha is above 0 and the state 0: alpha -= 0.01; at 0 or below, alpha 0 and state 1.
void EditorFadeIn(f32* pAlpha, u32* pState);
// While the alpha is below 1 and the state 2: alpha += 0.01; at 1 or above, level selection is next, state 0.
void EditorFadeOut(f32* pAlpha, u32* pState);
