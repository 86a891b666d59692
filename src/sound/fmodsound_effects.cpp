// fmodsound_effects.cpp -- the effect half of the sound wrapper: one shared sound, four play operations, the five
// effects of the game.
//
// Owns:    gEffectSound, m_result, the channel of each play operation, gEffectJump, gEffectGravity,
//          gEffectScream, gEffectRock, gEffectSpark.
// Fed by:  the play code (jump, gravity flip, hits, drop walls, battery pick-ups), always in five steps.
// Note:    every play decodes its file twice (Load and Assign each make a sound). Only the sound made last is
//          held; the ones before it are handed to the mixer adapter, which frees them once nothing plays them.
#include "fmodsound.h"
#include "fmodsound_internal.h"

#include "KRDebug.h"

// A failed checked call stops the process; the report quotes the check and gives the mixer's reason.
#define EFFECT_CHECK() KR_ASSERT_MESG(m_result == FMOD_OK, "%s", SoundLastError())

// Shared by all effects: the sound made last.
static SoundSample* gEffectSound = nullptr;
static SoundResult m_result = FMOD_OK;
// One handle per play operation.
static SoundChannel sChannelReuse = kSoundChannelNone;
static SoundChannel sChannelScream = kSoundChannelNone;
static SoundChannel sChannelRock = kSoundChannelNone;
static SoundChannel sChannelSpark = kSoundChannelNone;

SoundEffect gEffectJump(1);
SoundEffect gEffectGravity(1);
SoundEffect gEffectScream(1);
SoundEffect gEffectRock(1);
SoundEffect gEffectSpark(1);

const char* const kEffectJumpFile = "PopVocal CTE02_09.6.wav";
const char* const kEffectGravityFile = "SCI-FI-PASS-BY_GEN-HDF-20746.ogg";
const char* const kEffectScreamFile = "HUMAN-SCREAM_GEN-HDF-15252.wav";
const char* const kEffectRockFile = "RockImpact CTE02_24.1.wav";
const char* const kEffectSparkFile = "Electricity_Spark_Activate.ogg";

// Decodes the file as the new shared sound; the one it replaces is no longer held by anyone.
static void CreateSharedSound(const char* fileName)
{
    SoundSample* made = nullptr;
    m_result = SoundCreateSample(MusicGetSystem(), fileName, &made);
    EFFECT_CHECK();
    SoundDropSample(gEffectSound);
    gEffectSound = made;
}

SoundEffect::SoundEffect(int unused) : loaded(0), fileName(nullptr)
{
    (void)unused;
}

SoundEffect& SoundEffect::Load(const char* name)
{
    loaded = 1;
    fileName = name;
    CreateSharedSound(fileName);
    return *this;
}

SoundEffect SoundEffect::Assign(SoundEffect* other)
{
    loaded = 1;
    fileName = other->fileName;
    CreateSharedSound(fileName);
    delete other;
    return *this;
}

// The play steps all operations share: start the shared sound, then set the volume on volumeChannel.
static void PlayShared(int32_t channelId, SoundChannel* channel, const SoundChannel* volumeChannel, float volume)
{
    m_result = SoundPlaySample(MusicGetSystem(), channelId, gEffectSound, channel);
    EFFECT_CHECK();
    if (volume >= 0.0f && volume <= 1.0f)
        SoundChannelSetVolume(*volumeChannel, volume);
}

void SoundEffect::PlayReuse(float volume)
{
    PlayShared(FMOD_CHANNEL_REUSE, &sChannelReuse, &sChannelReuse, volume);
}

void SoundEffect::PlayScream(float volume)
{
    PlayShared(FMOD_CHANNEL_FREE, &sChannelScream, &sChannelScream, volume);
}

void SoundEffect::PlayRock(float volume)
{
    PlayShared(FMOD_CHANNEL_FREE, &sChannelRock, &sChannelRock, volume);
}

void SoundEffect::PlaySpark(float volume)
{
    // The volume lands on the rock's channel and the spark stays at full level; that is how it sounds.
    PlayShared(FMOD_CHANNEL_FREE, &sChannelSpark, &sChannelRock, volume);
}

void SoundEffect::Release()
{
    m_result = SoundReleaseSample(gEffectSound);
    EFFECT_CHECK();
    gEffectSound = nullptr;
}

// The five steps of one play, never separated.
static void PlayEffect(SoundEffect* instance, const char* fileName, void (SoundEffect::*play)(float))
{
    SoundEffect* effect = new SoundEffect(1);
    effect->Load(fileName);
    instance->Assign(effect);
    float volume = gMusic.GetVolume();
    (instance->*play)(volume);
}

void EffectPlayJump()
{
    PlayEffect(&gEffectJump, kEffectJumpFile, &SoundEffect::PlayReuse);
}

void EffectPlayGravity()
{
    PlayEffect(&gEffectGravity, kEffectGravityFile, &SoundEffect::PlayReuse);
}

void EffectPlayScream()
{
    PlayEffect(&gEffectScream, kEffectScreamFile, &SoundEffect::PlayScream);
}

void EffectPlayRock()
{
    PlayEffect(&gEffectRock, kEffectRockFile, &SoundEffect::PlayRock);
}

void EffectPlaySpark()
{
    PlayEffect(&gEffectSpark, kEffectSparkFile, &SoundEffect::PlaySpark);
}

SoundSample* EffectGetSound()
{
    return gEffectSound;
}

SoundChannel EffectGetReuseChannel()
{
    return sChannelReuse;
}

SoundChannel EffectGetScreamChannel()
{
    return sChannelScream;
}

SoundChannel EffectGetRockChannel()
{
    return sChannelRock;
}

SoundChannel EffectGetSparkChannel()
{
    return sChannelSpark;
}

void EffectResetForTest()
{
    gEffectSound = nullptr;
    m_result = FMOD_OK;
    sChannelReuse = kSoundChannelNone;
    sChannelScream = kSoundChannelNone;
    sChannelRock = kSoundChannelNone;
    sChannelSpark = kSoundChannelNone;
    SoundEffect blank(1);
    gEffectJump = blank;
    gEffectGravity = blank;
    gEffectScream = blank;
    gEffectRock = blank;
    gEffectSpark = blank;
}
