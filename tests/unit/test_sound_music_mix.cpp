// The music as it comes out of the mixer: SDL's disk driver writes the mix to a file, flat out, and the tests
// read it back. Tracks made here carry their level (a sine of known peak) or their position (a ramp whose value
// counts the frames), so what is heard can be checked exactly.
#include "SoundFixture.h"

#include <gtest/gtest.h>

namespace {

class SoundMusicMix : public SoundFixture
{
  protected:
    void SetUp() override
    {
        SoundFixture::SetUp();
        UseDisk();
        MusicInit();
    }

    // The first frame at or after `from` whose value is not zero, or -1 within `count` frames.
    int64_t FirstSoundFrom(int64_t from, int count, int16_t* value)
    {
        std::vector<int16_t> mix = DiskAudioRead(mMix, from, count);
        for (size_t i = 0; i < mix.size(); ++i)
            if (mix[i] != 0)
            {
                *value = mix[i];
                return from + (int64_t)i;
            }
        return -1;
    }
};

const int16_t kTonePeak = 16000;
const int kWindow = 4410; // a tenth of a second

} // namespace

TEST_F(SoundMusicMix, MusicStartedByPlayIsAudible)
{
    MusicSetTrack(WriteToneFile(mDir, "tone.wav", 2.0, kTonePeak).c_str());
    MusicPlay(0);
    std::vector<int16_t> mix = DiskAudioNext(mMix, kWindow);
    ASSERT_EQ((int)mix.size(), kWindow);
    EXPECT_GT(RmsOf(mix), 10000.0);
    EXPECT_EQ(PeakOf(mix), kTonePeak) << "a new play is at full level";
}

TEST_F(SoundMusicMix, TheMenuTrackOfTheGameIsAudible)
{
    MusicSetTrack(kMusicMenuTrack);
    MusicPlay(0);
    MusicUpdate();
    std::vector<int16_t> mix = DiskAudioNext(mMix, kSoundTestRate);
    ASSERT_EQ((int)mix.size(), kSoundTestRate);
    EXPECT_GT(RmsOf(mix), 300.0) << "one second of the menu music at half volume";
}

TEST_F(SoundMusicMix, UpdateBringsTheFreshPlayToTheSharedVolume)
{
    MusicSetTrack(WriteToneFile(mDir, "tone.wav", 2.0, kTonePeak).c_str());
    MusicPlay(0);
    EXPECT_EQ(PeakOf(DiskAudioNext(mMix, kWindow)), kTonePeak);
    MusicUpdate();
    EXPECT_EQ(PeakOf(DiskAudioNext(mMix, kWindow)), kTonePeak / 2);
}

TEST_F(SoundMusicMix, VolumeDownLowersTheMeasuredLevel)
{
    MusicSetTrack(WriteToneFile(mDir, "tone.wav", 2.0, kTonePeak).c_str());
    MusicPlay(0);
    MusicUpdate();
    int before = PeakOf(DiskAudioNext(mMix, kWindow));
    MusicVolumeDown();
    int after = PeakOf(DiskAudioNext(mMix, kWindow));
    EXPECT_EQ(before, 8000);
    EXPECT_EQ(after, kTonePeak * 51 / 128) << "0.4 of full, in the mixer's 128 steps";
    EXPECT_LT(after, before);
}

TEST_F(SoundMusicMix, HalfVolumeHalvesTheLevelUntilTheNextUpdate)
{
    MusicSetTrack(WriteToneFile(mDir, "tone.wav", 2.0, kTonePeak).c_str());
    MusicPlay(0);
    MusicUpdate();
    int normal = PeakOf(DiskAudioNext(mMix, kWindow));
    MusicUpdateHalfVolume();
    int half = PeakOf(DiskAudioNext(mMix, kWindow));
    MusicUpdate();
    int restored = PeakOf(DiskAudioNext(mMix, kWindow));
    EXPECT_EQ(normal, 8000);
    EXPECT_EQ(half, normal / 2);
    EXPECT_EQ(restored, normal);
}

TEST_F(SoundMusicMix, TrackChangeRestartsFromTheBeginning)
{
    std::string first = WriteRampFile(mDir, "rising.wav", 14.0, 1);
    std::string second = WriteRampFile(mDir, "falling.wav", 14.0, -1);
    MusicSetTrack(first.c_str());
    MusicPlay(0);
    // A second of the first track goes by.
    std::vector<int16_t> early = DiskAudioRead(mMix, DiskAudioMark(mMix) + kSoundTestRate, kWindow);
    ASSERT_FALSE(early.empty());
    EXPECT_GT(early[0], kRampBase + kSoundTestRate / kRampFramesPerStep);

    int64_t before = DiskAudioWritten(mMix);
    MusicSetTrack(second.c_str());
    MusicPlay(0);
    // The new track is the only one with negative values; its first frame heard is its first frame.
    std::vector<int16_t> mix = DiskAudioRead(mMix, before, 4 * kSoundTestRate);
    size_t i = 0;
    while (i < mix.size() && mix[i] >= 0)
        ++i;
    ASSERT_LT(i, mix.size()) << "the new track is heard";
    EXPECT_EQ(mix[i], -kRampBase);
    EXPECT_EQ(mix[i + 2 * kRampFramesPerStep], -(kRampBase + 2)) << "and goes on from there";
}

TEST_F(SoundMusicMix, SetTrackOnThePlayingTrackStopsItAndOnlyPlayStartsItAgainFromTheStart)
{
    std::string ramp = WriteRampFile(mDir, "rising.wav", 14.0, 1);
    MusicSetTrack(ramp.c_str());
    MusicPlay(0);
    DiskAudioRead(mMix, DiskAudioMark(mMix) + kSoundTestRate, kWindow); // a second goes by

    MusicSetTrack(ramp.c_str());
    EXPECT_TRUE(AllEqual(DiskAudioNext(mMix, kSoundTestRate), 0)) << "stopped: a second of silence";

    int64_t before = DiskAudioWritten(mMix);
    MusicPlay(0);
    int16_t value = 0;
    ASSERT_GE(FirstSoundFrom(before, 4 * kSoundTestRate, &value), 0);
    EXPECT_EQ(value, kRampBase) << "from its first frame";
}

TEST_F(SoundMusicMix, RestartOfALevelPlaysTheOpenStreamAgainFromItsStart)
{
    std::string ramp = WriteRampFile(mDir, "rising.wav", 14.0, 1);
    MusicSetTrack(ramp.c_str());
    MusicPlay(0);
    DiskAudioRead(mMix, DiskAudioMark(mMix) + kSoundTestRate, kWindow);

    int64_t before = DiskAudioWritten(mMix);
    MusicPlay(0); // the Init of a restarted level
    std::vector<int16_t> mix = DiskAudioRead(mMix, before, 4 * kSoundTestRate);
    // The ramp only rises until the new play cuts in (perhaps after a buffer of silence) at its first frame.
    size_t i = 1;
    while (i < mix.size() && mix[i] >= mix[i - 1])
        ++i;
    while (i < mix.size() && mix[i] == 0)
        ++i;
    ASSERT_LT(i, mix.size()) << "the stream starts again";
    EXPECT_EQ(mix[i], kRampBase);
}

TEST_F(SoundMusicMix, PausedPlayIsSilentAndResumesFromTheStart)
{
    MusicSetTrack(WriteRampFile(mDir, "rising.wav", 14.0, 1).c_str());
    MusicPlay(1);
    EXPECT_TRUE(AllEqual(DiskAudioNext(mMix, kSoundTestRate), 0));
    int64_t before = DiskAudioWritten(mMix);
    MusicTogglePause();
    int16_t value = 0;
    ASSERT_GE(FirstSoundFrom(before, 4 * kSoundTestRate, &value), 0);
    EXPECT_EQ(value, kRampBase);
}

TEST_F(SoundMusicMix, MusicGoesOnWithoutAnyUpdate)
{
    // A state without music of its own (the editor after level selection) calls nothing: the track plays on.
    MusicSetTrack(WriteRampFile(mDir, "rising.wav", 14.0, 1).c_str());
    MusicPlay(0);
    MusicUpdate();
    int64_t start = DiskAudioMark(mMix);
    std::vector<int16_t> later = DiskAudioRead(mMix, start + 3 * kSoundTestRate, kWindow);
    ASSERT_EQ((int)later.size(), kWindow);
    EXPECT_GT(PeakOf(later), 0);
    for (size_t i = 1; i < later.size(); ++i)
        ASSERT_GE(later[i], later[i - 1]) << "one continuous play, three seconds on";
}
