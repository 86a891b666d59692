// fmodsound_internal.h -- what the tests may look at inside the sound wrapper: the handles it holds, and a way
// back to a clean start between tests. The game never includes it.
#pragma once

#include "soundmixer.h"

// The music half.
SoundStream* MusicGetStream();
SoundChannel MusicGetChannel();

// The effect half: the shared sound and the channel of each play operation.
SoundSample* EffectGetSound();
SoundChannel EffectGetReuseChannel();
SoundChannel EffectGetScreamChannel();
SoundChannel EffectGetRockChannel();
SoundChannel EffectGetSparkChannel();

// Closes the device and the audio subsystem and puts every static of the wrapper back as the program starts,
// so that a test can call MusicInit again. The game itself never shuts sound down.
void SoundShutdownForTest();
void EffectResetForTest();
