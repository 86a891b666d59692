// The effect half of the sound wrapper on SDL's silent driver: the five steps, the shared sound, the channel
// handles of the play operations, and decoded sounds freed once nothing plays them.
#include "SoundFixture.h"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace {

class SoundEffects : public SoundFixture
{
  protected:
    void SetUp() override
    {
        SoundFixture::SetUp();
        mShort = Keep(WriteToneFile(mDir, "short.wav", 0.05, 4000));
        mLong = Keep(WriteToneFile(mDir, "long.wav", 30.0, 4000));
        MusicInit();
    }

    static void PlayFive(SoundEffect& instance, const char* file, void (SoundEffect::*play)(float))
    {
        SoundEffect* effect = new SoundEffect(1);
        effect->Load(file);
        instance.Assign(effect);
        float volume = gMusic.GetVolume();
        (instance.*play)(volume);
    }

    const char* mShort = nullptr;
    const char* mLong = nullptr;
};

} // namespace

TEST_F(SoundEffects, ConstructorIgnoresItsNumberAndStartsEmpty)
{
    SoundEffect one(1), other(7);
    EXPECT_EQ(one.loaded, 0);
    EXPECT_EQ(one.fileName, nullptr);
    EXPECT_EQ(other.loaded, 0);
    EXPECT_EQ(other.fileName, nullptr);
}

TEST_F(SoundEffects, LoadSetsLoadedKeepsTheNameAndMakesTheSharedSound)
{
    SoundEffect effect(1);
    SoundEffect& same = effect.Load(mShort);
    EXPECT_EQ(&same, &effect);
    EXPECT_EQ(effect.loaded, 1);
    EXPECT_EQ(effect.fileName, mShort) << "the text is not copied";
    EXPECT_NE(EffectGetSound(), nullptr);
}

TEST_F(SoundEffects, AssignTakesTheNameDecodesAgainAndReturnsACopy)
{
    SoundEffect* heap = new SoundEffect(1);
    heap->Load(mShort);
    SoundSample* fromLoad = EffectGetSound();
    SoundEffect copy = gEffectJump.Assign(heap); // heap is deleted inside
    EXPECT_EQ(gEffectJump.loaded, 1);
    EXPECT_EQ(gEffectJump.fileName, mShort);
    EXPECT_EQ(copy.loaded, 1);
    EXPECT_EQ(copy.fileName, mShort);
    EXPECT_NE(EffectGetSound(), fromLoad) << "the file is decoded a second time";
}

TEST_F(SoundEffects, ReusePlaysOfJumpAndGravityRestartOnOneChannel)
{
    PlayFive(gEffectJump, mLong, &SoundEffect::PlayReuse);
    SoundChannel jump = EffectGetReuseChannel();
    PlayFive(gEffectGravity, mLong, &SoundEffect::PlayReuse);
    SoundChannel gravity = EffectGetReuseChannel();
    EXPECT_EQ(gravity.index, jump.index);
    EXPECT_NE(gravity.serial, jump.serial);
    EXPECT_EQ(SoundChannelIsPlaying(jump), 0) << "the jump was cut off";
    EXPECT_EQ(SoundChannelIsPlaying(gravity), 1);
}

TEST_F(SoundEffects, FreePlaysTakeTheOtherChannels)
{
    PlayFive(gEffectJump, mLong, &SoundEffect::PlayReuse);
    PlayFive(gEffectScream, mLong, &SoundEffect::PlayScream);
    PlayFive(gEffectRock, mLong, &SoundEffect::PlayRock);
    SoundChannel reuse = EffectGetReuseChannel(), scream = EffectGetScreamChannel(), rock = EffectGetRockChannel();
    EXPECT_NE(reuse.index, scream.index);
    EXPECT_NE(reuse.index, rock.index);
    EXPECT_NE(scream.index, rock.index);
    EXPECT_EQ(SoundChannelIsPlaying(reuse) + SoundChannelIsPlaying(scream) + SoundChannelIsPlaying(rock), 3);
}

TEST_F(SoundEffects, FourthFreePlayWithThreeChannelsBusyIsLeftToStealingTheOldest)
{
    PlayFive(gEffectScream, mLong, &SoundEffect::PlayScream);
    SoundChannel oldest = EffectGetScreamChannel();
    PlayFive(gEffectRock, mLong, &SoundEffect::PlayRock);
    PlayFive(gEffectJump, mLong, &SoundEffect::PlayReuse);
    PlayFive(gEffectSpark, mLong, &SoundEffect::PlaySpark);
    SoundChannel spark = EffectGetSparkChannel();
    EXPECT_EQ(spark.index, oldest.index);
    EXPECT_EQ(SoundChannelIsPlaying(oldest), 0);
    EXPECT_EQ(SoundChannelIsPlaying(EffectGetRockChannel()), 1);
    EXPECT_EQ(SoundChannelIsPlaying(EffectGetReuseChannel()), 1);
    EXPECT_EQ(SoundChannelIsPlaying(spark), 1);
}

TEST_F(SoundEffects, ReusePlayWhoseChannelWasStolenTakesAFreeOne)
{
    PlayFive(gEffectJump, mLong, &SoundEffect::PlayReuse);
    SoundChannel jump = EffectGetReuseChannel();
    PlayFive(gEffectScream, mLong, &SoundEffect::PlayScream);
    SoundChannel firstScream = EffectGetScreamChannel();
    PlayFive(gEffectRock, mLong, &SoundEffect::PlayRock);
    PlayFive(gEffectScream, mLong, &SoundEffect::PlayScream); // steals the jump's channel
    EXPECT_EQ(SoundChannelIsPlaying(jump), 0);
    SoundChannel stealer = EffectGetScreamChannel();
    PlayFive(gEffectGravity, mLong, &SoundEffect::PlayReuse);
    EXPECT_EQ(SoundChannelIsPlaying(stealer), 1) << "the reuse handle is stale: it does not cut in there";
    EXPECT_EQ(SoundChannelIsPlaying(firstScream), 0) << "it is as good as none, and the oldest play goes";
    EXPECT_EQ(EffectGetReuseChannel().index, firstScream.index);
    EXPECT_EQ(SoundChannelIsPlaying(EffectGetReuseChannel()), 1);
}

TEST_F(SoundEffects, SoundStillPlayingIsNotFreedUnderIt)
{
    PlayFive(gEffectScream, mLong, &SoundEffect::PlayScream);
    PlayFive(gEffectRock, mLong, &SoundEffect::PlayRock);
    MusicUpdate();
    EXPECT_EQ(SoundLiveSampleCount(), 2) << "the scream plays on; the rock's is the shared sound";
    EXPECT_EQ(SoundChannelIsPlaying(EffectGetScreamChannel()), 1);
}

TEST_F(SoundEffects, FinishedSoundsAreFreedAtTheNextUpdate)
{
    PlayFive(gEffectScream, mShort, &SoundEffect::PlayScream);
    PlayFive(gEffectRock, mShort, &SoundEffect::PlayRock);
    EXPECT_EQ(SoundLiveSampleCount(), 2) << "the copy made by Load is freed at once, it never plays";
    // The silent driver plays in real time: a twentieth of a second, and some more.
    auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (SoundChannelIsPlaying(EffectGetScreamChannel()) && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    MusicUpdate();
    EXPECT_EQ(SoundLiveSampleCount(), 1) << "only the shared sound is left";
}

TEST_F(SoundEffects, TheFiveEffectsOfTheGameDecodeAndPlay)
{
    EXPECT_STREQ(kEffectJumpFile, "PopVocal CTE02_09.6.wav");
    EXPECT_STREQ(kEffectGravityFile, "SCI-FI-PASS-BY_GEN-HDF-20746.ogg");
    EXPECT_STREQ(kEffectScreamFile, "HUMAN-SCREAM_GEN-HDF-15252.wav");
    EXPECT_STREQ(kEffectRockFile, "RockImpact CTE02_24.1.wav");
    EXPECT_STREQ(kEffectSparkFile, "Electricity_Spark_Activate.ogg");

    EffectPlayJump(); // from the working directory, assets/ under CTest
    EXPECT_EQ(gEffectJump.fileName, kEffectJumpFile);
    EXPECT_EQ(SoundChannelIsPlaying(EffectGetReuseChannel()), 1);
    EffectPlayGravity();
    EXPECT_EQ(gEffectGravity.fileName, kEffectGravityFile);
    EffectPlayScream();
    EXPECT_EQ(gEffectScream.fileName, kEffectScreamFile);
    EXPECT_EQ(SoundChannelIsPlaying(EffectGetScreamChannel()), 1);
    EffectPlayRock();
    EXPECT_EQ(gEffectRock.fileName, kEffectRockFile);
    EffectPlaySpark();
    EXPECT_EQ(gEffectSpark.fileName, kEffectSparkFile);
    EXPECT_EQ(SoundChannelIsPlaying(EffectGetSparkChannel()), 1);
    EXPECT_EQ(SoundChannelGetVolume(EffectGetSparkChannel()), 1.0f) << "the spark stays at full level";
}
