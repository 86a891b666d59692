// gametextures.h -- a state's pictures as a table: loaded in order in its Load, unloaded in the same order in
// its Unload.
//
//     static KRGfxTexture* charTEX;
//     static const GameTexture sTextures[] = { {&charTEX, "CHARACTER.png", "charTEX"}, ... };
//     Load:   GameTexturesLoad(sTextures, TEXTURE_NUM, __FUNCTION__);
//     Unload: GameTexturesUnload(sTextures, TEXTURE_NUM);
#pragma once

#include "KRTypes.h"

struct KRGfxTexture;

struct GameTexture
{
    KRGfxTexture** ppTexture; // the state's variable that holds it
    const char* file;         // relative to the working directory
    const char* check;        // the name a failure reports: the variable's name, or the name the state keeps
};

// Loads every row in order into its variable. A texture that can't be made stops the program: the report gives
// the row's check as the failed condition, func as the function and "Failed to create texture1!!" as the message.
void GameTexturesLoad(const GameTexture* pRows, u32 count, const char* func);

// Unloads every row's texture in the order of loading and nulls its variable.
void GameTexturesUnload(const GameTexture* pRows, u32 count);
