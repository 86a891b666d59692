// Sound in the real start-up and main loop: it comes up before the window, the loop pumps it once at every
// state entry, and a state without music of its own (the editor after level selection) leaves the track playing.
#include "ChildProcess.h"
#include "GameRun.h"
#include "SoundFixture.h"
#include "gameloop.h"
#include "gamestatemgr.h"

#include <gtest/gtest.h>
#include <string>

namespace {

const char* sTrack = nullptr;
int sFrame = 0;
int sEditorFrames = 0;
float sVolumeAtEditorLoad = -2.0f;
SoundChannel sChannelInLevelSelection = kSoundChannelNone;
SoundStream* sStreamInLevelSelection = nullptr;
bool sEditorHeardTheSameTrack = true;

// Level selection: its track set in Load, played in Init, pumped every frame; paused play's half volume on the
// last frame, then off to the editor.
void LevelSelectionLoad()
{
    MusicSetTrack(sTrack);
}
void LevelSelectionInit()
{
    MusicPlay(0);
    sFrame = 0;
}
void LevelSelectionUpdate()
{
    if (sFrame < 2)
        MusicUpdate();
    else
    {
        MusicUpdateHalfVolume();
        sChannelInLevelSelection = MusicGetChannel();
        sStreamInLevelSelection = MusicGetStream();
        gGameStateNext = GS_EDITOR;
    }
    ++sFrame;
}

// The editor: no music call of its own.
void EditorLoad()
{
    sVolumeAtEditorLoad = SoundChannelGetVolume(MusicGetChannel());
}
void EditorUpdate()
{
    if (MusicGetStream() != sStreamInLevelSelection || MusicGetChannel().serial != sChannelInLevelSelection.serial ||
        !SoundChannelIsPlaying(MusicGetChannel()))
        sEditorHeardTheSameTrack = false;
    if (++sEditorFrames == 20)
        gGameStateNext = GS_QUIT;
}
void Nothing() {}

class SoundInTheLoop : public SoundFixture
{
  protected:
    void SetUp() override
    {
        SoundFixture::SetUp();
        for (int i = 0; i < GS_STATE_NUM; ++i)
            mSaved[i] = gGameStateTable[i];
        gGameStateTable[GS_LS] = {LevelSelectionLoad, LevelSelectionInit, LevelSelectionUpdate, Nothing, Nothing,
                                  Nothing};
        gGameStateTable[GS_EDITOR] = {EditorLoad, Nothing, EditorUpdate, Nothing, Nothing, Nothing};
        sTrack = Keep(WriteToneFile(mDir, "track.wav", 3.0, 8000));
        sEditorFrames = 0;
    }
    void TearDown() override
    {
        for (int i = 0; i < GS_STATE_NUM; ++i)
            gGameStateTable[i] = mSaved[i];
        SoundFixture::TearDown();
    }
    GameStateFuncs mSaved[GS_STATE_NUM];
};

} // namespace

TEST_F(SoundInTheLoop, SoundComesUpBeforeTheWindow)
{
    // With no usable device the fallback's line shows where sound starts: before the engine's banner.
    ChildResult result = RunInChild([] {
        setenv("SDL_AUDIODRIVER", "no-such-driver", 1);
        StartGameScripted(GS_SPLASH, "");
    });
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out.find("Sound: no audio device, the game runs without sound\nKestrel Runtime version"), 0u)
        << result.out;
}

TEST_F(SoundInTheLoop, StartUpLeavesTheSystemUpAtHalfVolume)
{
    StartGameScripted(GS_SPLASH, "");
    ASSERT_NE(MusicGetSystem(), nullptr);
    EXPECT_EQ(MusicGetSystem()->channels, 3);
    EXPECT_EQ(gMusic.GetVolume(), 0.5f);
}

TEST_F(SoundInTheLoop, EnteringAStateRestoresTheVolumeBeforeItsLoad)
{
    RunGameScripted(GS_LS, "");
    EXPECT_EQ(sVolumeAtEditorLoad, 0.5f) << "the half volume of the last frame was undone by the loop's own pump";
}

TEST_F(SoundInTheLoop, EnteringTheEditorFromLevelSelectionKeepsThatTrackPlaying)
{
    RunGameScripted(GS_LS, "");
    EXPECT_EQ(sEditorFrames, 20);
    EXPECT_TRUE(sEditorHeardTheSameTrack) << "same stream, same play, sounding, through every editor frame";
    EXPECT_EQ(MusicGetTrack(), sTrack);
}
