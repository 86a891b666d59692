// The scripted back-end: keys, cursor, frame time and window messages step by step.
#include "KRPlatformScripted.h"

#include <gtest/gtest.h>

namespace {

long sLastMessage = 0;
long sLastParam = -1;

long RecordMessage(unsigned int message, long param)
{
    sLastMessage = message;
    sLastParam = param;
    return 0;
}

} // namespace

TEST(Script, KeysAreHeldForTheirStepsInclusive)
{
    KRScriptReset();
    ASSERT_EQ(KRScriptParse("key A 1-2\nkey F1 3\n"), 1);
    unsigned char keys[256];
    int downA[5] = {}, downF1[5] = {};
    for (int step = 0; step < 5; ++step)
    {
        gKRPlatformScripted.GetKeyboardState(keys);
        downA[step] = keys['A'] >> 7;
        downF1[step] = keys[0x70] >> 7;
        gKRPlatformScripted.PumpEvents(RecordMessage);
    }
    EXPECT_EQ(downA[0], 0);
    EXPECT_EQ(downA[1], 1);
    EXPECT_EQ(downA[2], 1);
    EXPECT_EQ(downA[3], 0);
    EXPECT_EQ(downF1[3], 1);
    EXPECT_EQ(KRScriptGetStep(), 5);
}

TEST(Script, CursorStaysWhereItWasLastPut)
{
    KRScriptReset();
    ASSERT_EQ(KRScriptParse("cursor 10 20 1\ncursor 30 40 3\n"), 1);
    int x = -1, y = -1;
    gKRPlatformScripted.GetCursorPos(&x, &y);
    EXPECT_EQ(x, 0);
    gKRPlatformScripted.PumpEvents(RecordMessage);
    gKRPlatformScripted.PumpEvents(RecordMessage);
    gKRPlatformScripted.GetCursorPos(&x, &y);
    EXPECT_EQ(x, 10);
    EXPECT_EQ(y, 20);
    gKRPlatformScripted.PumpEvents(RecordMessage);
    gKRPlatformScripted.GetCursorPos(&x, &y);
    EXPECT_EQ(x, 30);
    EXPECT_EQ(y, 40);
}

TEST(Script, FrameTimeAdvancesTheCounterAtPresent)
{
    KRScriptReset();
    ASSERT_EQ(KRScriptParse("frametime 2.0 1\n"), 1);
    uint64_t freq = gKRPlatformScripted.GetFrequency();
    uint64_t t0 = gKRPlatformScripted.GetCounter();
    gKRPlatformScripted.Present();
    EXPECT_EQ(gKRPlatformScripted.GetCounter() - t0, freq / 60);
    gKRPlatformScripted.PumpEvents(RecordMessage);
    gKRPlatformScripted.Present();
    EXPECT_EQ(gKRPlatformScripted.GetCounter() - t0, freq / 60 + 2 * freq);
}

TEST(Script, CloseIsReportedAtTheEndOfItsStep)
{
    KRScriptReset();
    ASSERT_EQ(KRScriptParse("close 1\n"), 1);
    sLastMessage = 0;
    gKRPlatformScripted.PumpEvents(RecordMessage);
    EXPECT_EQ(sLastMessage, 0);
    gKRPlatformScripted.PumpEvents(RecordMessage);
    EXPECT_EQ(sLastMessage, KR_WM_DESTROY);
}

TEST(Script, ScreenSizeIsWhatTheScriptSays)
{
    KRScriptReset();
    int w = 0, h = 0;
    gKRPlatformScripted.GetScreenSize(&w, &h);
    EXPECT_EQ(w, 1920);
    EXPECT_EQ(h, 1080);
    ASSERT_EQ(KRScriptParse("screen 1600 900"), 1);
    gKRPlatformScripted.GetScreenSize(&w, &h);
    EXPECT_EQ(w, 1600);
    EXPECT_EQ(h, 900);
}

TEST(Script, UnreadableLinesAreRefused)
{
    KRScriptReset();
    EXPECT_EQ(KRScriptParse("key NoSuchKey 1\n"), 0);
    EXPECT_EQ(KRScriptParse("jump 3\n"), 0);
    EXPECT_EQ(KRScriptParse("key A 5-2\n"), 0);
    EXPECT_EQ(KRScriptParse("# only a comment\n\n"), 1);
}

TEST(Script, KeyNames)
{
    EXPECT_EQ(KRScriptKeyFromName("a"), 'A');
    EXPECT_EQ(KRScriptKeyFromName("0"), '0');
    EXPECT_EQ(KRScriptKeyFromName("LButton"), 1);
    EXPECT_EQ(KRScriptKeyFromName("Minus"), 189);
    EXPECT_EQ(KRScriptKeyFromName("0x70"), 0x70);
    EXPECT_EQ(KRScriptKeyFromName("?"), -1);
}

TEST(Script, EveryStepIsDrawnAfterAReset)
{
    KRScriptReset();
    KRScriptDrawNoStep();
    KRScriptReset();
    EXPECT_TRUE(KRScriptStepDrawn(0));
    EXPECT_TRUE(KRScriptStepDrawn(500));
    EXPECT_TRUE(KRScriptFrameDrawn());
}

TEST(Script, OnlyTheStepsAskedForAreDrawnAfterDrawNoStep)
{
    KRScriptReset();
    KRScriptDrawNoStep();
    KRScriptDrawStep(5);
    KRScriptDrawStep(9);
    EXPECT_FALSE(KRScriptStepDrawn(0));
    EXPECT_TRUE(KRScriptStepDrawn(5));
    EXPECT_FALSE(KRScriptStepDrawn(6));
    EXPECT_TRUE(KRScriptStepDrawn(9));
    KRScriptDrawEveryStep();
    EXPECT_TRUE(KRScriptStepDrawn(6));
    KRScriptDrawNoStep();
    EXPECT_FALSE(KRScriptStepDrawn(5)) << "no step forgets the steps asked for before";
}

TEST(Script, TheFrameInTheBackBufferIsThatOfTheLastPresent)
{
    KRScriptReset();
    KRScriptDrawNoStep();
    KRScriptDrawStep(1);
    EXPECT_FALSE(KRScriptFrameDrawn()) << "before any present: the step under way, 0, is not drawn";
    gKRPlatformScripted.Present(); // step 0's frame
    gKRPlatformScripted.PumpEvents(RecordMessage);
    EXPECT_FALSE(KRScriptFrameDrawn()) << "step 1 has begun, but the back buffer still holds step 0's frame";
    gKRPlatformScripted.Present(); // step 1's frame
    EXPECT_TRUE(KRScriptFrameDrawn());
    gKRPlatformScripted.PumpEvents(RecordMessage);
    EXPECT_TRUE(KRScriptFrameDrawn()) << "until the next present";
    gKRPlatformScripted.Present(); // step 2's frame
    EXPECT_FALSE(KRScriptFrameDrawn());
}
