// TestMain.cpp -- the entry of every test binary: a private home folder, the test output folder and SDL's silent
// audio driver are set before any test runs, so that no test reaches the real user's documents or speakers.
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/stat.h>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);

    mkdir(QUILLON_TEST_HOME_DIR, 0755);
    setenv("HOME", QUILLON_TEST_HOME_DIR, 1);
    setenv("XDG_CONFIG_HOME", QUILLON_TEST_HOME_DIR "/.config", 1);
    unsetenv("XDG_DOCUMENTS_DIR");
    setenv("QUILLON_TEST_OUTPUT", QUILLON_TEST_OUTPUT_DIR, 0);
    setenv("QUILLON_SOURCE_DIR", QUILLON_SOURCE_DIR_PATH, 0);
    setenv("SDL_AUDIODRIVER", "dummy", 0);
    return RUN_ALL_TESTS();
}
