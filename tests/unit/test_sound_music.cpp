// The music half of the sound wrapper on SDL's silent driver: start-up, the volume steps and their refusals,
// channel handles, the enabled flag, pause.
#include "SoundFixture.h"
#include "float_bits.h"

#include <gtest/gtest.h>

namespace {

class SoundMusic : public SoundFixture
{
  protected:
    void SetUp() override
    {
        SoundFixture::SetUp();
        mTone = WriteToneFile(mDir, "tone.wav", 1.0, 8000);
        MusicInit();
    }
    std::string mTone;
};

} // namespace

TEST_F(SoundMusic, InitStartsAtHalfVolumeWithThreeMixingChannels)
{
    ASSERT_NE(MusicGetSystem(), nullptr);
    EXPECT_EQ(MusicGetSystem()->channels, 3);
    EXPECT_EQ(MusicGetSystem()->silent, 0) << "the silent driver was asked for, no stand-in was needed";
    EXPECT_EQ(gMusic.GetVolume(), 0.5f);
    EXPECT_EQ(MusicIsEnabled(), 1);
    EXPECT_EQ(MusicGetTrack(), nullptr);
}

TEST_F(SoundMusic, FourVolumeUpsReach0_9000001AndTheFifthIsRefused)
{
    for (int i = 0; i < 4; ++i)
        MusicVolumeUp();
    EXPECT_EQ(FloatBits(gMusic.GetVolume()), FloatBits(0.900000095367431640625f));
    EXPECT_EQ(gMusic.GetVolume(), 0.9000001f);
    MusicVolumeUp(); // candidate 1.0000001
    EXPECT_EQ(gMusic.GetVolume(), 0.9000001f) << "the volume never reaches 1.0";
    MusicVolumeUp();
    EXPECT_LT(gMusic.GetVolume(), 1.0f);
}

TEST_F(SoundMusic, FiveVolumeDownsReachAbout1_5eMinus8AndTheSixthIsRefused)
{
    for (int i = 0; i < 5; ++i)
        MusicVolumeDown();
    EXPECT_EQ(FloatBits(gMusic.GetVolume()), FloatBits(1.4901161193847656e-08f));
    EXPECT_GT(gMusic.GetVolume(), 0.0f);
    MusicVolumeDown(); // candidate below 0.0
    EXPECT_EQ(FloatBits(gMusic.GetVolume()), FloatBits(1.4901161193847656e-08f));
}

TEST_F(SoundMusic, VolumeStepIsSetOnThePlayingChannelAtOnce)
{
    MusicSetTrack(mTone.c_str());
    MusicPlay(0);
    MusicVolumeDown();
    EXPECT_NEAR(SoundChannelGetVolume(MusicGetChannel()), 0.4f, 1.0f / 128);
    MusicVolumeUp();
    MusicVolumeUp();
    EXPECT_NEAR(SoundChannelGetVolume(MusicGetChannel()), 0.6f, 1.0f / 128);
}

TEST_F(SoundMusic, SetTrackKeepsTheCallersTextWithoutCopying)
{
    const char* name = mTone.c_str();
    MusicSetTrack(name);
    EXPECT_EQ(MusicGetTrack(), name);
    EXPECT_NE(MusicGetStream(), nullptr);
    EXPECT_EQ(MusicGetChannel().serial, 0u) << "opening does not play";
}

TEST_F(SoundMusic, PlayStartsAtFullLevelAndTheNextUpdateAppliesTheSharedVolume)
{
    MusicSetTrack(mTone.c_str());
    MusicPlay(0);
    EXPECT_EQ(SoundChannelIsPlaying(MusicGetChannel()), 1);
    EXPECT_EQ(SoundChannelGetVolume(MusicGetChannel()), 1.0f) << "a new play starts at full level";
    MusicUpdate();
    EXPECT_EQ(SoundChannelGetVolume(MusicGetChannel()), 0.5f);
}

TEST_F(SoundMusic, HalfVolumeIsSetOnTheChannelAndTheNextUpdateRestoresIt)
{
    MusicSetTrack(mTone.c_str());
    MusicPlay(0);
    MusicUpdate();
    MusicUpdateHalfVolume();
    EXPECT_EQ(SoundChannelGetVolume(MusicGetChannel()), 0.25f);
    EXPECT_EQ(gMusic.GetVolume(), 0.5f) << "the volume itself stays";
    MusicUpdate();
    EXPECT_EQ(SoundChannelGetVolume(MusicGetChannel()), 0.5f);
}

TEST_F(SoundMusic, RestartOfALevelPlaysTheOpenStreamAgainOnANewChannelHandle)
{
    MusicSetTrack(mTone.c_str());
    SoundStream* stream = MusicGetStream();
    MusicPlay(0);
    SoundChannel first = MusicGetChannel();
    MusicPlay(0); // a level's Init again, without a new stream
    SoundChannel second = MusicGetChannel();
    EXPECT_EQ(MusicGetStream(), stream) << "the same open stream";
    EXPECT_NE(second.serial, first.serial) << "the handle in the music channel is replaced";
    EXPECT_EQ(SoundChannelIsPlaying(first), 0) << "the old handle is dead";
    EXPECT_EQ(SoundChannelIsPlaying(second), 1);
    EXPECT_EQ(SoundChannelGetVolume(first), -1.0f);
}

TEST_F(SoundMusic, SetTrackOnThePlayingTrackStopsItUntilTheNextPlay)
{
    MusicSetTrack(mTone.c_str());
    MusicPlay(0);
    SoundChannel playing = MusicGetChannel();
    MusicSetTrack(mTone.c_str());
    EXPECT_EQ(SoundChannelIsPlaying(playing), 0) << "setting the track stops what plays";
    MusicUpdate(); // a volume call on the dead channel is harmless
    MusicPlay(0);
    EXPECT_EQ(SoundChannelIsPlaying(MusicGetChannel()), 1);
}

TEST_F(SoundMusic, UpdateAndVolumeStepsBeforeAnyPlayAreHarmless)
{
    MusicUpdate();
    MusicUpdateHalfVolume();
    MusicVolumeUp();
    MusicPause(1);
    MusicTogglePause();
    EXPECT_EQ(gMusic.GetVolume(), 0.6f);
}

TEST_F(SoundMusic, PausedPlayStandsStillAndTogglePauseResumesIt)
{
    MusicSetTrack(mTone.c_str());
    MusicPlay(1);
    unsigned char paused = 0;
    ASSERT_EQ(SoundChannelGetPaused(MusicGetChannel(), &paused), FMOD_OK);
    EXPECT_EQ(paused, 1);
    MusicTogglePause();
    SoundChannelGetPaused(MusicGetChannel(), &paused);
    EXPECT_EQ(paused, 0);
    MusicPause(1);
    SoundChannelGetPaused(MusicGetChannel(), &paused);
    EXPECT_EQ(paused, 1);
    MusicPause(0);
    SoundChannelGetPaused(MusicGetChannel(), &paused);
    EXPECT_EQ(paused, 0);
}

TEST_F(SoundMusic, WhileDisabledNoMusicOperationActs)
{
    MusicSetTrack(mTone.c_str());
    MusicPlay(0);
    MusicUpdate();
    SoundChannel channel = MusicGetChannel();
    MusicSetEnabled(0);
    EXPECT_EQ(MusicIsEnabled(), 0);
    MusicVolumeDown();
    EXPECT_EQ(gMusic.GetVolume(), 0.5f) << "steps are refused";
    MusicUpdateHalfVolume();
    EXPECT_EQ(SoundChannelGetVolume(channel), 0.5f) << "half volume is not set";
    MusicPause(1);
    unsigned char paused = 1;
    SoundChannelGetPaused(channel, &paused);
    EXPECT_EQ(paused, 0) << "pause is not set";
    MusicSetTrack("another track.ogg");
    EXPECT_STREQ(MusicGetTrack(), "another track.ogg") << "the name is kept";
    EXPECT_EQ(SoundChannelIsPlaying(channel), 1) << "but nothing is reopened, so the old track plays on";
    MusicPlay(0);
    EXPECT_EQ(MusicGetChannel().serial, channel.serial) << "and nothing is played";
}

TEST_F(SoundMusic, ToggleEnabledOffClosesTheStreamAndOnReopensTheTrackPaused)
{
    MusicSetTrack(mTone.c_str());
    MusicPlay(0);
    SoundChannel playing = MusicGetChannel();
    MusicToggleEnabled();
    EXPECT_EQ(MusicIsEnabled(), 0);
    EXPECT_EQ(MusicGetStream(), nullptr);
    EXPECT_EQ(SoundChannelIsPlaying(playing), 0);
    EXPECT_EQ(MusicGetTrack(), mTone.c_str());

    MusicToggleEnabled();
    EXPECT_EQ(MusicIsEnabled(), 1);
    EXPECT_NE(MusicGetStream(), nullptr);
    EXPECT_EQ(SoundChannelIsPlaying(MusicGetChannel()), 1);
    unsigned char paused = 0;
    SoundChannelGetPaused(MusicGetChannel(), &paused);
    EXPECT_EQ(paused, 1) << "the music comes back paused";
}

TEST_F(SoundMusic, EveryTrackOfTheGameOpensAndPlays)
{
    const char* tracks[] = {kMusicMenuTrack, kMusicCreditsTrack, kMusicLevelTrack, kMusicChallengeTrack};
    for (const char* track : tracks)
    {
        MusicSetTrack(track); // relative to the working directory, assets/ under CTest
        MusicPlay(0);
        EXPECT_EQ(SoundChannelIsPlaying(MusicGetChannel()), 1) << track;
    }
    EXPECT_STREQ(kMusicMenuTrack, "ANCIENT RUINS - NewAge MSCNEW2_33.ogg");
    EXPECT_STREQ(kMusicCreditsTrack, "LOST CIVILIZATION - NewAge MSCNEW2_41.ogg");
    EXPECT_STREQ(kMusicLevelTrack, "SCI-FI-AMBIENCE_GEN-HDF-20485.ogg");
    EXPECT_STREQ(kMusicChallengeTrack, "ULTIMATE CHALLENGE - Corporate MSCSPR1_61.ogg");
}
