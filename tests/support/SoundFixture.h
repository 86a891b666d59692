// SoundFixture.h -- a test that brings up the sound wrapper: a private folder for its sound files, removed at the
// end, when also the device and every static of the wrapper are put back as at program start, so that the next
// MusicInit in the same process starts from scratch.
#pragma once

#include "SoundFiles.h"
#include "TestEnv.h"
#include "fmodsound.h"
#include "fmodsound_internal.h"

#include <deque>
#include <gtest/gtest.h>
#include <string>

class SoundFixture : public ::testing::Test
{
  protected:
    void SetUp() override;
    void TearDown() override;

    // Mix goes to the disk driver (call before MusicInit); returns its path. See UseDiskAudio for the delay.
    std::string UseDisk(int delayMs = 0);
    // The wrapper keeps file names without copying them, as the game passes literals: a name made at run time
    // must live as long as the test. Returns the kept text.
    const char* Keep(const std::string& text);

    std::string mDir;  // the test's own folder for the files it makes
    std::string mMix;  // the disk driver's output, when used
    std::string mSavedDriver;
    std::deque<std::string> mKept;
};
