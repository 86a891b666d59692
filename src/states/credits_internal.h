// credits_internal.h -- what the credits' units share: the state's record, its kinds and its pictures.
#pragma once

#include "level_state.h"

#include <string>

struct KRGfxTexture;

// The credits' own kind numbers; they mean this here only (90 is another kind in a level).
enum
{
    TYPE_CREDITS_1 = 86,
    TYPE_CREDITS_2 = 87,
    TYPE_CREDITS_3 = 88,
    TYPE_CREDITS_4 = 89,
    TYPE_CREDITS_FLOOR = 90,
    TYPE_SHIMMER_EXIT = 91,
    TYPE_SHIMMER_LIGHT = 92,
    TYPE_CREDITS_NOTICE = 93,
    TYPE_CREDITS_AUDIO = 94,
};

struct CreditsTextures
{
    KRGfxTexture *Credits1_TEX, *Credits2_TEX, *Credits3_TEX, *Credits4_TEX;
    KRGfxTexture *ShimmerExit_TEX, *ShimmerLight_TEX, *CopyRight_TEX, *CreditFmod_TEX;
};

// The credits keep a level's record (pool, variables) with a row of their own, so that the level's box,
// transform and compass steps serve them as they are.
struct CreditsState
{
    LevelState level;
    f32 sFadeAlpha;     // the closing fade past x = 1490
    u8 sExitLatch;      // the portal has been touched
    u8 sPauseKeyUsed;   // set by the keys, never read
    GameObjInst* sFade; // the closing fade's overlay
};

extern CreditsState gCredits;
extern CreditsTextures gCreditsTex;

void CreditsPauseRun(CreditsState* pC);
void CreditsDrawOne(GameObjInst* pInst);
void CreditsProbe(std::string* pOut);
