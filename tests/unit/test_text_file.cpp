// Text files read alike with LF and CR LF line ends, with the end-of-file flag of a plain character read.
#include "TestEnv.h"
#include "textfile.h"

#include <gtest/gtest.h>

#include <string>

namespace {

FILE* OpenWith(const std::string& text)
{
    std::string path = MakeTempDir("textfile") + "/file.txt";
    WriteFileText(path, text);
    return TextFileOpen(path.c_str(), "r");
}

std::string ReadAll(FILE* pFile)
{
    std::string text;
    for (int c = TextFileGetc(pFile); c != EOF; c = TextFileGetc(pFile))
        text += (char)c;
    return text;
}

} // namespace

TEST(TextFile, ACrBeforeAnLfIsDroppedAndALoneCrIsKept)
{
    FILE* pFile = OpenWith("a\r\nb\rc\r\r\n");
    ASSERT_NE(pFile, nullptr);
    EXPECT_EQ(ReadAll(pFile), "a\nb\rc\r\n");
    std::fclose(pFile);
}

TEST(TextFile, ACrAtTheVeryEndIsReadWithoutSettingTheEndFlagEarly)
{
    FILE* pFile = OpenWith("a\r");
    ASSERT_NE(pFile, nullptr);
    EXPECT_EQ(TextFileGetc(pFile), 'a');
    EXPECT_EQ(TextFileGetc(pFile), '\r');
    EXPECT_FALSE(std::feof(pFile)) << "only the read that runs into the end sets the flag";
    EXPECT_EQ(TextFileGetc(pFile), EOF);
    EXPECT_TRUE(std::feof(pFile));
    std::fclose(pFile);
}

TEST(TextFile, ALastLineEndDoesNotSetTheEndFlag)
{
    FILE* pFile = OpenWith("7\r\n");
    char line[16] = "unchanged";
    ASSERT_NE(TextFileGets(line, sizeof(line), pFile), nullptr);
    EXPECT_STREQ(line, "7\n");
    EXPECT_FALSE(std::feof(pFile));
    EXPECT_EQ(TextFileGets(line, sizeof(line), pFile), nullptr);
    EXPECT_STREQ(line, "7\n") << "a read that finds nothing leaves the buffer as it was";
    EXPECT_TRUE(std::feof(pFile));
    std::fclose(pFile);
}

TEST(TextFile, ALineIsCutAtTheBufferSizeWithCrLfCountedAsOneCharacter)
{
    FILE* pFile = OpenWith("abc\r\nd");
    char line[5];
    ASSERT_NE(TextFileGets(line, sizeof(line), pFile), nullptr);
    EXPECT_STREQ(line, "abc\n");
    ASSERT_NE(TextFileGets(line, sizeof(line), pFile), nullptr);
    EXPECT_STREQ(line, "d");
    EXPECT_TRUE(std::feof(pFile));
    std::fclose(pFile);
}

TEST(TextFile, AFolderCantBeOpenedAsAFile)
{
    std::string folder = MakeTempDir("textfile");
    EXPECT_EQ(TextFileOpen(folder.c_str(), "r"), nullptr);
    EXPECT_EQ(TextFileOpen((folder + "/missing").c_str(), "r"), nullptr);
}
