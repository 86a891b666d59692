// The input module: two snapshots and the edges between them, the cursor in logical pixels.
#include "KRInput.h"
#include "KRPlatform.h"
#include "KRSystem.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

unsigned char sKeys[256];
int sCursorX = 0;
int sCursorY = 0;
int sVisibleAsked = -1;

void FakeKeyboard(unsigned char keys[256])
{
    std::memcpy(keys, sKeys, 256);
}

void FakeCursor(int* pX, int* pY)
{
    *pX = sCursorX;
    *pY = sCursorY;
}

void FakeCursorVisible(int visible)
{
    sVisibleAsked = visible;
}

KRPlatform MakeFakePlatform()
{
    KRPlatform platform = gKRPlatformSDL;
    platform.name = "fake input";
    platform.GetKeyboardState = FakeKeyboard;
    platform.GetCursorPos = FakeCursor;
    platform.SetCursorVisible = FakeCursorVisible;
    return platform;
}

class Input : public ::testing::Test
{
protected:
    void SetUp() override
    {
        mPlatform = MakeFakePlatform();
        KRPlatformUse(&mPlatform);
        std::memset(sKeys, 0, sizeof(sKeys));
        sCursorX = sCursorY = 0;
        gKRWinScaleX = gKRWinScaleY = 1.0f;
        KRInputReset();
    }
    void TearDown() override
    {
        KRPlatformUse(&gKRPlatformSDL);
        gKRWinScaleX = gKRWinScaleY = 1.0f;
    }
    KRPlatform mPlatform;
};

} // namespace

TEST_F(Input, KeyPressedAndReleasedBetweenTwoUpdatesLeavesNoTrace)
{
    KRInputUpdate();
    sKeys['A'] = 0x80; // down...
    sKeys['A'] = 0x00; // ...and up again before the next update
    KRInputUpdate();
    EXPECT_EQ(KRInputCheckTriggered('A'), 0);
    EXPECT_EQ(KRInputCheckReleased('A'), 0);
    EXPECT_EQ(KRInputCheckCurr('A'), 0);
}

TEST_F(Input, HeldKeyIsTriggeredInExactlyOneIntervalAndCurrentInAll)
{
    sKeys[' '] = 0x80;
    int triggered = 0;
    for (int update = 0; update < 5; ++update)
    {
        KRInputUpdate();
        triggered += KRInputCheckTriggered(' ');
        EXPECT_EQ(KRInputCheckCurr(' '), 1);
    }
    EXPECT_EQ(triggered, 1);
}

TEST_F(Input, ReleaseIsSeenOnceAfterTheKeyGoesUp)
{
    sKeys['D'] = 0x80;
    KRInputUpdate();
    KRInputUpdate();
    sKeys['D'] = 0;
    KRInputUpdate();
    EXPECT_EQ(KRInputCheckReleased('D'), 1);
    EXPECT_EQ(KRInputCheckPrev('D'), 1);
    EXPECT_EQ(KRInputCheckCurr('D'), 0);
    KRInputUpdate();
    EXPECT_EQ(KRInputCheckReleased('D'), 0);
}

TEST_F(Input, SecondUpdateInOneFrameUsesUpTheEdge)
{
    KRInputUpdate();
    sKeys[13] = 0x80;
    KRInputUpdate();
    EXPECT_EQ(KRInputCheckTriggered(13), 1);
    KRInputUpdate(); // a state that updates once more inside its frame
    EXPECT_EQ(KRInputCheckTriggered(13), 0);
    EXPECT_EQ(KRInputCheckCurr(13), 1);
}

TEST_F(Input, LowBitOfAKeyByteNeverCounts)
{
    sKeys[0x14] = 0x01; // Caps Lock toggled on, key not held
    KRInputUpdate();
    EXPECT_EQ(KRInputCheckCurr(0x14), 0);
    EXPECT_EQ(KRInputCheckTriggered(0x14), 0);
}

TEST_F(Input, MouseButtonsAreKeysOneAndTwo)
{
    sKeys[1] = 0x80;
    KRInputUpdate();
    EXPECT_EQ(KRInputCheckTriggered(1), 1);
    EXPECT_EQ(KRInputCheckCurr(2), 0);
}

TEST_F(Input, FullScreenCursorReadsInLogicalPixels)
{
    // A screen of 1600 by 900 over the 800 by 600 view.
    gKRWinScaleX = 2.0f;
    gKRWinScaleY = 1.5f;
    sCursorX = 990;
    sCursorY = 291;
    KRInputUpdate();
    sCursorX = 1000;
    sCursorY = 300;
    KRInputUpdate();
    int x = 0, y = 0, dx = 0, dy = 0;
    KRInputGetCursorPosition(&x, &y);
    KRInputGetCursorPositionDelta(&dx, &dy);
    EXPECT_EQ(x, 500);
    EXPECT_EQ(y, 200);
    EXPECT_EQ(dx, 5);
    EXPECT_EQ(dy, 4) << "the vertical delta is divided by the horizontal scale";
}

TEST_F(Input, FirstDeltaAfterResetIsTheAbsolutePosition)
{
    sCursorX = 120;
    sCursorY = 80;
    KRInputUpdate();
    int dx = 0, dy = 0;
    KRInputGetCursorPositionDelta(&dx, &dy);
    EXPECT_EQ(dx, 120);
    EXPECT_EQ(dy, 80);
}

TEST_F(Input, PositionIsTruncatedTowardZero)
{
    gKRWinScaleX = 2.4f;
    gKRWinScaleY = 1.8f;
    sCursorX = 1919;
    sCursorY = 1079;
    KRInputUpdate();
    int x = 0, y = 0;
    KRInputGetCursorPosition(&x, &y);
    EXPECT_EQ(x, 799);
    EXPECT_EQ(y, 599);
}

TEST_F(Input, ResetClearsBothSnapshotsAndTheCursor)
{
    sKeys['A'] = 0x80;
    sCursorX = 10;
    KRInputUpdate();
    KRInputUpdate();
    KRInputReset();
    EXPECT_EQ(KRInputCheckCurr('A'), 0);
    EXPECT_EQ(KRInputCheckPrev('A'), 0);
    EXPECT_EQ(gKRInputMouseX, 0);
    EXPECT_EQ(gKRInputMouseDX, 0);
}

TEST_F(Input, EachHideNeedsItsOwnShow)
{
    EXPECT_EQ(KRInputShowCursor(0), -1);
    EXPECT_EQ(sVisibleAsked, 0);
    EXPECT_EQ(KRInputShowCursor(0), -2);
    EXPECT_EQ(KRInputShowCursor(1), -1);
    EXPECT_EQ(sVisibleAsked, 0) << "one show after two hides keeps the cursor hidden";
    EXPECT_EQ(KRInputShowCursor(1), 0);
    EXPECT_EQ(sVisibleAsked, 1);
    EXPECT_EQ(KRInputInit(), 1);
}
