// FakeKeys.h -- a test fixture whose keyboard is an array the test fills: the input module reads it through the
// platform's keyboard call, with the pointer standing at (0, 0). For unit tests of routines that read keys.
#pragma once

#include "KRPlatform.h"

#include <gtest/gtest.h>
#include <initializer_list>

extern unsigned char gFakeKeys[256];

class FakeKeys : public ::testing::Test
{
protected:
    // Installs the fake keyboard with every key up, and lets the input module see two frames of it.
    void SetUp() override;

    // The keys of the next frame: those listed are down, the rest up; a key held from the last frame stays held,
    // so only a new press is triggered.
    void KeysFrame(std::initializer_list<unsigned char> down);

    KRPlatform mPlatform;
};
