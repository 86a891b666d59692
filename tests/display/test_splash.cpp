// The splash through the real start-up and main loop on the scripted back-end: the two logos' fades and holds,
// the four skip inputs and the skip's fade-out, the hidden cursor, the menu after it, and what is on screen.
#include "DrawKit.h"
#include "GameRun.h"
#include "KRInput.h"
#include "KRPlatform.h"
#include "KRPlatformScripted.h"
#include "ProbeRead.h"
#include "TestEnv.h"
#include "fmodsound.h"
#include "gameloop.h"
#include "gamestatemgr.h"
#include "replayprobe.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

// What one frame of the run looked like at its present: the state had updated and drawn and was still live.
struct Frame
{
    int step;
    int state;
    int next;
    int instances;
    std::string pairs;
    double Value(const char* name) const { return ProbeValue(pairs, name); }
    int SplashStep() const { return (int)Value("sSplashStep"); }
};

std::vector<Frame> sFrames;
int sShotStep = -1;
std::string sShotName;
int sBrightestInLogo = -1; // the largest colour channel in the centre of the view at the shot
int sBrightestInCorner = -1;

int Brightest(int x, int y, int width, int height)
{
    int best = 0;
    for (u32 pixel : ReadRegion(x, y, width, height))
        best = std::max({best, Red(pixel), Green(pixel), Blue(pixel)});
    return best;
}

void RecordFrame(int step)
{
    sFrames.push_back({step, gGameStateCurr, gGameStateNext, ReplayLiveInstances(), ProbeNow()});
    if (step != sShotStep)
        return;
    int width = 0, height = 0;
    gKRPlatform->GetClientSize(&width, &height);
    EXPECT_TRUE(SaveScreenshot(TestOutputDir() + "/" + sShotName, width, height));
    // With a screen of 800 by 600 the view fills the window one to one: the centre of the view is (400, 300).
    sBrightestInLogo = Brightest(400 - 250, 300 - 80, 500, 160);
    sBrightestInCorner = Brightest(0, 0, 60, 60);
}

// From start-up at the splash until the first frame of the menu, or until limit frames have run.
void RunSplash(const std::string& script, size_t limit = 1000)
{
    sFrames.clear();
    StartGameScripted(GS_SPLASH, ("screen 800 600\n" + script).c_str());
    if (sShotStep >= 0)
        KRScriptDrawStep(sShotStep);
    KRScriptSetPresentHook(RecordFrame);
    while (sFrames.size() < limit && GameLoopStep())
        if (sFrames.back().state == GS_MENU)
            break;
}

int SplashFrameCount()
{
    return (int)std::count_if(sFrames.begin(), sFrames.end(), [](const Frame& f) { return f.state == GS_SPLASH; });
}

// The index of the first frame whose sSplashStep is step, or -1.
int FirstFrameOfStep(int step)
{
    for (size_t i = 0; i < sFrames.size(); ++i)
        if (sFrames[i].state == GS_SPLASH && sFrames[i].SplashStep() == step)
            return (int)i;
    return -1;
}

const double kFrame = 1.0 / 60.0;

} // namespace

TEST(Splash, WithNoInputItLastsTwoFadesEachWayAndTwoHoldsOfJustOverTwoSecondsThenTheMenu)
{
    RunSplash("");
    ASSERT_FALSE(sFrames.empty());
    EXPECT_EQ(sFrames.back().state, GS_MENU);

    // 400 frames of fading and 240 of holding; a float step of 0.01 lands just short of 1 (and of 0) after 100
    // steps, and each step's last frame already works the next step, so the count comes out a few frames over.
    int frames = SplashFrameCount();
    EXPECT_GE(frames, 640);
    EXPECT_LE(frames, 646);

    int logoHeld = FirstFrameOfStep(1);
    int logoOut = FirstFrameOfStep(2);
    int teamIn = FirstFrameOfStep(3);
    int teamHeld = FirstFrameOfStep(4);
    int teamOut = FirstFrameOfStep(5);
    ASSERT_GE(logoHeld, 0);
    ASSERT_GT(teamOut, 0);
    EXPECT_NEAR(logoHeld + 1, 100, 1) << "the first logo fades in over about 100 frames";
    EXPECT_NEAR(teamIn - logoOut, 100, 2) << "and out over about 100";
    EXPECT_NEAR(teamHeld - teamIn, 100, 1);
    EXPECT_NEAR(frames - 1 - teamOut, 100, 2);
    // A hold lasts while its clock has not exceeded 2 seconds: it leaves on the first frame past 2.0.
    EXPECT_GT(sFrames[logoOut].Value("sLogoHold"), 2.0);
    EXPECT_LE(sFrames[logoOut].Value("sLogoHold"), 2.0 + kFrame + 1e-4);
    EXPECT_GT(sFrames[teamOut].Value("sTeamHold"), 2.0);
    EXPECT_LE(sFrames[teamOut].Value("sTeamHold"), 2.0 + kFrame + 1e-4);
    EXPECT_NEAR((logoOut - logoHeld) * kFrame, 2.0, kFrame * 1.5);

    const Frame& last = sFrames[frames - 1];
    EXPECT_EQ(last.next, GS_MENU) << "the frame that ends the team logo's fade out asks for the menu";
    EXPECT_LE(last.Value("sTeamAlpha"), 0.0);
}

TEST(Splash, FadesAreNotClampedTheAlphaStopsWhereItsTestEndsIt)
{
    RunSplash("");
    int logoHeld = FirstFrameOfStep(1);
    int teamIn = FirstFrameOfStep(3);
    ASSERT_GE(teamIn, 0);
    EXPECT_GE(sFrames[logoHeld].Value("sLogoAlpha"), 1.0);
    EXPECT_NEAR(sFrames[logoHeld].Value("sLogoAlpha"), 1.01, 1e-4) << "the step that reached 1 stands";
    EXPECT_LT(sFrames[teamIn].Value("sLogoAlpha"), 0.0);
    EXPECT_NEAR(sFrames[teamIn].Value("sLogoAlpha"), -0.01, 1e-4);
}

TEST(Splash, TheFrameThatEndsAStepAlreadyDoesTheNextStepsWork)
{
    RunSplash("");
    int logoHeld = FirstFrameOfStep(1);
    int teamIn = FirstFrameOfStep(3);
    ASSERT_GE(logoHeld, 0);
    ASSERT_GE(teamIn, 0);
    EXPECT_NEAR(sFrames[logoHeld].Value("sLogoHold"), kFrame, 1e-4) << "the fade in's last frame counts the hold";
    EXPECT_NEAR(sFrames[teamIn].Value("sTeamAlpha"), 0.01, 1e-6)
        << "the frame that ends the first logo's fade out already raises the team logo";
}

TEST(Splash, ASkipDuringTheFirstLogosHoldFadesItOutAndTheSecondLogoNeverShows)
{
    RunSplash("key Space 150\n");
    ASSERT_GT(sFrames.size(), 151u);
    EXPECT_EQ(sFrames[149].SplashStep(), 1) << "step 150 falls in the first logo's hold";
    EXPECT_EQ(sFrames[150].SplashStep(), 6);
    EXPECT_EQ(sFrames.back().state, GS_MENU);

    int fadeOut = SplashFrameCount() - 1 - 150;
    EXPECT_GE(fadeOut, 95);
    EXPECT_LE(fadeOut, 102) << "the fade-out from full alpha takes up to about 100 frames";
    for (int i = 151; i < SplashFrameCount(); ++i)
    {
        EXPECT_NEAR(sFrames[i].Value("sLogoAlpha"), sFrames[i - 1].Value("sLogoAlpha") - 0.01, 1e-4) << i;
        EXPECT_EQ(sFrames[i].Value("sTeamAlpha"), 0.0) << "frame " << i;
    }
    EXPECT_LT(SplashFrameCount(), 640) << "the skip ends the splash sooner";
}

TEST(Splash, ASkipNeverEndsTheSplashAtOnceAndLeavesNoBlackGap)
{
    RunSplash("key Return 40\n");
    ASSERT_GT(sFrames.size(), 42u);
    EXPECT_EQ(sFrames[40].next, GS_SPLASH);
    EXPECT_NEAR(sFrames[40].Value("sLogoAlpha"), 0.41, 1e-4) << "the frame of the skip still faded in";
    EXPECT_NEAR(sFrames[41].Value("sLogoAlpha"), 0.40, 1e-4) << "the next frame fades out from there";
    EXPECT_EQ(SplashFrameCount(), 41 + 41) << "41 frames in, 41 frames out: 0.41 falls to 0";
    EXPECT_EQ(sFrames[SplashFrameCount() - 1].next, GS_MENU);
}

namespace {

// A keyboard that presses Return between the splash's Init and its first frame, as a player's press may land:
// the visit's two input updates read it up, the first frame's update reads it down.
int sKeyboardReads = 0;
void ReturnFromTheFirstFrame(unsigned char keys[256])
{
    gKRPlatformScripted.GetKeyboardState(keys);
    if (++sKeyboardReads >= 3)
        keys[13] = 0x80;
}

} // namespace

TEST(Splash, ASkipOnTheFirstFrameStartsTheSkipAtAlphaOneHundredthAndEndsOneFrameLater)
{
    static KRPlatform pressing = gKRPlatformScripted;
    pressing.GetKeyboardState = ReturnFromTheFirstFrame;
    KRPlatformUse(&pressing);
    KRScriptReset();
    ASSERT_EQ(KRScriptParse("screen 800 600\n"), 1);
    sFrames.clear();
    KRScriptSetPresentHook(RecordFrame);
    GameStartUp(GS_SPLASH);
    sKeyboardReads = 0;

    ASSERT_TRUE(GameLoopStep());
    ASSERT_EQ(sFrames.size(), 1u);
    EXPECT_EQ(sFrames[0].SplashStep(), 6);
    EXPECT_NEAR(sFrames[0].Value("sLogoAlpha"), 0.01, 1e-6);
    ASSERT_TRUE(GameLoopStep());
    EXPECT_EQ(sFrames[1].state, GS_SPLASH);
    EXPECT_EQ(sFrames[1].next, GS_MENU);
    EXPECT_EQ(sFrames[1].Value("sLogoAlpha"), 0.0);
    EXPECT_EQ(gGameStateCurr, GS_MENU) << "two frames of splash in all";
}

TEST(Splash, PressingASkipInputAgainDuringTheSkipChangesNothing)
{
    RunSplash("key Return 150\nkey Escape 155-157\nkey Space 160\nkey LButton 170\nkey Return 180\n");
    ASSERT_EQ(sFrames[150].SplashStep(), 6);
    int splashFrames = SplashFrameCount();
    for (int i = 151; i < splashFrames; ++i)
    {
        EXPECT_EQ(sFrames[i].SplashStep(), 6) << i;
        EXPECT_NEAR(sFrames[i].Value("sLogoAlpha"), sFrames[i - 1].Value("sLogoAlpha") - 0.01, 1e-4) << i;
    }
    // The same end as a single press: the alpha held at the skip, in steps of 0.01, down to 0.
    double alphaAtSkip = sFrames[150].Value("sLogoAlpha");
    EXPECT_NEAR(splashFrames - 1 - 150, std::ceil(alphaAtSkip / 0.01 - 1e-3), 1);
    EXPECT_EQ(sFrames.back().state, GS_MENU);
}

namespace {

void ExpectInputSkips(const char* key)
{
    RunSplash(std::string("key ") + key + " 30\n", 40);
    ASSERT_GE(sFrames.size(), 31u);
    EXPECT_EQ(sFrames[29].SplashStep(), 0);
    EXPECT_EQ(sFrames[30].SplashStep(), 6) << key << " skips";
    EXPECT_NEAR(sFrames[31].Value("sLogoAlpha"), 0.30, 1e-4);
}

} // namespace

TEST(Splash, ReturnSkips) { ExpectInputSkips("Return"); }
TEST(Splash, EscapeSkips) { ExpectInputSkips("Escape"); }
TEST(Splash, SpaceSkips) { ExpectInputSkips("Space"); }
TEST(Splash, TheLeftMouseButtonSkips) { ExpectInputSkips("LButton"); }

TEST(Splash, OtherKeysAndTheRightButtonDoNotSkip)
{
    RunSplash("key A 30\nkey RButton 31\nkey 0 32\nkey F1 33\nkey Shift 34\n", 60);
    ASSERT_EQ(sFrames.size(), 60u);
    for (const Frame& frame : sFrames)
        EXPECT_EQ(frame.SplashStep(), 0) << "step " << frame.step;
    EXPECT_NEAR(sFrames[59].Value("sLogoAlpha"), 0.60, 1e-4);
}

TEST(Splash, HoldingASkipKeyDownSkipsOnceAtItsPress)
{
    RunSplash("key Return 20-400\n", 300);
    EXPECT_EQ(sFrames[19].SplashStep(), 0);
    EXPECT_EQ(sFrames[20].SplashStep(), 6);
    EXPECT_EQ(sFrames.back().state, GS_MENU);
    EXPECT_EQ(SplashFrameCount(), 21 + 21);
}

TEST(Splash, TheSystemCursorIsHiddenFromTheSplashOnWithTheCountersSemantics)
{
    RunSplash("key Return 3\n");
    ASSERT_EQ(sFrames.back().state, GS_MENU);
    EXPECT_EQ(KRScriptCursorVisible(), 0) << "hidden by the splash, and the menu hides it once more";
    // Each hide needs its own show: one show leaves it hidden, the second shows it.
    KRInputShowCursor(1);
    EXPECT_EQ(KRScriptCursorVisible(), 0);
    KRInputShowCursor(1);
    EXPECT_EQ(KRScriptCursorVisible(), 1);
}

TEST(Splash, TheSplashHidesTheCursorFromItsFirstFrame)
{
    RunSplash("", 1);
    EXPECT_EQ(KRScriptCursorVisible(), 0);
    KRInputShowCursor(1);
    EXPECT_EQ(KRScriptCursorVisible(), 1) << "one hide: one show undoes it";
}

TEST(Splash, ItSetsNoTrackOfItsOwn)
{
    RunSplash("", 30);
    const char* track = MusicGetTrack();
    EXPECT_TRUE(track == nullptr || track[0] == 0) << track;
}

TEST(Splash, BothLogosLiveInTheSplashsPoolFromItsInitUntilItsFree)
{
    RunSplash("key Return 5\n");
    ASSERT_EQ(sFrames.back().state, GS_MENU);
    EXPECT_EQ(sFrames[0].instances, 2) << "the studio logo and the team logo";
    EXPECT_EQ(sFrames[SplashFrameCount() - 1].instances, 2);
    EXPECT_EQ(sFrames.back().pairs.find("sSplashStep"), std::string::npos)
        << "the menu's frame: the splash has taken back its pool and its probe";
}

namespace {

// Runs the splash with no input a little past the step and saves the screenshot of that step's frame.
void ShootSplashAt(int step, const char* name)
{
    sShotStep = step;
    sShotName = name;
    RunSplash("", (size_t)step + 10);
    ASSERT_GT(sFrames.size(), (size_t)step);
}

} // namespace

TEST(Splash, TheStudioLogoShowsCentredOnBlackDuringItsHold)
{
    ShootSplashAt(150, "splash-studio-logo.png");
    EXPECT_EQ(sFrames[150].SplashStep(), 1);
    EXPECT_GT(sBrightestInLogo, 200) << "the logo's bright lettering is on screen";
    EXPECT_EQ(sBrightestInCorner, 0) << "the background is black";
}

TEST(Splash, TheStudioLogoIsDimAQuarterOfTheWayThroughItsFadeIn)
{
    ShootSplashAt(24, "splash-studio-logo-fading-in.png");
    EXPECT_GT(sBrightestInLogo, 20);
    EXPECT_LT(sBrightestInLogo, 100) << "alpha 0.25";
}

TEST(Splash, TheTeamLogoShowsDuringItsHoldAndTheStudioLogoIsGone)
{
    ShootSplashAt(470, "splash-team-logo.png");
    EXPECT_EQ(sFrames[470].SplashStep(), 4);
    EXPECT_GT(sBrightestInLogo, 60) << "the team logo is on screen";
    EXPECT_LE(sFrames[470].Value("sLogoAlpha"), 0.0);
    EXPECT_EQ(sBrightestInCorner, 0) << "the team logo's dark corners on black";
}
