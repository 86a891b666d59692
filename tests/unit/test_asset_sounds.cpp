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

TEST_F(AssetSounds, EveryEffectDecodesAndPlaysThroughTheModule)
{
    MusicInit();
    // A file that does not decode would stop the process here with the module's assertion.
    EffectPlayJump();
    EffectPlayGravity();
    EffectPlayScream();
    EffectPlayRock();
    EffectPlaySpark();
    MusicUpdate();
    SUCCEED();
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
