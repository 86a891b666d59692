// SoundFixture.cpp -- set-up and tear-down of the tests that bring up sound.
#include "SoundFixture.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

void SoundFixture::SetUp()
{
    const char* driver = std::getenv("SDL_AUDIODRIVER");
    mSavedDriver = driver ? driver : "";
    // SDL's silent driver unless the test asks for another, also when the binary runs outside CTest.
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    mDir = MakeTempDir("sound");
    ASSERT_FALSE(mDir.empty());
}

void SoundFixture::TearDown()
{
    SoundShutdownForTest();
    // The disk driver writes tens of megabytes a second, and the made sounds run to megabytes too.
    std::error_code ignored;
    std::filesystem::remove_all(mDir, ignored);
    if (mSavedDriver.empty())
        unsetenv("SDL_AUDIODRIVER");
    else
        setenv("SDL_AUDIODRIVER", mSavedDriver.c_str(), 1);
}

std::string SoundFixture::UseDisk(int delayMs)
{
    mMix = UseDiskAudio(mDir, delayMs);
    return mMix;
}

const char* SoundFixture::Keep(const std::string& text)
{
    mKept.push_back(text);
    return mKept.back().c_str();
}
