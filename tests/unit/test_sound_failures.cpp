// What stops the process in the sound wrapper, and what does not: a missing file stops it with the check's text,
// the source file and line and status 1; a machine without any audio device runs on in silence.
#include "ChildProcess.h"
#include "Pattern.h"
#include "SoundFixture.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

class SoundFailures : public SoundFixture
{
};

void ExpectReport(const ChildResult& result, const char* check, const char* function, const char* file)
{
    EXPECT_EQ(result.exitCode, 1);
    std::string pattern = std::string("KR_ASSERT_MESG: ") + check + "\nLine: [0-9]+\nFunc: " + function +
                          "\nFile: .*src/sound/" + file + "\nMesg: .*\n";
    EXPECT_TRUE(MatchesWhole(result.out, pattern)) << result.out;
}

const char* const kSilentLine = "Sound: no audio device, the game runs without sound\n";

} // namespace

TEST_F(SoundFailures, MissingMusicFileStopsAtSetTrackWithTheMusicCheck)
{
    ChildResult result = RunInChild([] {
        MusicInit();
        MusicSetTrack("no such track.ogg");
        std::printf("went on\n");
    });
    ExpectReport(result, "s_result == FMOD_OK", "MusicSetTrack", "fmodsound.cpp");
    EXPECT_NE(result.out.find("no such track.ogg"), std::string::npos) << "the reason names the file";
}

TEST_F(SoundFailures, MissingEffectFileStopsAtItsPlayWithTheEffectCheck)
{
    ChildResult result = RunInChild([] {
        MusicInit();
        SoundEffect* effect = new SoundEffect(1);
        effect->Load("no such effect.wav");
        gEffectJump.Assign(effect);
        gEffectJump.PlayReuse(gMusic.GetVolume());
        std::printf("went on\n");
    });
    ExpectReport(result, "m_result == FMOD_OK", "CreateSharedSound", "fmodsound_effects.cpp");
    EXPECT_NE(result.out.find("no such effect.wav"), std::string::npos) << "the reason names the file";
}

TEST_F(SoundFailures, PlayBeforeAnyTrackIsOpenStopsWithTheMusicCheck)
{
    ChildResult result = RunInChild([] {
        MusicInit();
        MusicPlay(0);
    });
    ExpectReport(result, "s_result == FMOD_OK", "MusicPlay", "fmodsound.cpp");
}

TEST_F(SoundFailures, ReleaseWithoutAnOpenStreamStopsWithTheMusicCheck)
{
    std::string tone = WriteToneFile(mDir, "tone.wav", 0.5, 1000);
    ChildResult result = RunInChild([&tone] {
        MusicInit();
        MusicSetTrack(tone.c_str());
        MusicRelease();
        std::printf("first release went on\n");
        MusicRelease();
    });
    EXPECT_EQ(result.out.find("first release went on\n"), 0u);
    ExpectReport(ChildResult{result.exitCode, result.out.substr(22)}, "s_result == FMOD_OK", "MusicRelease",
                 "fmodsound.cpp");
}

TEST_F(SoundFailures, PlayAfterTheSharedSoundWasReleasedStopsWithTheEffectCheck)
{
    std::string tone = WriteToneFile(mDir, "tone.wav", 0.5, 1000);
    ChildResult result = RunInChild([&tone] {
        MusicInit();
        SoundEffect* effect = new SoundEffect(1);
        effect->Load(tone.c_str());
        gEffectRock.Assign(effect);
        gEffectRock.Release();
        gEffectRock.PlayRock(gMusic.GetVolume());
    });
    ExpectReport(result, "m_result == FMOD_OK", "PlayShared", "fmodsound_effects.cpp");
}

TEST_F(SoundFailures, UnknownAudioDriverFallsBackToSilencePrintsOneLineAndPlaysOn)
{
    std::string tone = WriteToneFile(mDir, "tone.wav", 0.5, 1000);
    ChildResult result = RunInChild([&tone] {
        setenv("SDL_AUDIODRIVER", "no-such-driver", 1);
        MusicInit();
        if (!MusicGetSystem()->silent)
            std::printf("not silent\n");
        MusicSetTrack(tone.c_str());
        MusicPlay(0);
        MusicUpdate();
        MusicVolumeUp();
        MusicUpdateHalfVolume();
        for (int i = 0; i < 5; ++i)
        {
            SoundEffect* effect = new SoundEffect(1);
            effect->Load(tone.c_str());
            gEffectScream.Assign(effect);
            gEffectScream.PlayScream(gMusic.GetVolume());
        }
        if (!SoundChannelIsPlaying(MusicGetChannel()))
            std::printf("music not playing\n");
    });
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, kSilentLine) << "exactly one line, and everything else went on";
}

TEST_F(SoundFailures, AlsaWithoutASoundCardFallsBackToSilenceToo)
{
    if (access("/dev/snd", F_OK) == 0)
        GTEST_SKIP() << "this machine has a sound card";
    std::string tone = WriteToneFile(mDir, "tone.wav", 0.5, 1000);
    ChildResult result = RunInChild([&tone] {
        setenv("SDL_AUDIODRIVER", "alsa", 1);
        MusicInit();
        MusicSetTrack(tone.c_str());
        MusicPlay(0);
        MusicUpdate();
    });
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, kSilentLine);
}

TEST_F(SoundFailures, AWorkingDriverPrintsNothing)
{
    ChildResult result = RunInChild([] { MusicInit(); });
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "");
}

TEST_F(SoundFailures, SoundLeftPlayingAtExitIsNeitherReleasedNorLost)
{
    // The game never shuts sound down: what plays at exit stays held, so the leak checker has nothing to report.
    std::string tone = WriteToneFile(mDir, "tone.wav", 30.0, 1000);
    ChildResult result = RunInChild([&tone] {
        MusicInit();
        MusicSetTrack(tone.c_str());
        MusicPlay(0);
        for (int i = 0; i < 4; ++i)
        {
            SoundEffect* effect = new SoundEffect(1);
            effect->Load(tone.c_str());
            gEffectScream.Assign(effect);
            gEffectScream.PlayScream(gMusic.GetVolume());
        }
    });
    EXPECT_EQ(result.exitCode, 0);
}
