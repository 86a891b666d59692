// The game's pictures, as listed in assets/MANIFEST.tsv: each one exists, loads through the engine's own texture
// loader without an OpenGL error, and has an alpha channel where the game draws it blended.
#include "DrawKit.h"
#include "KRGraphics.h"

#include <GL/glew.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <stb_image.h>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace {

struct ManifestRow
{
    std::string name;
    std::string kind;    // image or sound
    std::string blended; // yes or no
    std::string drawn;
    std::string what;
};

std::vector<ManifestRow> ReadManifest()
{
    std::vector<ManifestRow> rows;
    std::ifstream in("MANIFEST.tsv"); // tests run in assets/
    std::string line;
    while (std::getline(in, line))
    {
        if (line.empty() || line[0] == '#')
            continue;
        std::istringstream fields(line);
        ManifestRow row;
        std::getline(fields, row.name, '\t');
        std::getline(fields, row.kind, '\t');
        std::getline(fields, row.blended, '\t');
        std::getline(fields, row.drawn, '\t');
        std::getline(fields, row.what, '\t');
        rows.push_back(row);
    }
    return rows;
}

std::vector<ManifestRow> Rows(const char* kind)
{
    std::vector<ManifestRow> rows;
    for (const ManifestRow& row : ReadManifest())
        if (row.kind == kind)
            rows.push_back(row);
    return rows;
}

} // namespace

TEST(AssetFiles, ManifestListsEveryPictureAndSound)
{
    EXPECT_GE(Rows("image").size(), 91u);
    EXPECT_EQ(Rows("sound").size(), 9u);
    for (const ManifestRow& row : ReadManifest())
        EXPECT_TRUE(row.kind == "image" || row.kind == "sound") << row.name << " has kind " << row.kind;
}

TEST(AssetFiles, EveryListedFileExists)
{
    for (const ManifestRow& row : ReadManifest())
    {
        struct stat info;
        EXPECT_EQ(stat(row.name.c_str(), &info), 0) << row.name << " is missing";
    }
}

TEST(AssetFiles, EveryPictureLoadsThroughTheEnginesLoader)
{
    StartGraphicsWindowed();
    while (glGetError() != GL_NO_ERROR)
    {
    }
    for (const ManifestRow& row : Rows("image"))
    {
        KRGfxTexture* texture = KRGfxTextureLoad(row.name.c_str());
        ASSERT_NE(texture, nullptr) << row.name;
        EXPECT_EQ(glGetError(), (GLenum)GL_NO_ERROR) << row.name << " did not decode";
        glBindTexture(GL_TEXTURE_2D, *texture->glId);
        GLint width = 0, height = 0;
        glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_WIDTH, &width);
        glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_HEIGHT, &height);
        glBindTexture(GL_TEXTURE_2D, 0);
        EXPECT_GT(width, 0) << row.name;
        EXPECT_GT(height, 0) << row.name;
        KRGfxTextureUnload(texture);
    }
}

TEST(AssetFiles, PicturesDrawnBlendedHaveAnAlphaChannel)
{
    for (const ManifestRow& row : Rows("image"))
    {
        if (row.blended != "yes")
            continue;
        int width = 0, height = 0, channels = 0;
        ASSERT_EQ(stbi_info(row.name.c_str(), &width, &height, &channels), 1) << row.name;
        EXPECT_EQ(channels, 4) << row.name << " is drawn blended but has no alpha channel";
    }
}

TEST(AssetFiles, FontSheetDividesIntoTwentySixByThreeCells)
{
    int width = 0, height = 0, channels = 0;
    ASSERT_EQ(stbi_info("lucida_console_f_tex.png", &width, &height, &channels), 1);
    EXPECT_EQ(width % 26, 0) << width;
    EXPECT_EQ(height % 3, 0) << height;
}

TEST(AssetFiles, BothSpellingsOfTheCursorPictureExist)
{
    struct stat info;
    EXPECT_EQ(stat("CURSORTEX.png", &info), 0);
    EXPECT_EQ(stat("cursorTEX.png", &info), 0);
}

TEST(AssetFiles, AssetsStayUnderFortyMegabytes)
{
    long long total = 0;
    for (const ManifestRow& row : ReadManifest())
    {
        struct stat info;
        if (stat(row.name.c_str(), &info) == 0)
            total += info.st_size;
    }
    EXPECT_LT(total, 40ll * 1024 * 1024);
}
