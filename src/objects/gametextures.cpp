// gametextures.cpp -- loading and unloading the pictures of a state from its table.
//
// Owns:    nothing; the textures belong to the variables of the state that loaded them.
// Used by: every state's Load and Unload.
#include "gametextures.h"

#include "KRDebug.h"
#include "KRGraphics.h"

void GameTexturesLoad(const GameTexture* pRows, u32 count, const char* func)
{
    for (u32 i = 0; i < count; i++)
    {
        *pRows[i].ppTexture = KRGfxTextureLoad(pRows[i].file);
        if (!*pRows[i].ppTexture)
            KRAssertMesgFail(pRows[i].check, __LINE__, func, __FILE__, "Failed to create texture1!!");
    }
}

void GameTexturesUnload(const GameTexture* pRows, u32 count)
{
    for (u32 i = 0; i < count; i++)
    {
        KRGfxTextureUnload(*pRows[i].ppTexture);
        *pRows[i].ppTexture = nullptr;
    }
}
