// quillon-replay through its command line: probe lines and shots at the steps asked for, each option, the ends of
// a run, and the scripts and options it refuses. Each test runs the real binary under the X display.
#include "LevelRun.h"
#include "TestEnv.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sstream>
#include <stb_image.h>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

struct ReplayRun
{
    int status;
    std::string out;
    std::string err;
    std::vector<std::string> probes; // the probe lines of out, in order
};

std::string SourceDir()
{
    const char* dir = std::getenv("QUILLON_SOURCE_DIR");
    return dir ? dir : ".";
}

// Runs the tool from the folder cwd with the script text written to a file and the other arguments as given
// (already quoted where needed).
ReplayRun RunReplayIn(const std::string& cwd, const std::string& script, const std::string& args)
{
    std::string dir = MakeTempDir("replay");
    std::string scriptPath = dir + "/script.txt";
    WriteFileText(scriptPath, script);
    std::string command = "cd '" + cwd + "' && '" + ReplayBinary() + "' --script '" + scriptPath + "' " + args +
                          " </dev/null >'" + dir + "/out.txt' 2>'" + dir + "/err.txt'";
    int raw = std::system(command.c_str());
    ReplayRun run;
    run.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    run.out = ReadFileText(dir + "/out.txt");
    run.err = ReadFileText(dir + "/err.txt");
    std::istringstream lines(run.out);
    std::string line;
    while (std::getline(lines, line))
        if (line.compare(0, 6, "probe ") == 0)
            run.probes.push_back(line);
    return run;
}

// From the top of the source tree, where the default assets folder lies; screens of 800 by 600.
ReplayRun RunReplay(const std::string& script, const std::string& args = "")
{
    return RunReplayIn(SourceDir(), "screen 800 600\n" + script, args);
}

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

std::string Quoted(const std::string& text)
{
    return "'" + text + "'";
}

// The largest colour channel in a rectangle of a PNG (top left origin); -1 when the file can't be read.
int BrightestInPng(const std::string& path, int x, int y, int width, int height, int* pWidth, int* pHeight)
{
    int channels = 0;
    unsigned char* pixels = stbi_load(path.c_str(), pWidth, pHeight, &channels, 4);
    if (!pixels)
        return -1;
    int best = 0;
    for (int row = y; row < y + height && row < *pHeight; ++row)
        for (int col = x; col < x + width && col < *pWidth; ++col)
            for (int c = 0; c < 3; ++c)
                best = std::max(best, (int)pixels[((size_t)row * *pWidth + col) * 4 + c]);
    stbi_image_free(pixels);
    return best;
}

// A game folder with every asset by link and the level file of the first level: a floor of platforms at y = -40
// with the character standing at (x, 0).
std::string FloorLevel(int x)
{
    return LevelText({{3, -200, -40}, {3, -100, -40}, {3, 0, -40}, {3, 100, -40}, {3, 200, -40}, {8, x, 0}});
}

std::string GameFolderWithFirstLevel()
{
    std::string game = MakeTempDir("replay-game");
    LinkAssetsInto(SourceDir() + "/assets", game);
    unlink((game + "/Level1.txt").c_str());
    WriteFileText(game + "/Level1.txt", FloorLevel(0));
    return game;
}

} // namespace

TEST(ReplayTool, PrintsAProbeLineAtTheEndOfEachAskedStepsFrame)
{
    ReplayRun run = RunReplay("probe 0\nprobe 5\nclose 8\n", "--state GS_SPLASH");
    EXPECT_EQ(run.status, 0) << run.err;
    ASSERT_EQ(run.probes.size(), 2u) << run.out;
    EXPECT_EQ(run.probes[0], "probe step=0 state=GS_SPLASH next=GS_SPLASH instances=2 sSplashStep=0 sLogoAlpha=0.01 "
                             "sLogoHold=0 sTeamAlpha=0 sTeamHold=0");
    EXPECT_EQ(run.probes[1], "probe step=5 state=GS_SPLASH next=GS_SPLASH instances=2 sSplashStep=0 sLogoAlpha=0.06 "
                             "sLogoHold=0 sTeamAlpha=0 sTeamHold=0");
}

TEST(ReplayTool, ProbeStepsAreTheStepsOfTheScriptsKeyCommands)
{
    ReplayRun run = RunReplay("key Return 10\nprobe 9\nprobe 10\nclose 12\n", "--state GS_SPLASH");
    ASSERT_EQ(run.probes.size(), 2u) << run.out << run.err;
    EXPECT_TRUE(Contains(run.probes[0], " sSplashStep=0 ")) << run.probes[0];
    EXPECT_TRUE(Contains(run.probes[1], " sSplashStep=6 ")) << "Return held at step 10 skips in step 10's frame";
}

TEST(ReplayTool, ProbesFollowTheGameIntoTheNextStateWithItsLiveCount)
{
    // A skip at step 3 leaves the logo at 0.04: four frames of fade-out, the last one asks for the menu.
    ReplayRun run = RunReplay("key Escape 3\nprobe 7\nprobe 8\nclose 9\n", "--state GS_SPLASH");
    ASSERT_EQ(run.probes.size(), 2u) << run.out << run.err;
    EXPECT_TRUE(Contains(run.probes[0], "probe step=7 state=GS_SPLASH next=GS_MENU instances=2 ")) << run.probes[0];
    EXPECT_EQ(run.probes[1].rfind("probe step=8 state=GS_MENU next=GS_MENU instances=", 0), 0u) << run.probes[1];
    EXPECT_FALSE(Contains(run.probes[1], "sSplashStep")) << "the menu's own pool and pairs, not the splash's";
}

TEST(ReplayTool, AProbeLineStartsWithTheStepTheStateTheNextStateAndTheLiveCount)
{
    ReplayRun run = RunReplay("probe 2\nclose 3\n", "--state GS_CREDITS");
    ASSERT_EQ(run.probes.size(), 1u) << run.err;
    const std::string head = "probe step=2 state=GS_CREDITS next=GS_CREDITS instances=";
    ASSERT_EQ(run.probes[0].compare(0, head.size(), head), 0) << run.probes[0];
    EXPECT_GT(std::atoi(run.probes[0].c_str() + head.size()), 20) << "the credits' instances are counted";
}

TEST(ReplayTool, ProbeLinesComeInStepOrderWhateverTheOrderOfTheScript)
{
    ReplayRun run = RunReplay("probe 4\nprobe 2\nclose 5\n", "--state GS_SPLASH");
    ASSERT_EQ(run.probes.size(), 2u) << run.out;
    EXPECT_EQ(run.probes[0].compare(0, 13, "probe step=2 "), 0);
    EXPECT_EQ(run.probes[1].compare(0, 13, "probe step=4 "), 0);
}

TEST(ReplayTool, AShotSavesTheFramePresentedAtItsStepAsAPng)
{
    std::string dir = MakeTempDir("replay-shots");
    std::string logo = TestOutputDir() + "/replay-shot-studio-logo.png";
    std::remove(logo.c_str());
    ReplayRun run = RunReplay("shot 150 " + logo + "\nshot 0 " + dir + "/first.png\nclose 151\n", "--state GS_SPLASH");
    EXPECT_EQ(run.status, 0) << run.err;
    int width = 0, height = 0;
    EXPECT_GT(BrightestInPng(logo, 150, 220, 500, 160, &width, &height), 200) << "the studio logo, held at full alpha";
    EXPECT_EQ(width, 800);
    EXPECT_EQ(height, 600);
    EXPECT_EQ(BrightestInPng(logo, 0, 0, 60, 60, &width, &height), 0) << "on black";
    EXPECT_LT(BrightestInPng(dir + "/first.png", 0, 0, 800, 600, &width, &height), 8) << "alpha 0.01 at step 0";
}

TEST(ReplayTool, DrawingOnlyTheShotsGivesTheSamePicturesAndProbesAsDrawingEveryFrame)
{
    // A level with the torch swinging, a walk, a jump and a flip: the frames between shots are skipped, and each
    // shot is still its frame to the byte, so nothing a picture shows is carried over from frames before it.
    const std::string script = "cursor 600 100 0\ncursor 200 500 45\nkey D 0-120\nkey Space 20\nkey LButton 50\n"
                               "probe 30\nprobe 90\nprobe 119\nclose 120\n";
    std::string shots[2];
    ReplayRun runs[2];
    for (int i = 0; i < 2; ++i)
    {
        const std::string dir = MakeTempDir("replay-draw");
        shots[i] = dir;
        runs[i] = RunReplay(script + "shot 30 " + dir + "/a.png\nshot 90 " + dir + "/b.png\nshot 119 " + dir +
                                "/c.png\n",
                            i == 0 ? "--state GS_LEVEL_0" : "--state GS_LEVEL_0 --draw shots");
        EXPECT_EQ(runs[i].status, 0) << runs[i].err;
    }
    ASSERT_EQ(runs[0].probes.size(), 3u) << runs[0].err;
    EXPECT_EQ(runs[1].probes, runs[0].probes);
    for (const char* name : {"/a.png", "/b.png", "/c.png"})
    {
        const std::string every = ReadFileText(shots[0] + name);
        int width = 0, height = 0;
        EXPECT_GT(BrightestInPng(shots[0] + name, 0, 0, 800, 600, &width, &height), 100) << name << " shows the level";
        EXPECT_FALSE(every.empty()) << name;
        EXPECT_TRUE(every == ReadFileText(shots[1] + name)) << name << " differs when only the shots are drawn";
    }
}

TEST(ReplayTool, TheDrawOptionIsAllOrShots)
{
    ReplayRun run = RunReplay("close 3\n", "--draw some");
    EXPECT_EQ(run.status, 2);
    EXPECT_TRUE(Contains(run.err, "--draw wants all or shots, not some")) << run.err;
}

TEST(ReplayTool, AShotPathIsTakenFromTheFolderTheToolStartedIn)
{
    std::string dir = MakeTempDir("replay-cwd");
    ReplayRun run = RunReplayIn(dir, "screen 800 600\nshot 2 here.png\nclose 3\n",
                                "--assets " + Quoted(SourceDir() + "/assets"));
    EXPECT_EQ(run.status, 0) << run.err;
    int width = 0, height = 0;
    EXPECT_GE(BrightestInPng(dir + "/here.png", 0, 0, 10, 10, &width, &height), 0) << "written beside the start";
}

TEST(ReplayTool, AShotItCannotWriteIsReportedAndFailsTheRun)
{
    ReplayRun run = RunReplay("shot 1 /nonexistent/folder/x.png\nprobe 2\nclose 3\n", "--state GS_SPLASH");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.probes.size(), 1u) << "the run goes on to its end";
    EXPECT_TRUE(Contains(run.err, "could not write the shot of step 1 to /nonexistent/folder/x.png")) << run.err;
}

TEST(ReplayTool, FromProgramStartWithNoInputTheSplashEndsInTheMenuAfter400FramesAndFourSeconds)
{
    std::string script;
    for (int step = 630; step <= 660; ++step)
        script += "probe " + std::to_string(step) + "\n";
    // Nothing here is looked at, so no frame is drawn: 660 frames of the splash shaded for nobody are most of a
    // run's time.
    ReplayRun run = RunReplay(script + "close 660\n", "--draw shots");
    ASSERT_EQ(run.probes.size(), 31u) << run.err;
    int firstMenu = -1;
    for (size_t i = 0; i < run.probes.size() && firstMenu < 0; ++i)
        if (Contains(run.probes[i], " state=GS_MENU "))
            firstMenu = 630 + (int)i;
    EXPECT_GE(firstMenu, 640) << "the game starts at the splash without --state";
    EXPECT_LE(firstMenu, 646);
    ASSERT_GT(firstMenu, 630);
    EXPECT_TRUE(Contains(run.probes[firstMenu - 631], " state=GS_SPLASH next=GS_MENU "));
    EXPECT_TRUE(Contains(run.probes[firstMenu - 640], " sTeamAlpha=") &&
                !Contains(run.probes[firstMenu - 640], " sTeamAlpha=0 "))
        << "the team logo was still fading out";
}

TEST(ReplayTool, EndsWithStatusZeroWhenTheWindowClosesAndSaysWhichProbesItNeverReached)
{
    ReplayRun run = RunReplay("close 3\nprobe 2\nprobe 3\nprobe 20\nshot 21 never.png\n", "--state GS_CREDITS");
    EXPECT_EQ(run.status, 0) << run.err;
    ASSERT_EQ(run.probes.size(), 2u);
    EXPECT_EQ(run.probes[1].rfind("probe step=3 state=GS_CREDITS next=GS_QUIT ", 0), 0u) << run.probes[1];
    EXPECT_TRUE(Contains(run.err, "probe 20 not reached: the run ended after step 3")) << run.err;
    EXPECT_TRUE(Contains(run.err, "shot 21 not reached")) << run.err;
}

TEST(ReplayTool, EndsAtTheScriptsCloseWithStatusZero)
{
    ReplayRun run = RunReplay("close 5\nprobe 5\nprobe 6\n", "--state GS_SPLASH");
    EXPECT_EQ(run.status, 0) << run.err;
    ASSERT_EQ(run.probes.size(), 1u) << run.out;
    EXPECT_EQ(run.probes[0].rfind("probe step=5 state=GS_SPLASH next=GS_QUIT instances=2 ", 0), 0u)
        << "the close at the end of the frame makes the next state GS_QUIT: " << run.probes[0];
}

TEST(ReplayTool, AScriptLineItCannotReadEndsTheRunWithItsLineNumber)
{
    ReplayRun unknown = RunReplay("probe 1\njump 5\nclose 3\n");
    EXPECT_NE(unknown.status, 0);
    EXPECT_TRUE(Contains(unknown.err, "line 3 not understood: jump 5")) << unknown.err;
    EXPECT_TRUE(unknown.probes.empty()) << "nothing runs";

    ReplayRun probe = RunReplay("probe\nclose 3\n");
    EXPECT_NE(probe.status, 0);
    EXPECT_TRUE(Contains(probe.err, "line 2 not understood: probe (expected: probe <step>)")) << probe.err;

    ReplayRun shot = RunReplay("shot 4\nclose 3\n");
    EXPECT_NE(shot.status, 0);
    EXPECT_TRUE(Contains(shot.err, "line 2 not understood: shot 4 (expected: shot <step> <file.png>)")) << shot.err;

    ReplayRun negative = RunReplay("probe -1\n");
    EXPECT_NE(negative.status, 0);
    EXPECT_TRUE(Contains(negative.err, "line 2 not understood")) << negative.err;
}

TEST(ReplayTool, AScriptFileItCannotOpenEndsTheRunWithAMessage)
{
    std::string command = "'" + ReplayBinary() + "' --script /nonexistent/script.txt 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    std::string out;
    char buffer[256];
    while (std::fgets(buffer, sizeof(buffer), pipe))
        out += buffer;
    int raw = pclose(pipe);
    EXPECT_NE(WEXITSTATUS(raw), 0);
    EXPECT_TRUE(Contains(out, "cannot read the script /nonexistent/script.txt: No such file or directory")) << out;
}

TEST(ReplayTool, AStateOptionWithoutANameOrWithAnUnknownNameIsRefused)
{
    ReplayRun missing = RunReplay("close 1\n", "--state");
    EXPECT_NE(missing.status, 0);
    EXPECT_TRUE(Contains(missing.err, "--state needs a value")) << missing.err;

    ReplayRun unknown = RunReplay("close 1\n", "--state GS_NOWHERE");
    EXPECT_NE(unknown.status, 0);
    EXPECT_TRUE(Contains(unknown.err, "no game state is named GS_NOWHERE")) << unknown.err;

    ReplayRun pseudo = RunReplay("close 1\n", "--state GS_QUIT");
    EXPECT_NE(pseudo.status, 0) << "GS_QUIT is no state to start in";
}

TEST(ReplayTool, TheStateOptionNamesTheFirstState)
{
    ReplayRun run = RunReplay("probe 0\nclose 1\n", "--state GS_LS");
    ASSERT_EQ(run.probes.size(), 1u) << run.err;
    EXPECT_EQ(run.probes[0].rfind("probe step=0 state=GS_LS next=GS_LS instances=", 0), 0u) << run.probes[0];
}

TEST(ReplayTool, TheAssetsOptionIsTheFolderTheGameReadsFrom)
{
    std::string assets = MakeTempDir("replay-assets");
    std::string copy = "cp '" + SourceDir() + "/assets/Varnholt_Harbour.png' '" + SourceDir() + "/assets/TeamLogo.png' '" +
                       assets + "/'";
    ASSERT_EQ(std::system(copy.c_str()), 0);
    std::string elsewhere = MakeTempDir("replay-elsewhere");
    ReplayRun run = RunReplayIn(elsewhere, "screen 800 600\nprobe 1\nclose 2\n", "--assets " + Quoted(assets));
    EXPECT_EQ(run.status, 0) << run.out << run.err;
    ASSERT_EQ(run.probes.size(), 1u);
    EXPECT_TRUE(Contains(run.probes[0], "state=GS_SPLASH next=GS_SPLASH instances=2 ")) << run.probes[0];

    // Without the pictures there the engine's stop report ends the program: a missing picture is not tested for
    // at its load, the OpenGL error it leaves is caught by the next check.
    std::string empty = MakeTempDir("replay-empty");
    ReplayRun bare = RunReplayIn(elsewhere, "screen 800 600\nprobe 1\nclose 2\n", "--assets " + Quoted(empty));
    EXPECT_NE(bare.status, 0);
    EXPECT_TRUE(Contains(bare.out, "CHECK_GL_ERROR")) << bare.out << bare.err;
    EXPECT_TRUE(bare.probes.empty());

    ReplayRun none = RunReplay("close 1\n", "--assets /nonexistent/assets");
    EXPECT_NE(none.status, 0);
    EXPECT_TRUE(Contains(none.err, "cannot enter the assets folder /nonexistent/assets")) << none.err;
}

TEST(ReplayTool, TheDocumentsOptionIsTheDocumentsFolderOfTheSaveFolderRule)
{
    std::string documents = MakeTempDir("replay-documents");
    ReplayRun run = RunReplay("close 1\n", "--documents " + Quoted(documents));
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(Contains(run.err, "save folder " + documents + "/Varnholt/Mandrel/")) << run.err;

    ReplayRun plain = RunReplay("close 1\n");
    EXPECT_TRUE(Contains(plain.err, "/Documents/Varnholt/Mandrel/")) << "without it, the home folder's Documents";
}

TEST(ReplayTool, TheUserLevelOptionSetsTheUserLevelsName)
{
    ReplayRun run = RunReplay("close 1\n", "--user-level 'My_Tomb 2'");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(Contains(run.err, "user level \"My_Tomb 2\"")) << run.err;

    ReplayRun slash = RunReplay("close 1\n", "--user-level ../escape");
    EXPECT_NE(slash.status, 0) << "a name is letters, digits, '_' and blanks, as the game's own entry allows";
    ReplayRun longName = RunReplay("close 1\n", "--user-level ABCDEFGHIJKLMNOPQRST");
    EXPECT_NE(longName.status, 0) << "twenty letters are one too many";
}

TEST(ReplayTool, TheAttributesOptionSetsBatteryAndHitPoints)
{
    ReplayRun run = RunReplay("close 1\n", "--attributes 3,4");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(Contains(run.err, "attributes 3,4")) << run.err;

    ReplayRun one = RunReplay("close 1\n", "--attributes 3");
    EXPECT_NE(one.status, 0);
    EXPECT_TRUE(Contains(one.err, "--attributes wants two whole numbers B,H, not 3")) << one.err;
    ReplayRun word = RunReplay("close 1\n", "--attributes 3,x");
    EXPECT_NE(word.status, 0);
}

TEST(ReplayTool, WithoutAScriptOrWithAnUnknownOptionItPrintsItsUsage)
{
    int raw = std::system(("'" + ReplayBinary() + "' --state GS_CREDITS >/dev/null 2>&1").c_str());
    EXPECT_NE(WEXITSTATUS(raw), 0);
    ReplayRun unknown = RunReplay("close 1\n", "--fast");
    EXPECT_NE(unknown.status, 0);
    EXPECT_TRUE(Contains(unknown.err, "unknown option --fast")) << unknown.err;
    EXPECT_TRUE(Contains(unknown.err, "usage: quillon-replay --script FILE")) << unknown.err;
}

TEST(ReplayTool, AProbeInALevelGivesTheCharacterTheCameraAndTheLevelsFlags)
{
    std::string game = GameFolderWithFirstLevel();
    // Probes only: no frame is drawn.
    ReplayRun run = RunReplay("key D 30-60\nprobe 20\nprobe 60\nclose 61\n",
                              "--state GS_LEVEL_0 --draw shots --assets " + Quoted(game));
    EXPECT_EQ(run.status, 0) << run.err;
    ASSERT_EQ(run.probes.size(), 2u) << run.out << run.err;
    const std::string& still = run.probes[0];
    EXPECT_EQ(still.rfind("probe step=20 state=GS_LEVEL_0 next=GS_LEVEL_0 instances=", 0), 0u) << still;
    for (const char* name : {"instances", "x", "y", "vx", "vy", "sGravityInverted", "sOnGround", "sFlipFrozen",
                             "sFlipCooldown", "sFacingLeft", "sHitPoints", "sBatteryUsed", "sBatteryLife",
                             "sInvincible", "sWon", "sLost", "sEndTimer", "sPaused", "camx", "camy"})
        EXPECT_TRUE(Contains(still, std::string(" ") + name + "=")) << name << " in " << still;
    EXPECT_TRUE(Contains(still, " x=0 ")) << still;
    EXPECT_TRUE(Contains(still, " sOnGround=1 ")) << still;
    EXPECT_FALSE(Contains(still, " instances=0 "));
    EXPECT_FALSE(Contains(run.probes[1], " x=0 ")) << "D walked the character: " << run.probes[1];
    EXPECT_TRUE(Contains(run.probes[1], " sFacingLeft=0 ")) << run.probes[1];
}

TEST(ReplayTool, TheAttributesOptionGivesALevelItsBatteryAndHitPoints)
{
    std::string game = GameFolderWithFirstLevel();
    ReplayRun plain = RunReplay("probe 1\nclose 2\n", "--state GS_LEVEL_0 --assets " + Quoted(game));
    ASSERT_EQ(plain.probes.size(), 1u) << plain.err;
    EXPECT_TRUE(Contains(plain.probes[0], " sHitPoints=3 ")) << plain.probes[0];
    EXPECT_TRUE(Contains(plain.probes[0], " sBatteryLife=180 ")) << plain.probes[0];

    ReplayRun run = RunReplay("probe 1\nclose 2\n", "--state GS_LEVEL_0 --attributes 2,3 --assets " + Quoted(game));
    ASSERT_EQ(run.probes.size(), 1u) << run.err;
    EXPECT_TRUE(Contains(run.probes[0], " sHitPoints=6 ")) << "three more hit points: " << run.probes[0];
    EXPECT_TRUE(Contains(run.probes[0], " sBatteryLife=200 ")) << "twenty more of battery: " << run.probes[0];
}

TEST(ReplayTool, TheUserLevelIsFoundByItsNameInTheSaveFolderOfTheDocumentsOption)
{
    std::string game = GameFolderWithFirstLevel();
    std::string documents = MakeTempDir("replay-user-documents");
    mkdir((documents + "/Varnholt").c_str(), 0755);
    mkdir((documents + "/Varnholt/Mandrel").c_str(), 0755);
    WriteFileText(documents + "/Varnholt/Mandrel/My Tomb.txt", FloorLevel(100));
    ReplayRun run = RunReplay("probe 1\nclose 2\n", "--state GS_LEVEL_USER --user-level 'My Tomb' --documents " +
                                                         Quoted(documents) + " --assets " + Quoted(game));
    EXPECT_EQ(run.status, 0) << run.err;
    ASSERT_EQ(run.probes.size(), 1u) << run.out << run.err;
    EXPECT_TRUE(Contains(run.probes[0], " state=GS_LEVEL_USER ")) << run.probes[0];
    EXPECT_TRUE(Contains(run.probes[0], " x=100 ")) << "the character of that file: " << run.probes[0];
}
