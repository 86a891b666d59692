// The effects as they come out of the mixer (SDL's disk driver, read back). Each effect made here is a constant
// level, so the mix is the sum of the effects that sound, each at the level of its channel: which plays were cut
// off and which mix can be read straight from the values. Effects play out and end, so the driver runs at about
// twenty times real time here, not flat out: a half-minute effect then outlasts any stall of a busy machine.
#include "SoundFixture.h"

#include <gtest/gtest.h>

namespace {

const double kLongSeconds = 30.0; // a second and a half at the driver's pace, far longer than a test looks
const int kWindow = 4410;

class SoundEffectsMix : public SoundFixture
{
  protected:
    void SetUp() override
    {
        SoundFixture::SetUp();
        UseDisk(1);
        MusicInit();
    }

    std::string Level(const char* name, int16_t value) { return WriteLevelFile(mDir, name, kLongSeconds, value); }

    // The five steps of every effect play, with the instance and its play operation.
    static void PlayFive(SoundEffect& instance, const std::string& file, void (SoundEffect::*play)(float))
    {
        SoundEffect* effect = new SoundEffect(1);
        effect->Load(file.c_str());
        instance.Assign(effect);
        float volume = gMusic.GetVolume();
        (instance.*play)(volume);
    }

    std::vector<int16_t> Next() { return DiskAudioNext(mMix, kWindow); }
};

} // namespace

TEST_F(SoundEffectsMix, ReusePlayCutsOffThePreviousReusePlay)
{
    PlayFive(gEffectGravity, Level("gravity.wav", 1000), &SoundEffect::PlayReuse);
    EXPECT_TRUE(AllEqual(Next(), 500)) << "the gravity sound at volume 0.5";
    PlayFive(gEffectJump, Level("jump.wav", 3000), &SoundEffect::PlayReuse);
    EXPECT_TRUE(AllEqual(Next(), 1500)) << "the jump alone: the gravity sound is cut off";
    PlayFive(gEffectGravity, Level("gravity.wav", 1000), &SoundEffect::PlayReuse);
    EXPECT_TRUE(AllEqual(Next(), 500)) << "and the other way round";
}

TEST_F(SoundEffectsMix, FreePlaysMix)
{
    PlayFive(gEffectScream, Level("scream.wav", 1000), &SoundEffect::PlayScream);
    PlayFive(gEffectRock, Level("rock.wav", 3000), &SoundEffect::PlayRock);
    EXPECT_TRUE(AllEqual(Next(), 2000)) << "500 + 1500";
}

TEST_F(SoundEffectsMix, ReuseAndFreePlaysMix)
{
    PlayFive(gEffectJump, Level("jump.wav", 1000), &SoundEffect::PlayReuse);
    PlayFive(gEffectScream, Level("scream.wav", 3000), &SoundEffect::PlayScream);
    EXPECT_TRUE(AllEqual(Next(), 2000));
}

TEST_F(SoundEffectsMix, FourthFreePlayWithThreeChannelsBusyCutsOffTheOldest)
{
    PlayFive(gEffectScream, Level("a.wav", 1000), &SoundEffect::PlayScream);
    PlayFive(gEffectRock, Level("b.wav", 2000), &SoundEffect::PlayRock);
    PlayFive(gEffectScream, Level("c.wav", 4000), &SoundEffect::PlayScream);
    EXPECT_TRUE(AllEqual(Next(), 3500)) << "three channels busy";
    PlayFive(gEffectRock, Level("d.wav", 8000), &SoundEffect::PlayRock);
    EXPECT_TRUE(AllEqual(Next(), 1000 + 2000 + 4000)) << "the first play was stolen";
}

TEST_F(SoundEffectsMix, SparkSetsItsVolumeOnTheRocksChannelAndStaysAtFullItself)
{
    // The name is not copied: it must outlive the play, as the game's literals do.
    std::string rockFile = Level("rock.wav", 4000);
    SoundEffect* rock = new SoundEffect(1);
    rock->Load(rockFile.c_str());
    gEffectRock.Assign(rock);
    gEffectRock.PlayRock(1.0f);
    EXPECT_TRUE(AllEqual(Next(), 4000));
    PlayFive(gEffectSpark, Level("spark.wav", 2000), &SoundEffect::PlaySpark);
    EXPECT_TRUE(AllEqual(Next(), 2000 + 2000)) << "rock brought to 0.5, spark at full";
    EXPECT_EQ(SoundChannelGetVolume(EffectGetSparkChannel()), 1.0f);
    EXPECT_EQ(SoundChannelGetVolume(EffectGetRockChannel()), 0.5f);
}

TEST_F(SoundEffectsMix, VolumeOutsideZeroToOneLeavesThePlayAtFullLevel)
{
    std::string screamFile = Level("scream.wav", 1000);
    SoundEffect* scream = new SoundEffect(1);
    scream->Load(screamFile.c_str());
    gEffectScream.Assign(scream);
    gEffectScream.PlayScream(1.5f);
    EXPECT_TRUE(AllEqual(Next(), 1000));
}

TEST_F(SoundEffectsMix, WhatPlaysIsTheSoundMadeLastWhateverTheInstance)
{
    std::string jumpFile = Level("jump.wav", 1000);
    std::string rockFile = Level("rock.wav", 3000);
    SoundEffect* jump = new SoundEffect(1);
    jump->Load(jumpFile.c_str());
    gEffectJump.Assign(jump);
    // Another effect is loaded but never assigned: its sound is now the shared one.
    SoundEffect* rock = new SoundEffect(1);
    rock->Load(rockFile.c_str());
    gEffectJump.PlayReuse(gMusic.GetVolume());
    EXPECT_TRUE(AllEqual(Next(), 1500));
    delete rock;
}

TEST_F(SoundEffectsMix, EffectsMixWithTheMusic)
{
    std::string musicFile = Level("music.wav", 2000);
    MusicSetTrack(musicFile.c_str());
    MusicPlay(0);
    MusicUpdate();
    PlayFive(gEffectJump, Level("jump.wav", 3000), &SoundEffect::PlayReuse);
    EXPECT_TRUE(AllEqual(Next(), 1000 + 1500));
}
