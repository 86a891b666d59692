// The tests' own surroundings: a private home folder and output folder, never the real user's.
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

TEST(TestEnvironment, HomeIsAPrivateFolderInTheBuildTree)
{
    const char* home = std::getenv("HOME");
    ASSERT_NE(home, nullptr);
    EXPECT_NE(std::string(home).find("/test-home"), std::string::npos) << home;
    EXPECT_EQ(std::getenv("XDG_DOCUMENTS_DIR"), nullptr);
}

TEST(TestEnvironment, OutputFolderAndAudioDriverAreSet)
{
    ASSERT_NE(std::getenv("QUILLON_TEST_OUTPUT"), nullptr);
    ASSERT_NE(std::getenv("SDL_AUDIODRIVER"), nullptr);
}
