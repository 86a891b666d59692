// The kept replays of the authored levels: each script in tests/replays plays through quillon-replay, the real
// game and main loop, from the level's start, and must end as its "# expect" lines say: won or lost, the next
// state the level leaves for, the level's flag in States.txt.
#include "TestEnv.h"

#include <algorithm>
#include <cstdlib>
#include <dirent.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace {

const int kShotEvery = 20;

std::string ReplaysSourceDir()
{
    const char* dir = std::getenv("QUILLON_SOURCE_DIR");
    return dir ? dir : "..";
}

struct Expectations
{
    std::string state;
    bool won = false;
    bool lost = false;
    int flag = -1;
    std::string next;
    int lastStep = 0;
};

Expectations ReadExpectations(const std::string& script)
{
    Expectations e;
    std::istringstream lines(script);
    std::string line;
    while (std::getline(lines, line))
    {
        std::istringstream words(line);
        std::string first, word, value;
        words >> first >> word >> value;
        if (first == "#" && word == "expect-state")
            e.state = value;
        else if (first == "#" && word == "expect" && value == "won")
            e.won = true;
        else if (first == "#" && word == "expect" && value == "lost")
            e.lost = true;
        else if (first == "#" && word == "expect-flag")
            e.flag = std::atoi(value.c_str());
        else if (first == "#" && word == "expect-next")
            e.next = value;
        else if (first == "close")
            e.lastStep = std::atoi(word.c_str());
    }
    return e;
}

std::vector<std::string> Scripts()
{
    std::vector<std::string> names;
    // Listed while the tests are registered, before main has set the environment: the folder is built in.
    if (DIR* folder = opendir(QUILLON_REPLAYS_DIR))
    {
        while (dirent* entry = readdir(folder))
        {
            std::string name = entry->d_name;
            if (name.size() > 7 && name.substr(name.size() - 7) == ".script")
                names.push_back(name);
        }
        closedir(folder);
    }
    return names;
}

class LevelReplay : public ::testing::TestWithParam<std::string>
{
};

} // namespace

TEST_P(LevelReplay, EndsAsItsExpectationsSay)
{
    const std::string path = std::string(QUILLON_REPLAYS_DIR) + "/" + GetParam();
    const std::string script = ReadFileText(path);
    const Expectations e = ReadExpectations(script);
    ASSERT_FALSE(e.state.empty()) << "the script names no # expect-state";
    ASSERT_GT(e.lastStep, 0) << "the script has no close";

    // The script's own screen (800 by 600, a window to watch it in), only the frames of the pictures drawn (for
    // speed), a probe at every step, and a picture every 20 steps from 400 to 180 steps before the close (a won
    // level moves on three seconds, 180 steps, after the win, and a winning script closes after that): the last
    // one before the level is won is kept as the level's picture near its exit.
    const std::string dir = MakeTempDir("level-replay");
    std::string full = script;
    for (int step = 0; step <= e.lastStep; step++)
        full += "probe " + std::to_string(step) + "\n";
    if (e.won)
        for (int step = std::max(0, e.lastStep - 400) / kShotEvery * kShotEvery; step <= e.lastStep - 180;
             step += kShotEvery)
            full += "shot " + std::to_string(step) + " " + dir + "/step" + std::to_string(step) + ".png\n";
    WriteFileText(dir + "/script.txt", full);
    const std::string documents = dir + "/documents";
    const std::string saves = documents + "/Varnholt/Mandrel";
    std::system(("mkdir -p '" + saves + "'").c_str());
    WriteFileText(saves + "/States.txt", "000000\n0\n0");

    const std::string command = "cd '" + ReplaysSourceDir() + "' && '" + ReplayBinary() + "' --state " +
                                e.state + " --draw shots --script '" + dir + "/script.txt' --documents '" + documents +
                                "' </dev/null >'" + dir + "/out.txt' 2>'" + dir + "/err.txt'";
    const int raw = std::system(command.c_str());
    ASSERT_TRUE(WIFEXITED(raw) && WEXITSTATUS(raw) == 0) << ReadFileText(dir + "/err.txt");

    bool sawWon = false, sawLost = false, sawNext = e.next.empty();
    int wonStep = -1;
    std::istringstream out(ReadFileText(dir + "/out.txt"));
    std::string line;
    while (std::getline(out, line))
    {
        if (!sawWon && line.find(" sWon=1") != std::string::npos)
            wonStep = std::atoi(line.c_str() + line.find("step=") + 5);
        sawWon = sawWon || line.find(" sWon=1") != std::string::npos;
        sawLost = sawLost || line.find(" sLost=1") != std::string::npos;
        sawNext = sawNext || line.find(" next=" + e.next + " ") != std::string::npos;
    }
    EXPECT_EQ(sawWon, e.won) << "won";
    if (wonStep >= 0)
    {
        const int shotStep = std::max(0, (wonStep - 1) / kShotEvery * kShotEvery);
        const std::string name = GetParam().substr(0, GetParam().size() - 7) + "-near-exit.png";
        const std::string picture = ReadFileText(dir + "/step" + std::to_string(shotStep) + ".png");
        EXPECT_FALSE(picture.empty()) << "no picture at step " << shotStep;
        std::ofstream(TestOutputDir() + "/" + name, std::ios::binary) << picture;
    }
    EXPECT_EQ(sawLost, e.lost) << "lost";
    EXPECT_TRUE(sawNext) << "the level never asked for " << e.next;
    const std::string states = ReadFileText(saves + "/States.txt");
    if (e.flag >= 0)
    {
        ASSERT_GT(states.size(), (size_t)e.flag);
        EXPECT_EQ(states[e.flag], '1') << "the level's flag in States.txt: " << states;
    }
    else
        EXPECT_EQ(states.substr(0, 6), "000000") << "no flag is set by a level that was not won";
}

INSTANTIATE_TEST_SUITE_P(Authored, LevelReplay, ::testing::ValuesIn(Scripts()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                             std::string name = info.param.substr(0, info.param.size() - 7);
                             for (char& c : name)
                                 if (!isalnum((unsigned char)c))
                                     c = '_';
                             return name;
                         });
