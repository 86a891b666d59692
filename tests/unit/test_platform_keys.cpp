// The SDL back-end's key table: scancodes onto the virtual-key numbers the game uses.
#include "KRPlatform.h"
#include "KRPlatformSDLKeys.h"

#include <SDL_scancode.h>
#include <gtest/gtest.h>

TEST(SDLKeyTable, LettersAreTheirUpperCaseCodes)
{
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_A), 65);
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_D), 'D');
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_Z), 'Z');
}

TEST(SDLKeyTable, DigitsAndFunctionKeys)
{
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_0), '0');
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_1), '1');
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_9), '9');
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_F1), 0x70);
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_F12), 0x7B);
}

TEST(SDLKeyTable, KeysTheGameNamesByNumber)
{
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_RETURN), 13);
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_ESCAPE), 27);
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_SPACE), 32);
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_BACKSPACE), 8);
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_LSHIFT), 160);
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_RSHIFT), 161);
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_LCTRL), 162);
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_MINUS), 189);
}

TEST(SDLKeyTable, UnnamedKeysGiveZero)
{
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_UNKNOWN), 0);
    EXPECT_EQ(KRPlatformSDLKeyFromScancode(SDL_SCANCODE_AUDIOPLAY), 0);
}

TEST(KeyTable, EitherShiftSetsTheGenericShift)
{
    unsigned char keys[256] = {};
    keys[0xA1] = 0x80;
    keys[0xA2] = 0x80;
    KRPlatformSetGenericModifiers(keys);
    EXPECT_EQ(keys[0x10], 0x80);
    EXPECT_EQ(keys[0x11], 0x80);
    EXPECT_EQ(keys[0x12], 0x00);
}
