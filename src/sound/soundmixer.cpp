// soundmixer.cpp -- the sound wrapper's calls on SDL_mixer: device start with the silent stand-in, samples and
// their freeing, the music stream, channel handles with serials.
//
// Owns:    the system record, the live samples and streams, which play holds each mixing channel and the music
//          voice, the last error text.
// Fed by:  fmodsound.cpp (music) and fmodsound_effects.cpp (effects), always on the game thread.
// Note:    SDL_mixer mixes on its own audio thread. Nothing here runs on that thread: finished plays are found by
//          asking the mixer from the game thread, and samples are freed there (Mix_FreeChunk takes the audio lock).
#include "soundmixer.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>
#include <cstdio>
#include <vector>

struct SoundSample
{
    Mix_Chunk* chunk;
    unsigned char dropped; // nobody holds it any more: free it once no channel plays it
};

struct SoundStream
{
    Mix_Music* music;
};

static const int kFrequency = 44100;
static const int kOutputs = 2;
static const int kBufferFrames = 1024;

static SoundSystem sSystem = {0, 0, 0, 0};
static unsigned char sAudioUp = 0;  // the audio subsystem was started here
static unsigned char sMixerOpen = 0; // the device is open
// The device the mixer opened, found by asking SDL which one plays: its lock holds the audio thread off while a
// play is set up in several steps. 0 when it could not be found; the steps are then merely very close together.
static SDL_AudioDeviceID sDevice = 0;

static std::vector<SoundSample*> sSamples;
static std::vector<SoundStream*> sStreams;

// Which play holds each mixing channel, and the sample it was given.
static uint32_t sChannelSerial[kSoundChannelCount] = {0, 0, 0};
static SoundSample* sChannelSample[kSoundChannelCount] = {nullptr, nullptr, nullptr};
// The play that holds the music voice, and its stream.
static uint32_t sStreamSerial = 0;
static SoundStream* sStreamOnVoice = nullptr;
static uint32_t sNextSerial = 1;

static char sError[512] = "";

static SoundResult Fail(SoundResult result, const char* reason)
{
    std::snprintf(sError, sizeof(sError), "%s", reason && *reason ? reason : "unknown sound error");
    return result;
}

// The reason, with the file it concerns.
static SoundResult FailFile(const char* fileName, const char* reason)
{
    std::snprintf(sError, sizeof(sError), "%s: %s", fileName, reason && *reason ? reason : "cannot be read");
    return SOUND_ERR_FILE;
}

static uint32_t NextSerial()
{
    uint32_t serial = sNextSerial++;
    if (sNextSerial == 0)
        sNextSerial = 1;
    return serial;
}

static bool IsLiveSample(const SoundSample* sample)
{
    return sample && std::find(sSamples.begin(), sSamples.end(), sample) != sSamples.end();
}

static bool IsLiveStream(const SoundStream* stream)
{
    return stream && std::find(sStreams.begin(), sStreams.end(), stream) != sStreams.end();
}

static bool IsMusicHandle(SoundChannel channel)
{
    return channel.index == kSoundStreamVoice;
}

// A handle is current while no later play has taken its channel and, for music, while its stream is open.
static bool IsCurrent(SoundChannel channel)
{
    if (channel.serial == 0)
        return false;
    if (IsMusicHandle(channel))
        return sStreamOnVoice != nullptr && channel.serial == sStreamSerial;
    if (channel.index < 0 || channel.index >= sSystem.channels)
        return false;
    return sChannelSerial[channel.index] == channel.serial;
}

static bool IsPlayedAnywhere(const SoundSample* sample)
{
    for (int i = 0; i < sSystem.channels; ++i)
        if (sChannelSample[i] == sample && Mix_Playing(i))
            return true;
    return false;
}

static void FreeSample(SoundSample* sample)
{
    // Stops any channel that still plays it, under the mixer's audio lock.
    Mix_FreeChunk(sample->chunk);
    for (int i = 0; i < kSoundChannelCount; ++i)
        if (sChannelSample[i] == sample)
            sChannelSample[i] = nullptr;
    sSamples.erase(std::find(sSamples.begin(), sSamples.end(), sample));
    delete sample;
}

// Frees every dropped sample that no channel plays any more.
static void CollectSamples()
{
    for (size_t i = 0; i < sSamples.size();)
    {
        SoundSample* sample = sSamples[i];
        if (sample->dropped && !IsPlayedAnywhere(sample))
            FreeSample(sample); // the vector closed up over slot i
        else
            ++i;
    }
}

// The three channels serve everything: while the music stream is open and playing (or paused) it holds one of
// them, and effects share the rest.
static int EffectChannelCount()
{
    int music = (Mix_PlayingMusic() || Mix_PausedMusic()) ? 1 : 0;
    return std::max(sSystem.channels - music, 1);
}

// A channel that plays nothing, the lowest first; with all of them busy, the one whose play is oldest.
static int FreeOrOldestChannel()
{
    int oldest = 0;
    int count = EffectChannelCount();
    for (int i = 0; i < count; ++i)
    {
        if (!Mix_Playing(i))
            return i;
        if (sChannelSerial[i] < sChannelSerial[oldest])
            oldest = i;
    }
    return oldest;
}

static SDL_AudioDeviceID FindMixerDevice()
{
    for (SDL_AudioDeviceID id = 1; id <= 32; ++id)
        if (SDL_GetAudioDeviceStatus(id) != SDL_AUDIO_STOPPED)
            return id;
    return 0;
}

static void LockMixer()
{
    if (sDevice)
        SDL_LockAudioDevice(sDevice);
}

static void UnlockMixer()
{
    if (sDevice)
        SDL_UnlockAudioDevice(sDevice);
}

// With no usable device, SDL's silent driver takes its place, whatever driver the environment asked for.
static bool StartSilentDriver()
{
    SDL_SetHintWithPriority(SDL_HINT_AUDIODRIVER, "dummy", SDL_HINT_OVERRIDE);
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0)
        return false;
    sAudioUp = 1;
    sSystem.silent = 1;
    return true;
}

SoundResult SoundSystemCreate(SoundSystem** outSystem)
{
    *outSystem = &sSystem;
    if (sAudioUp)
        return FMOD_OK;
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) == 0)
    {
        sAudioUp = 1;
        return FMOD_OK;
    }
    if (StartSilentDriver())
        return FMOD_OK;
    return Fail(SOUND_ERR_INIT, SDL_GetError());
}

static bool OpenDevice()
{
    return Mix_OpenAudio(kFrequency, MIX_DEFAULT_FORMAT, kOutputs, kBufferFrames) == 0;
}

SoundResult SoundSystemInit(SoundSystem* system, int32_t channels)
{
    if (system != &sSystem || !sAudioUp)
        return Fail(SOUND_ERR_INIT, "the audio subsystem is not started");
    if (!OpenDevice())
    {
        if (sSystem.silent)
            return Fail(SOUND_ERR_INIT, Mix_GetError());
        // A driver that starts but finds no device (ALSA without a card, no sound server): go silent.
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        sAudioUp = 0;
        if (!StartSilentDriver() || !OpenDevice())
            return Fail(SOUND_ERR_INIT, Mix_GetError());
    }
    sMixerOpen = 1;
    sDevice = FindMixerDevice();
    Mix_Init(MIX_INIT_OGG);

    sSystem.channels = std::min(std::max(channels, 1), kSoundChannelCount);
    Mix_AllocateChannels(sSystem.channels);
    int frequency = 0, outputs = 0;
    Uint16 format = 0;
    Mix_QuerySpec(&frequency, &format, &outputs);
    sSystem.frequency = frequency;
    sSystem.outputs = outputs;
    return FMOD_OK;
}

void SoundSystemUpdate(SoundSystem* system)
{
    if (system == &sSystem && sMixerOpen)
        CollectSamples();
}

SoundResult SoundCreateSample(SoundSystem* system, const char* fileName, SoundSample** outSample)
{
    if (system != &sSystem || !sMixerOpen)
        return Fail(SOUND_ERR_INIT, "the sound device is not open");
    CollectSamples();
    if (!fileName)
        return Fail(SOUND_ERR_FILE, "no file name");
    SDL_RWops* file = SDL_RWFromFile(fileName, "rb");
    if (!file)
        return FailFile(fileName, SDL_GetError());
    Mix_Chunk* chunk = Mix_LoadWAV_RW(file, 1);
    if (!chunk)
        return FailFile(fileName, Mix_GetError());
    SoundSample* sample = new SoundSample{chunk, 0};
    sSamples.push_back(sample);
    *outSample = sample;
    return FMOD_OK;
}

void SoundDropSample(SoundSample* sample)
{
    if (IsLiveSample(sample))
        sample->dropped = 1;
}

SoundResult SoundReleaseSample(SoundSample* sample)
{
    if (!IsLiveSample(sample))
        return Fail(SOUND_ERR_HANDLE, "the sample is not open");
    FreeSample(sample);
    return FMOD_OK;
}

SoundResult SoundPlaySample(SoundSystem* system, int32_t channelId, SoundSample* sample, SoundChannel* channel)
{
    if (system != &sSystem || !sMixerOpen)
        return Fail(SOUND_ERR_INIT, "the sound device is not open");
    if (!IsLiveSample(sample))
        return Fail(SOUND_ERR_HANDLE, "the sample is not open");

    int index;
    if (channelId == FMOD_CHANNEL_REUSE && IsCurrent(*channel))
        index = channel->index;
    else if (channelId == FMOD_CHANNEL_FREE || channelId == FMOD_CHANNEL_REUSE)
        index = FreeOrOldestChannel();
    else if (channelId >= 0 && channelId < sSystem.channels)
        index = channelId;
    else
        return Fail(SOUND_ERR_HANDLE, "no such channel");

    // The old play is cut off before the level goes back to full, so it is never heard louder than it was.
    LockMixer();
    Mix_HaltChannel(index);
    Mix_Volume(index, MIX_MAX_VOLUME);
    int started = Mix_PlayChannel(index, sample->chunk, 0);
    UnlockMixer();
    if (started != index)
        return Fail(SOUND_ERR_PLAY, Mix_GetError());
    sChannelSample[index] = sample;
    sChannelSerial[index] = NextSerial();
    *channel = SoundChannel{index, sChannelSerial[index]};
    CollectSamples();
    return FMOD_OK;
}

SoundResult SoundCreateStream(SoundSystem* system, const char* fileName, SoundStream** outStream)
{
    if (system != &sSystem || !sMixerOpen)
        return Fail(SOUND_ERR_INIT, "the sound device is not open");
    if (!fileName)
        return Fail(SOUND_ERR_FILE, "no file name");
    Mix_Music* music = Mix_LoadMUS(fileName);
    if (!music)
        return FailFile(fileName, Mix_GetError());
    SoundStream* stream = new SoundStream{music};
    sStreams.push_back(stream);
    *outStream = stream;
    return FMOD_OK;
}

SoundResult SoundReleaseStream(SoundStream* stream)
{
    if (!IsLiveStream(stream))
        return Fail(SOUND_ERR_HANDLE, "the stream is not open");
    if (stream == sStreamOnVoice)
    {
        Mix_HaltMusic();
        sStreamOnVoice = nullptr;
        sStreamSerial = 0;
    }
    Mix_FreeMusic(stream->music);
    sStreams.erase(std::find(sStreams.begin(), sStreams.end(), stream));
    delete stream;
    return FMOD_OK;
}

SoundResult SoundPlayStream(SoundSystem* system, SoundStream* stream, unsigned char paused, unsigned char loop,
                            SoundChannel* channel)
{
    if (system != &sSystem || !sMixerOpen)
        return Fail(SOUND_ERR_INIT, "the sound device is not open");
    if (!IsLiveStream(stream))
        return Fail(SOUND_ERR_HANDLE, "the stream is not open");

    // The mixer cannot start paused: the audio thread is held off until the new play stands still at its start.
    LockMixer();
    Mix_HaltMusic();
    Mix_VolumeMusic(MIX_MAX_VOLUME);
    int failed = Mix_PlayMusic(stream->music, loop ? -1 : 0);
    if (!failed && paused)
        Mix_PauseMusic();
    UnlockMixer();
    if (failed)
        return Fail(SOUND_ERR_PLAY, Mix_GetError());
    sStreamOnVoice = stream;
    sStreamSerial = NextSerial();
    *channel = SoundChannel{kSoundStreamVoice, sStreamSerial};
    return FMOD_OK;
}

SoundResult SoundChannelSetVolume(SoundChannel channel, float volume)
{
    if (!IsCurrent(channel))
        return Fail(SOUND_ERR_HANDLE, "the channel is not current");
    int level = (int)(volume * MIX_MAX_VOLUME + 0.5f);
    level = std::min(std::max(level, 0), MIX_MAX_VOLUME);
    if (IsMusicHandle(channel))
        Mix_VolumeMusic(level);
    else
        Mix_Volume(channel.index, level);
    return FMOD_OK;
}

SoundResult SoundChannelSetPaused(SoundChannel channel, unsigned char paused)
{
    if (!IsCurrent(channel))
        return Fail(SOUND_ERR_HANDLE, "the channel is not current");
    if (IsMusicHandle(channel))
    {
        if (paused)
            Mix_PauseMusic();
        else
            Mix_ResumeMusic();
    }
    else if (paused)
        Mix_Pause(channel.index);
    else
        Mix_Resume(channel.index);
    return FMOD_OK;
}

SoundResult SoundChannelGetPaused(SoundChannel channel, unsigned char* outPaused)
{
    if (!IsCurrent(channel))
        return Fail(SOUND_ERR_HANDLE, "the channel is not current");
    *outPaused = (unsigned char)(IsMusicHandle(channel) ? Mix_PausedMusic() != 0 : Mix_Paused(channel.index) != 0);
    return FMOD_OK;
}

const char* SoundLastError()
{
    return sError;
}

int32_t SoundLiveSampleCount()
{
    return (int32_t)sSamples.size();
}

unsigned char SoundChannelIsPlaying(SoundChannel channel)
{
    if (!IsCurrent(channel))
        return 0;
    return (unsigned char)(IsMusicHandle(channel) ? Mix_PlayingMusic() != 0 : Mix_Playing(channel.index) != 0);
}

float SoundChannelGetVolume(SoundChannel channel)
{
    if (!IsCurrent(channel))
        return -1.0f;
    int level = IsMusicHandle(channel) ? Mix_VolumeMusic(-1) : Mix_Volume(channel.index, -1);
    return (float)level / MIX_MAX_VOLUME;
}

void SoundSystemShutdownForTest()
{
    if (sMixerOpen)
    {
        Mix_HaltChannel(-1);
        Mix_HaltMusic();
    }
    while (!sSamples.empty())
        FreeSample(sSamples.back());
    while (!sStreams.empty())
        SoundReleaseStream(sStreams.back());
    if (sMixerOpen)
    {
        int frequency = 0, outputs = 0;
        Uint16 format = 0;
        for (int guard = 0; guard < 64 && Mix_QuerySpec(&frequency, &format, &outputs) != 0; ++guard)
            Mix_CloseAudio();
        Mix_Quit();
    }
    for (int guard = 0; guard < 64 && SDL_WasInit(SDL_INIT_AUDIO) != 0; ++guard)
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    SDL_ResetHint(SDL_HINT_AUDIODRIVER);
    sSystem = SoundSystem{0, 0, 0, 0};
    sAudioUp = 0;
    sMixerOpen = 0;
    sDevice = 0;
    for (int i = 0; i < kSoundChannelCount; ++i)
    {
        sChannelSerial[i] = 0;
        sChannelSample[i] = nullptr;
    }
    sStreamSerial = 0;
    sStreamOnVoice = nullptr;
    sError[0] = 0;
}
