// Memory of the effect plays: every play decodes its file twice, and the decoded sounds are freed once nothing
// plays them, so two thousand plays leave memory where it was.
#include "SoundFixture.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <unistd.h>

// From the sanitizer runtime, when the program has it (the sanitizer tree links it; the tests' own code is not
// instrumented, so this is asked at run time). GCC's packages do not ship the header that declares it.
extern "C" size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak));

namespace {

int64_t ResidentBytes()
{
    long pages = 0, resident = 0;
    FILE* file = std::fopen("/proc/self/statm", "r");
    if (!file)
        return -1;
    int read = std::fscanf(file, "%ld %ld", &pages, &resident);
    std::fclose(file);
    return read == 2 ? (int64_t)resident * sysconf(_SC_PAGESIZE) : -1;
}

class SoundEffectMemory : public SoundFixture
{
  protected:
    void SetUp() override
    {
        SoundFixture::SetUp();
        // A quarter second: 44 kB decoded, twice per play. Kept, 2,000 plays would hold 176 MB.
        mFile = Keep(WriteToneFile(mDir, "effect.wav", 0.25, 4000));
        MusicInit();
    }

    void Plays(int count)
    {
        for (int i = 0; i < count; ++i)
        {
            SoundEffect* effect = new SoundEffect(1);
            effect->Load(mFile);
            switch (i % 4)
            {
            case 0: gEffectJump.Assign(effect); gEffectJump.PlayReuse(gMusic.GetVolume()); break;
            case 1: gEffectScream.Assign(effect); gEffectScream.PlayScream(gMusic.GetVolume()); break;
            case 2: gEffectRock.Assign(effect); gEffectRock.PlayRock(gMusic.GetVolume()); break;
            default: gEffectSpark.Assign(effect); gEffectSpark.PlaySpark(gMusic.GetVolume()); break;
            }
            if (i % 60 == 0)
                MusicUpdate();
        }
    }

    const char* mFile = nullptr;
};

} // namespace

TEST_F(SoundEffectMemory, StaysFlatOverTwoThousandPlays)
{
    Plays(200); // let the allocator and the mixer settle
    int64_t residentBefore = ResidentBytes();
    bool sanitized = __sanitizer_get_current_allocated_bytes != nullptr;
    int64_t allocatedBefore = sanitized ? (int64_t)__sanitizer_get_current_allocated_bytes() : 0;
    Plays(2000);
    MusicUpdate();
    int64_t residentAfter = ResidentBytes();

    EXPECT_LE(SoundLiveSampleCount(), 4) << "the shared sound and at most one per channel";
    if (sanitized)
    {
        // Freed memory waits in the sanitizer's quarantine, so the resident size says little here: count what is
        // live.
        int64_t allocatedAfter = (int64_t)__sanitizer_get_current_allocated_bytes();
        EXPECT_LT(allocatedAfter - allocatedBefore, 4 << 20);
    }
    else
    {
        ASSERT_GT(residentBefore, 0);
        EXPECT_LT(residentAfter - residentBefore, 8 << 20) << "resident before " << residentBefore << ", after "
                                                           << residentAfter;
    }
}
