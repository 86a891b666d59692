// fmodsound.cpp -- the music half of the sound wrapper: the one system, the streamed track, the shared volume.
//
// Owns:    gMusicSystem, s_result, gMusicTrack, gMusicSound, gMusicChannel, gMusicVolume, gMusicEnabled, gMusic.
// Fed by:  the main loop (MusicInit at start, MusicUpdate per state entry) and the states (track in Load, play in
//          Init, MusicUpdate or MusicUpdateHalfVolume every frame, the volume buttons of the options).
// Read by: the effect half, which plays on the same system at Music::GetVolume.
#include "fmodsound.h"
#include "fmodsound_internal.h"

#include "KRDebug.h"

#include <cstdio>

// A failed checked call stops the process; the report quotes the check and gives the mixer's reason.
#define MUSIC_CHECK() KR_ASSERT_MESG(s_result == FMOD_OK, "%s", SoundLastError())

static SoundSystem* gMusicSystem = nullptr;
static SoundResult s_result = FMOD_OK;
// Not copied: callers pass literals.
static const char* gMusicTrack = nullptr;
static SoundStream* gMusicSound = nullptr;
static SoundChannel gMusicChannel = kSoundChannelNone;
// Music and effects alike.
static float gMusicVolume = 0.5f;
// Nothing in the game changes it.
static unsigned char gMusicEnabled = 1;

static const int32_t kMixingChannels = 3;
static const float kVolumeStep = 0.1f;

Music gMusic;

const char* const kMusicMenuTrack = "ANCIENT RUINS - NewAge MSCNEW2_33.ogg";
const char* const kMusicCreditsTrack = "LOST CIVILIZATION - NewAge MSCNEW2_41.ogg";
const char* const kMusicLevelTrack = "SCI-FI-AMBIENCE_GEN-HDF-20485.ogg";
const char* const kMusicChallengeTrack = "ULTIMATE CHALLENGE - Corporate MSCSPR1_61.ogg";

static bool InVolumeRange(float volume)
{
    return volume >= 0.0f && volume <= 1.0f;
}

void MusicInit()
{
    gMusicVolume = 0.5f;
    s_result = SoundSystemCreate(&gMusicSystem);
    MUSIC_CHECK();
    s_result = SoundSystemInit(gMusicSystem, kMixingChannels);
    MUSIC_CHECK();
    if (gMusicSystem->silent)
    {
        std::printf("Sound: no audio device, the game runs without sound\n");
        std::fflush(stdout);
    }
    // The channel is still empty here, so this changes nothing; it stays as the start-up always had it.
    SoundChannelSetVolume(gMusicChannel, 0.0f);
}

void MusicSetTrack(const char* fileName)
{
    gMusicTrack = fileName;
    if (gMusicEnabled)
    {
        // Unchecked: the first call has no stream yet. Releasing also stops what plays.
        s_result = SoundReleaseStream(gMusicSound);
        gMusicSound = nullptr;
        s_result = SoundCreateStream(gMusicSystem, fileName, &gMusicSound);
        MUSIC_CHECK();
    }
}

void MusicPlay(unsigned char paused)
{
    if (gMusicEnabled == 1)
    {
        s_result = SoundPlayStream(gMusicSystem, gMusicSound, paused, 1, &gMusicChannel);
        MUSIC_CHECK();
    }
}

void MusicApplyVolume()
{
    if (gMusicEnabled && InVolumeRange(gMusicVolume))
        SoundChannelSetVolume(gMusicChannel, gMusicVolume);
}

void MusicUpdate()
{
    MusicApplyVolume();
    SoundSystemUpdate(gMusicSystem);
}

void MusicUpdateHalfVolume()
{
    float half = gMusicVolume / 2.0f;
    if (gMusicEnabled && InVolumeRange(half))
        SoundChannelSetVolume(gMusicChannel, half);
    SoundSystemUpdate(gMusicSystem);
}

void MusicVolumeUp()
{
    // 32-bit steps: four ups from 0.5 reach 0.9000001, and the fifth candidate, 1.0000001, is refused.
    float candidate = gMusicVolume + kVolumeStep;
    if (gMusicEnabled && InVolumeRange(candidate))
    {
        gMusicVolume += kVolumeStep;
        SoundChannelSetVolume(gMusicChannel, gMusicVolume);
    }
}

void MusicVolumeDown()
{
    // Five downs from 0.5 reach about 1.5e-8, and the sixth candidate lies below 0.0.
    float candidate = gMusicVolume - kVolumeStep;
    if (gMusicEnabled && InVolumeRange(candidate))
    {
        gMusicVolume -= kVolumeStep;
        SoundChannelSetVolume(gMusicChannel, gMusicVolume);
    }
}

void MusicPause(unsigned char paused)
{
    if (gMusicEnabled)
        SoundChannelSetPaused(gMusicChannel, paused);
}

void MusicTogglePause()
{
    if (gMusicEnabled)
    {
        unsigned char paused = 0;
        SoundChannelGetPaused(gMusicChannel, &paused);
        SoundChannelSetPaused(gMusicChannel, !paused);
    }
}

void MusicSetEnabled(unsigned char enabled)
{
    gMusicEnabled = enabled;
}

void MusicToggleEnabled()
{
    gMusicEnabled = !gMusicEnabled;
    if (gMusicEnabled == 1)
    {
        // The music comes back paused.
        MusicSetTrack(gMusicTrack);
        MusicPlay(1);
    }
    else
        MusicRelease();
}

void MusicRelease()
{
    s_result = SoundReleaseStream(gMusicSound);
    gMusicSound = nullptr;
    MUSIC_CHECK();
}

const char* MusicGetTrack()
{
    return gMusicTrack;
}

unsigned char MusicIsEnabled()
{
    return gMusicEnabled;
}

SoundSystem* MusicGetSystem()
{
    return gMusicSystem;
}

float Music::GetVolume()
{
    return gMusicVolume;
}

SoundStream* MusicGetStream()
{
    return gMusicSound;
}

SoundChannel MusicGetChannel()
{
    return gMusicChannel;
}

void SoundShutdownForTest()
{
    SoundSystemShutdownForTest();
    gMusicSystem = nullptr;
    s_result = FMOD_OK;
    gMusicTrack = nullptr;
    gMusicSound = nullptr;
    gMusicChannel = kSoundChannelNone;
    gMusicVolume = 0.5f;
    gMusicEnabled = 1;
    EffectResetForTest();
}
