// fmodsound.h -- the sound wrapper: one streamed music track that loops, with a volume shared by music and
// effects, and five short effects, all on three mixing channels.
//
// Music: MusicInit once, before the window exists. A state sets its track in Load (MusicSetTrack), starts it in
// Init (MusicPlay(0)) and calls MusicUpdate every frame of its Update; nothing stops the music when a state ends.
//
// Effects: every play is five steps, in this order and never separated, because what plays is always the sound
// decoded last, whichever instance the call goes through:
//
//     SoundEffect* effect = new SoundEffect(1);
//     effect->Load(kEffectJumpFile);
//     gEffectJump.Assign(effect);            // deletes effect
//     float volume = gMusic.GetVolume();
//     gEffectJump.PlayReuse(volume);
//
// The EffectPlay* helpers below run exactly these steps for the five effects of the game.
//
// A failed call stops the process with a report quoting "s_result == FMOD_OK" (music) or "m_result == FMOD_OK"
// (effects), the source file and line; a missing music file is fatal at MusicSetTrack, a missing effect file at
// its play. Without any audio device the game runs silently (one console line says so).
#pragma once

struct SoundSystem;

// ---- Music ----

// Volume 0.5, audio start, three mixing channels. The first call of the program.
void MusicInit();
// Remembers the name (the text is not copied: pass a literal) and, if music is enabled, stops and closes the
// stream that was open and opens this one. It plays only after MusicPlay.
void MusicSetTrack(const char* fileName);
// If music is enabled, starts the open stream from its beginning, looping, at full level until the next
// MusicApplyVolume. A second call plays the same stream again from the start on a new channel.
void MusicPlay(unsigned char paused);
// MusicApplyVolume, then one pump of the mixer. Every frame of the states that have music.
void MusicUpdate();
// Half the volume on the music's channel (the volume itself stays) and a pump: for paused play. The next
// MusicUpdate brings the level back.
void MusicUpdateHalfVolume();
// If enabled and the volume lies in 0.0 to 1.0, sets it on the music's channel.
void MusicApplyVolume();
// A step of 0.1 up or down, refused when it would leave 0.0 to 1.0 (the steps add up in 32-bit floats).
void MusicVolumeUp();
void MusicVolumeDown();
// Pauses or resumes the music's channel. Not used by the game.
void MusicPause(unsigned char paused);
void MusicTogglePause();
// Sets or inverts the flag every music operation tests. Turning it on reopens the track and plays it paused;
// turning it off closes the stream. Not used by the game.
void MusicSetEnabled(unsigned char enabled);
void MusicToggleEnabled();
// Closes the open stream; stops the process when none is open.
void MusicRelease();

const char* MusicGetTrack();
unsigned char MusicIsEnabled();
SoundSystem* MusicGetSystem();

class Music
{
  public:
    // The volume of music and effects alike, 0.5 at start.
    float GetVolume();
};
extern Music gMusic;

// ---- Effects ----

class SoundEffect
{
  public:
    unsigned char loaded; // 1 once Load or Assign ran
    const char* fileName; // not copied; null until Load or Assign

    // The number is ignored; callers pass 1.
    SoundEffect(int unused = 1);

    // Sets loaded, keeps the name and decodes the file as the shared sound.
    SoundEffect& Load(const char* name);
    // Takes the other's name, decodes the file again as the shared sound and deletes the other. The copy it
    // returns is of no use to anyone.
    SoundEffect Assign(SoundEffect* other);

    // Play the shared sound at the volume (set only when it lies in 0.0 to 1.0).
    void PlayReuse(float volume);  // restarts on one channel: a jump cuts off a gravity sound and the other way round
    void PlayScream(float volume); // a free channel
    void PlayRock(float volume);   // a free channel
    void PlaySpark(float volume);  // a free channel; the volume goes to the rock's channel, its own stays full
    // Stops and frees the shared sound. Nothing in the game calls it.
    void Release();
};

extern SoundEffect gEffectJump;    // jump
extern SoundEffect gEffectGravity; // gravity flip
extern SoundEffect gEffectScream;  // hit by a hazard, a life lost
extern SoundEffect gEffectRock;    // a drop wall lands
extern SoundEffect gEffectSpark;   // battery pick-up

extern const char* const kEffectJumpFile;    // "PopVocal CTE02_09.6.wav"
extern const char* const kEffectGravityFile; // "SCI-FI-PASS-BY_GEN-HDF-20746.ogg"
extern const char* const kEffectScreamFile;  // "HUMAN-SCREAM_GEN-HDF-15252.wav"
extern const char* const kEffectRockFile;    // "RockImpact CTE02_24.1.wav"
extern const char* const kEffectSparkFile;   // "Electricity_Spark_Activate.ogg"

// The five steps for each effect of the game, with its file and its play operation.
void EffectPlayJump();
void EffectPlayGravity();
void EffectPlayScream();
void EffectPlayRock();
void EffectPlaySpark();

// ---- Music tracks ----

extern const char* const kMusicMenuTrack;      // menu and level selection
extern const char* const kMusicCreditsTrack;   // credits
extern const char* const kMusicLevelTrack;     // every level
extern const char* const kMusicChallengeTrack; // the boulder chase of the last level
