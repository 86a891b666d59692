// TestMain.cpp -- the entry of every test binary: a private home folder, the test output folder and SDL's silent
// audio driver are set before any test runs, so that no test reaches the real user's documents or speakers. Both
// folders lie in the build tree of the running binary (test-home, test-output).
#include "TestEnv.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);

    const std::string tree = TestTreeDir();
    const std::string home = tree + "/test-home";
    mkdir(home.c_str(), 0755);
    setenv("HOME", home.c_str(), 1);
    setenv("XDG_CONFIG_HOME", (home + "/.config").c_str(), 1);
    unsetenv("XDG_DOCUMENTS_DIR");
    setenv("QUILLON_TEST_OUTPUT", (tree + "/test-output").c_str(), 0);
    setenv("QUILLON_SOURCE_DIR", QUILLON_SOURCE_DIR_PATH, 0);
    setenv("SDL_AUDIODRIVER", "dummy", 0);
    return RUN_ALL_TESTS();
}
