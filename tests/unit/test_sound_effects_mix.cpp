// The effects as they come out of the mixer (SDL's disk driver, read back). Each effect made here is a constant
// level, so the mix is the sum of the effects that sound, each at the level of its channel: which plays were cut
// off and which mix can be read straight from the values. Effects play out and end, so the driver runs at about
// twenty times real time here, not flat out: a half-minute effect then outlasts any stall of a busy machine.
#include "SoundFixture.h"

#include <gtest/gtest.h>
#include <map>

namespace {

const double kLongSeconds = 30.0; // a second and a half at the driver's pace, far longer than a test looks
const int kWindow = 4410;

class SoundEffectsMix : public SoundFixture
{
  protected:
    // Makes the test's files first, while nothing plays yet, then starts sound.
    void Start(std::initializer_list<int16_t> levels)
    {
        for (int16_t value : levels)
            mFiles[value] = Keep(WriteLevelFile(mDir, ("level" + std::to_string(value) + ".wav").c_str(),
                                                kLongSeconds, value));
        UseDisk(1);
        MusicInit();
    }

    // The file of constant value `value`, made by Start.
    const char* Level(int16_t value) { return mFiles.at(value); }

    // The five steps of every effect play, with the instance and its play operation.
    static void PlayFive(SoundEffect& instance, const char* file, void (SoundEffect::*play)(float))
    {
        SoundEffect* effect = new SoundEffect(1);
        effect->Load(file);
        instance.Assign(effect);
        float volume = gMusic.GetVolume();
        (instance.*play)(volume);
    }

    std::vector<int16_t> Next() { return DiskAudioNext(mMix, kWindow); }

    std::map<int16_t, const char*> mFiles;
};

} // namespace

TEST_F(SoundEffectsMix, ReusePlayCutsOffThePreviousReusePlay)
{
    Start({1000, 3000});
    PlayFive(gEffectGravity, Level(1000), &SoundEffect::PlayReuse);
    EXPECT_TRUE(AllEqual(Next(), 500)) << "the gravity sound at volume 0.5";
    PlayFive(gEffectJump, Level(3000), &SoundEffect::PlayReuse);
    EXPECT_TRUE(AllEqual(Next(), 1500)) << "the jump alone: the gravity sound is cut off";
    PlayFive(gEffectGravity, Level(1000), &SoundEffect::PlayReuse);
    EXPECT_TRUE(AllEqual(Next(), 500)) << "and the other way round";
}

TEST_F(SoundEffectsMix, FreePlaysMix)
{
    Start({1000, 3000});
    PlayFive(gEffectScream, Level(1000), &SoundEffect::PlayScream);
    PlayFive(gEffectRock, Level(3000), &SoundEffect::PlayRock);
    EXPECT_TRUE(AllEqual(Next(), 2000)) << "500 + 1500";
}

TEST_F(SoundEffectsMix, ReuseAndFreePlaysMix)
{
    Start({1000, 3000});
    PlayFive(gEffectJump, Level(1000), &SoundEffect::PlayReuse);
    PlayFive(gEffectScream, Level(3000), &SoundEffect::PlayScream);
    EXPECT_TRUE(AllEqual(Next(), 2000));
}

TEST_F(SoundEffectsMix, FourthFreePlayWithThreeChannelsBusyCutsOffTheOldest)
{
    Start({1000, 2000, 4000, 8000});
    PlayFive(gEffectScream, Level(1000), &SoundEffect::PlayScream);
    PlayFive(gEffectRock, Level(2000), &SoundEffect::PlayRock);
    PlayFive(gEffectScream, Level(4000), &SoundEffect::PlayScream);
    EXPECT_TRUE(AllEqual(Next(), 3500)) << "three channels busy";
    PlayFive(gEffectRock, Level(8000), &SoundEffect::PlayRock);
    EXPECT_TRUE(AllEqual(Next(), 1000 + 2000 + 4000)) << "the first play was stolen";
}

TEST_F(SoundEffectsMix, SparkSetsItsVolumeOnTheRocksChannelAndStaysAtFullItself)
{
    Start({2000, 4000});
    SoundEffect* rock = new SoundEffect(1);
    rock->Load(Level(4000));
    gEffectRock.Assign(rock);
    gEffectRock.PlayRock(1.0f);
    EXPECT_TRUE(AllEqual(Next(), 4000));
    PlayFive(gEffectSpark, Level(2000), &SoundEffect::PlaySpark);
    EXPECT_TRUE(AllEqual(Next(), 2000 + 2000)) << "rock brought to 0.5, spark at full";
    EXPECT_EQ(SoundChannelGetVolume(EffectGetSparkChannel()), 1.0f);
    EXPECT_EQ(SoundChannelGetVolume(EffectGetRockChannel()), 0.5f);
}

TEST_F(SoundEffectsMix, VolumeOutsideZeroToOneLeavesThePlayAtFullLevel)
{
    Start({1000});
    SoundEffect* scream = new SoundEffect(1);
    scream->Load(Level(1000));
    gEffectScream.Assign(scream);
    gEffectScream.PlayScream(1.5f);
    EXPECT_TRUE(AllEqual(Next(), 1000));
}

TEST_F(SoundEffectsMix, WhatPlaysIsTheSoundMadeLastWhateverTheInstance)
{
    Start({1000, 3000});
    SoundEffect* jump = new SoundEffect(1);
    jump->Load(Level(1000));
    gEffectJump.Assign(jump);
    // Another effect is loaded but never assigned: its sound is now the shared one.
    SoundEffect* rock = new SoundEffect(1);
    rock->Load(Level(3000));
    gEffectJump.PlayReuse(gMusic.GetVolume());
    EXPECT_TRUE(AllEqual(Next(), 1500));
    delete rock;
}

TEST_F(SoundEffectsMix, EffectsMixWithTheMusic)
{
    Start({2000, 3000});
    MusicSetTrack(Level(2000));
    MusicPlay(0);
    MusicUpdate();
    PlayFive(gEffectJump, Level(3000), &SoundEffect::PlayReuse);
    EXPECT_TRUE(AllEqual(Next(), 1000 + 1500));
}

TEST_F(SoundEffectsMix, MusicHoldsOneOfTheThreeChannelsSoAThirdFreeEffectCutsOffTheOldest)
{
    Start({500, 1000, 2000, 4000});
    MusicSetTrack(Level(500));
    MusicPlay(0);
    MusicUpdate();
    PlayFive(gEffectScream, Level(1000), &SoundEffect::PlayScream);
    PlayFive(gEffectRock, Level(2000), &SoundEffect::PlayRock);
    EXPECT_TRUE(AllEqual(Next(), 250 + 500 + 1000)) << "music and two effects fill the three channels";
    PlayFive(gEffectScream, Level(4000), &SoundEffect::PlayScream);
    EXPECT_TRUE(AllEqual(Next(), 250 + 1000 + 2000)) << "the first effect was stolen, the music plays on";
}
