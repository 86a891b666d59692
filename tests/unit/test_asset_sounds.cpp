// The game's sounds, as listed in assets/MANIFEST.tsv: each is one the sound module plays, decodes through it,
// and the four music tracks last at least a minute.
#include "SoundFixture.h"

#include <SDL_mixer.h>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <string>

namespace {

std::set<std::string> ManifestSounds()
{
    std::set<std::string> names;
    std::ifstream in("MANIFEST.tsv"); // tests run in assets/
    std::string line;
    while (std::getline(in, line))
    {
        std::istringstream fields(line);
        std::string name, kind;
        std::getline(fields, name, '\t');
        std::getline(fields, kind, '\t');
        if (kind == "sound")
            names.insert(name);
    }
    return names;
}

const char* const* MusicTracks()
{
    static const char* const tracks[] = {kMusicMenuTrack, kMusicCreditsTrack, kMusicLevelTrack,
                                         kMusicChallengeTrack, nullptr};
    return tracks;
}

const char* const* EffectFiles()
{
    static const char* const files[] = {kEffectJumpFile, kEffectGravityFile, kEffectScreamFile, kEffectRockFile,
                                        kEffectSparkFile, nullptr};
    return files;
}

class AssetSounds : public SoundFixture
{
};

} // namespace

TEST_F(AssetSounds, ManifestListsExactlyTheSoundsTheModulePlays)
{
    std::set<std::string> module;
    for (const char* const* track = MusicTracks(); *track; ++track)
        module.insert(*track);
    for (const char* const* file = EffectFiles(); *file; ++file)
        module.insert(*file);
    EXPECT_EQ(ManifestSounds(), module);
}

TEST_F(AssetSounds, EveryEffectDecodesAndIsHeardThroughTheModule)
{
    struct
    {
        const char* file;
        void (*play)();
    } effects[] = {{kEffectJumpFile, EffectPlayJump},
                   {kEffectGravityFile, EffectPlayGravity},
                   {kEffectScreamFile, EffectPlayScream},
                   {kEffectRockFile, EffectPlayRock},
                   {kEffectSparkFile, EffectPlaySpark}};
    for (const auto& effect : effects)
    {
        // Each effect alone in a mix of its own, from a fresh start of the sound module. The disk driver runs at
        // about real time, so that the second after the mark still lies ahead once the play call (which decodes
        // the file first) returns.
        SoundShutdownForTest();
        EffectResetForTest();
        std::string mix = UseDisk(20);
        MusicInit();
        int64_t mark = DiskAudioMark(mix);
        effect.play();
        EXPECT_NE(EffectGetSound(), nullptr) << effect.file << " was not decoded";
        std::vector<int16_t> heard = DiskAudioRead(mix, mark, kSoundTestRate);
        EXPECT_GT(PeakOf(heard), 300) << effect.file << " is not heard in the second after its play";
    }
}

TEST_F(AssetSounds, EveryMusicTrackOpensThroughTheModuleAndLastsAtLeastAMinute)
{
    MusicInit();
    for (const char* const* track = MusicTracks(); *track; ++track)
    {
        MusicSetTrack(*track);
        MusicPlay(0);
        MusicUpdate();
        EXPECT_EQ(MusicGetTrack(), *track);

        Mix_Music* music = Mix_LoadMUS(*track);
        ASSERT_NE(music, nullptr) << *track;
        EXPECT_GE(Mix_MusicDuration(music), 60.0) << *track;
        Mix_FreeMusic(music);
    }
}
