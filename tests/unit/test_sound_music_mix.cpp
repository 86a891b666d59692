// The music as it comes out of the mixer: SDL's disk driver writes the mix to a file, flat out, and the tests
// read it back. Tracks made here carry their level (a sine of known peak) or their position (a ramp whose value
// counts the frames), so what is heard can be checked exactly.
#include "SoundFixture.h"

#include <gtest/gtest.h>

namespace {

const int16_t kTonePeak = 16000;
const int kMixWindow = 4410; // a tenth of a second
// Ramps as long as 16-bit values allow, so that the loop seldom comes round while a test looks.
const double kRampSeconds = 23.0;
const int kRampLast = kRampBase + ((int)(kRampSeconds * kSoundTestRate) - 1) / kRampFramesPerStep;

class SoundMusicMix : public SoundFixture
{
  protected:
    void SetUp() override
    {
        SoundFixture::SetUp();
        UseDisk();
        MusicInit();
    }

    // The mix from frame `first` to past everything the calls made so far can have changed: the audio thread
    // may have run far ahead of the test while a call waited for the mixer's lock.
    std::vector<int16_t> ReadSince(int64_t first)
    {
        int64_t end = DiskAudioMark(mMix) + kMixWindow;
        return DiskAudioRead(mMix, first, (int)(end - first));
    }
};

} // namespace

TEST_F(SoundMusicMix, MusicStartedByPlayIsAudible)
{
    MusicSetTrack(Keep(WriteToneFile(mDir, "tone.wav", 2.0, kTonePeak)));
    MusicPlay(0);
    std::vector<int16_t> mix = DiskAudioNext(mMix, kMixWindow);
    ASSERT_EQ((int)mix.size(), kMixWindow);
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
    MusicSetTrack(Keep(WriteToneFile(mDir, "tone.wav", 2.0, kTonePeak)));
    MusicPlay(0);
    EXPECT_EQ(PeakOf(DiskAudioNext(mMix, kMixWindow)), kTonePeak);
    MusicUpdate();
    EXPECT_EQ(PeakOf(DiskAudioNext(mMix, kMixWindow)), kTonePeak / 2);
}

TEST_F(SoundMusicMix, VolumeDownLowersTheMeasuredLevel)
{
    MusicSetTrack(Keep(WriteToneFile(mDir, "tone.wav", 2.0, kTonePeak)));
    MusicPlay(0);
    MusicUpdate();
    int before = PeakOf(DiskAudioNext(mMix, kMixWindow));
    MusicVolumeDown();
    int after = PeakOf(DiskAudioNext(mMix, kMixWindow));
    EXPECT_EQ(before, 8000);
    EXPECT_EQ(after, kTonePeak * 51 / 128) << "0.4 of full, in the mixer's 128 steps";
    EXPECT_LT(after, before);
}

TEST_F(SoundMusicMix, HalfVolumeHalvesTheLevelUntilTheNextUpdate)
{
    MusicSetTrack(Keep(WriteToneFile(mDir, "tone.wav", 2.0, kTonePeak)));
    MusicPlay(0);
    MusicUpdate();
    int normal = PeakOf(DiskAudioNext(mMix, kMixWindow));
    MusicUpdateHalfVolume();
    int half = PeakOf(DiskAudioNext(mMix, kMixWindow));
    MusicUpdate();
    int restored = PeakOf(DiskAudioNext(mMix, kMixWindow));
    EXPECT_EQ(normal, 8000);
    EXPECT_EQ(half, normal / 2);
    EXPECT_EQ(restored, normal);
}

TEST_F(SoundMusicMix, TrackChangeRestartsFromTheBeginning)
{
    std::string first = WriteRampFile(mDir, "rising.wav", kRampSeconds, 1);
    std::string second = WriteRampFile(mDir, "falling.wav", kRampSeconds, -1);
    MusicSetTrack(first.c_str());
    MusicPlay(0);
    // A second of the first track goes by.
    std::vector<int16_t> early = DiskAudioRead(mMix, DiskAudioMark(mMix) + kSoundTestRate, kMixWindow);
    ASSERT_FALSE(early.empty());
    EXPECT_GT(early[0], kRampBase + kSoundTestRate / kRampFramesPerStep);

    int64_t before = DiskAudioWritten(mMix);
    MusicSetTrack(second.c_str());
    MusicPlay(0);
    std::vector<int16_t> mix = ReadSince(before);
    // The new track is the only one with negative values; its first frame heard is its first frame.
    size_t i = 0;
    while (i < mix.size() && mix[i] >= 0)
        ++i;
    ASSERT_LT(i + 2 * kRampFramesPerStep, mix.size()) << "the new track is heard";
    EXPECT_EQ(mix[i], -kRampBase);
    EXPECT_EQ(mix[i + 2 * kRampFramesPerStep], -(kRampBase + 2)) << "and goes on from there";
}

TEST_F(SoundMusicMix, SetTrackOnThePlayingTrackStopsItAndOnlyPlayStartsItAgainFromTheStart)
{
    std::string ramp = WriteRampFile(mDir, "rising.wav", kRampSeconds, 1);
    MusicSetTrack(ramp.c_str());
    MusicPlay(0);
    DiskAudioRead(mMix, DiskAudioMark(mMix) + kSoundTestRate, kMixWindow); // a second goes by

    MusicSetTrack(ramp.c_str());
    EXPECT_TRUE(AllEqual(DiskAudioNext(mMix, kSoundTestRate), 0)) << "stopped: a second of silence";

    int64_t before = DiskAudioWritten(mMix);
    MusicPlay(0);
    std::vector<int16_t> mix = ReadSince(before);
    size_t i = 0;
    while (i < mix.size() && mix[i] == 0)
        ++i;
    ASSERT_LT(i, mix.size()) << "playing again";
    EXPECT_EQ(mix[i], kRampBase) << "from its first frame";
}

TEST_F(SoundMusicMix, RestartOfALevelPlaysTheOpenStreamAgainFromItsStart)
{
    std::string ramp = WriteRampFile(mDir, "rising.wav", kRampSeconds, 1);
    MusicSetTrack(ramp.c_str());
    MusicPlay(0);
    DiskAudioRead(mMix, DiskAudioMark(mMix) + kSoundTestRate, kMixWindow); // a second goes by

    // From the last frame surely mixed before the call: the new play may begin on the very next one.
    int64_t before = DiskAudioWritten(mMix) - 1;
    MusicPlay(0); // the Init of a restarted level
    std::vector<int16_t> mix = ReadSince(before);
    // The ramp rises until the new play cuts in, perhaps after a buffer of silence, at its first frame. A drop
    // from the ramp's last value would only be the loop coming round.
    size_t i = 1;
    while (i < mix.size() && (mix[i] >= mix[i - 1] || mix[i - 1] == kRampLast))
        ++i;
    ASSERT_LT(i, mix.size()) << "the stream starts again";
    EXPECT_GT(mix[i - 1], kRampBase) << "cut off in the middle";
    while (i < mix.size() && mix[i] == 0)
        ++i;
    ASSERT_LT(i, mix.size());
    EXPECT_EQ(mix[i], kRampBase);
}

TEST_F(SoundMusicMix, PausedPlayIsSilentAndResumesFromTheStart)
{
    MusicSetTrack(Keep(WriteRampFile(mDir, "rising.wav", kRampSeconds, 1)));
    MusicPlay(1);
    EXPECT_TRUE(AllEqual(DiskAudioNext(mMix, kSoundTestRate), 0));
    int64_t before = DiskAudioWritten(mMix);
    MusicTogglePause();
    std::vector<int16_t> mix = ReadSince(before);
    size_t i = 0;
    while (i < mix.size() && mix[i] == 0)
        ++i;
    ASSERT_LT(i, mix.size()) << "playing";
    EXPECT_EQ(mix[i], kRampBase);
}

TEST_F(SoundMusicMix, MusicGoesOnWithoutAnyUpdate)
{
    // A state without music of its own (the editor after level selection) calls nothing: the track plays on.
    MusicSetTrack(Keep(WriteRampFile(mDir, "rising.wav", kRampSeconds, 1)));
    MusicPlay(0);
    MusicUpdate();
    std::vector<int16_t> later = DiskAudioRead(mMix, DiskAudioMark(mMix) + 3 * kSoundTestRate, kMixWindow);
    ASSERT_EQ((int)later.size(), kMixWindow);
    EXPECT_GT(PeakOf(later), 0);
    // One continuous play: the ramp rises step by step, coming round at most once at the loop's end.
    int comingRound = 0;
    for (size_t i = 1; i < later.size(); ++i)
    {
        int step = later[i] - later[i - 1];
        if (step < 0)
        {
            ++comingRound;
            EXPECT_EQ(later[i], kRampBase / 2);
        }
        else
            EXPECT_LE(step, 1);
    }
    EXPECT_LE(comingRound, 1);
}
