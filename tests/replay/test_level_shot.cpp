// quillon-levelshot through its command line: a level file drawn whole, at the preview's size, is a real picture of
// the level (not blank, not only the backdrop), and states that are not levels are refused.
#include "TestEnv.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <set>
#include <stb_image.h>
#include <string>
#include <sys/wait.h>

namespace {

std::string ShotSourceDir()
{
    const char* dir = std::getenv("QUILLON_SOURCE_DIR");
    return dir ? dir : ".";
}

int RunLevelShot(const std::string& args, const std::string& errPath)
{
    std::string command = "cd '" + ShotSourceDir() + "' && '" + LevelShotBinary() + "' " + args +
                          " </dev/null >/dev/null 2>'" + errPath + "'";
    int raw = std::system(command.c_str());
    return WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
}

} // namespace

TEST(LevelShot, DrawsTheFirstLevelWholeAtThePreviewSizeWithItsPlatformsAndBackdrop)
{
    std::string dir = MakeTempDir("levelshot");
    std::string out = TestOutputDir() + "/levelshot-level1.png";
    std::remove(out.c_str());
    ASSERT_EQ(RunLevelShot("--state GS_LEVEL_0 --out '" + out + "' --width 308 --height 225", dir + "/err.txt"), 0)
        << ReadFileText(dir + "/err.txt");

    int width = 0, height = 0, channels = 0;
    unsigned char* pixels = stbi_load(out.c_str(), &width, &height, &channels, 4);
    ASSERT_NE(pixels, nullptr) << "no picture at " << out;
    EXPECT_EQ(width, 308);
    EXPECT_EQ(height, 225);
    int lit = 0;
    std::set<unsigned int> colours;
    for (int i = 0; i < width * height; ++i)
    {
        const unsigned char* p = pixels + i * 4;
        if (p[0] + p[1] + p[2] > 30)
            ++lit;
        colours.insert((unsigned)p[0] << 16 | (unsigned)p[1] << 8 | p[2]);
    }
    // The backdrop fills the middle band; the level's platforms, walls and pickups add their own colours.
    EXPECT_GT(lit, width * height / 4) << "the picture is mostly black";
    EXPECT_GT(colours.size(), 200u) << "the picture has too few colours to be a drawn level";
    // The whole camera range is fitted, so the corners lie beyond the level and stay black.
    const unsigned char* corner = pixels;
    EXPECT_LT(corner[0] + corner[1] + corner[2], 30);
    stbi_image_free(pixels);
}

TEST(LevelShot, RefusesAStateThatIsNotALevel)
{
    std::string dir = MakeTempDir("levelshot");
    EXPECT_EQ(RunLevelShot("--state GS_MENU --out '" + dir + "/menu.png'", dir + "/err.txt"), 2);
    EXPECT_NE(ReadFileText(dir + "/err.txt").find("GS_LEVEL_0 to GS_LEVEL_5"), std::string::npos);
}
