// FakeKeys.cpp -- the fake keyboard of the unit tests.
#include "FakeKeys.h"

#include "KRInput.h"

#include <cstring>

unsigned char gFakeKeys[256];

static void FakeKeyboard(unsigned char keys[256])
{
    std::memcpy(keys, gFakeKeys, 256);
}

static void FakeCursor(int* pX, int* pY)
{
    *pX = 0;
    *pY = 0;
}

void FakeKeys::SetUp()
{
    mPlatform = gKRPlatformSDL;
    mPlatform.name = "fake keys";
    mPlatform.GetKeyboardState = FakeKeyboard;
    mPlatform.GetCursorPos = FakeCursor;
    KRPlatformUse(&mPlatform);
    std::memset(gFakeKeys, 0, sizeof(gFakeKeys));
    KRInputUpdate();
    KRInputUpdate();
}

void FakeKeys::KeysFrame(std::initializer_list<unsigned char> down)
{
    std::memset(gFakeKeys, 0, sizeof(gFakeKeys));
    for (unsigned char key : down)
        gFakeKeys[key] = 0x80;
    KRInputUpdate();
}
