// soundmixer.h -- the small adapter under the sound wrapper: the mixer device, whole samples, the one music
// stream and channel handles, with results in place of errors. Only fmodsound*.cpp and tests include it.
//
// The sound wrapper keeps its rules (volumes, channel choice, checks); this layer only turns them into SDL_mixer
// calls. A channel handle names one play: it goes stale as soon as its mixer channel is given to another play, and
// every call on a stale or empty handle is a harmless no-op that returns an error.
#pragma once

#include <cstdint>

typedef int32_t SoundResult;
const SoundResult FMOD_OK = 0;
const SoundResult SOUND_ERR_INIT = 1;   // the audio subsystem or device could not be brought up
const SoundResult SOUND_ERR_FILE = 2;   // a sound file is missing or cannot be decoded
const SoundResult SOUND_ERR_HANDLE = 3; // an empty, released or stale handle
const SoundResult SOUND_ERR_PLAY = 4;   // the mixer refused to start a play

// Channel ids of a sample play.
const int32_t FMOD_CHANNEL_FREE = -1;  // a channel that plays nothing, else the oldest play is cut off
const int32_t FMOD_CHANNEL_REUSE = -2; // the handle's own channel while the handle is current, else as free

// Mixing channels for the effects; the music stream has a voice of its own beside them.
const int32_t kSoundChannelCount = 3;
// The index that music handles carry.
const int32_t kSoundStreamVoice = kSoundChannelCount;

// The opened device, as the mixer reports it.
struct SoundSystem
{
    int32_t frequency;    // samples per second
    int32_t outputs;      // 1 mono, 2 stereo
    int32_t channels;     // mixing channels for the effects
    unsigned char silent; // 1 when no real device could be opened and the silent driver stands in
};

struct SoundSample; // a sound decoded whole into memory
struct SoundStream; // a sound decoded while it plays

// One play on one channel. serial 0 is the empty handle.
struct SoundChannel
{
    int32_t index;
    uint32_t serial;
};
const SoundChannel kSoundChannelNone = {-1, 0};

// Starts the audio subsystem; the system record is the same one on every call.
SoundResult SoundSystemCreate(SoundSystem** outSystem);
// Opens the device with that many mixing channels. Without any usable device, SDL's silent "dummy" driver
// stands in and system->silent is set.
SoundResult SoundSystemInit(SoundSystem* system, int32_t channels);
// Frees the samples that nobody holds and no channel plays any more. Game thread only.
void SoundSystemUpdate(SoundSystem* system);

// Reads and decodes the whole file.
SoundResult SoundCreateSample(SoundSystem* system, const char* fileName, SoundSample** outSample);
// The holder forgets the sample: it is freed at the next update, or once no channel plays it.
void SoundDropSample(SoundSample* sample);
// Stops every channel that plays the sample and frees it at once.
SoundResult SoundReleaseSample(SoundSample* sample);
// Starts the sample on channelId (FMOD_CHANNEL_FREE or FMOD_CHANNEL_REUSE with *channel) at full volume and
// writes the new play's handle to *channel.
SoundResult SoundPlaySample(SoundSystem* system, int32_t channelId, SoundSample* sample, SoundChannel* channel);

// Opens the file for streaming.
SoundResult SoundCreateStream(SoundSystem* system, const char* fileName, SoundStream** outStream);
// Stops the stream if it plays and closes it. A null stream is an error and changes nothing.
SoundResult SoundReleaseStream(SoundStream* stream);
// Starts the stream from its beginning at full volume (paused or not, looping or once), cutting off what the music
// voice played, and writes the new play's handle to *channel.
SoundResult SoundPlayStream(SoundSystem* system, SoundStream* stream, unsigned char paused, unsigned char loop,
                            SoundChannel* channel);

// Volume from 0.0 to 1.0 on a current handle.
SoundResult SoundChannelSetVolume(SoundChannel channel, float volume);
SoundResult SoundChannelSetPaused(SoundChannel channel, unsigned char paused);
SoundResult SoundChannelGetPaused(SoundChannel channel, unsigned char* outPaused);

// The mixer's reason for the last failed call.
const char* SoundLastError();

// For tests: what the mixer holds and plays right now.
// Decoded samples not yet freed.
int32_t SoundLiveSampleCount();
// 1 while the handle is current and its play goes on (a paused play counts).
unsigned char SoundChannelIsPlaying(SoundChannel channel);
// The level the mixer applies on the handle's channel, from 0.0 to 1.0; -1 for a stale handle.
float SoundChannelGetVolume(SoundChannel channel);
// For tests: closes the device and the audio subsystem and forgets every sample, stream and handle, so that a
// later SoundSystemCreate starts from scratch.
void SoundSystemShutdownForTest();
