// The progress file: reading with its quirks, writing whole, marking one level in place, and the first run.
#include "TestEnv.h"
#include "progress.h"
#include "savefolder.h"
#include "userlevel.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <sys/stat.h>

namespace {

bool Exists(const std::string& path)
{
    struct stat info;
    return stat(path.c_str(), &info) == 0;
}

void SetFlags(s32 a, s32 b, s32 c, s32 d, s32 e, s32 f)
{
    s32 values[LEVEL_FLAG_NUM] = {a, b, c, d, e, f};
    std::memcpy(StatesLevelFlags(), values, sizeof(values));
}

std::string Flags()
{
    std::string text;
    for (int i = 0; i < LEVEL_FLAG_NUM; i++)
        text += std::to_string(StatesLevelFlags()[i]) + (i + 1 < LEVEL_FLAG_NUM ? "," : "");
    return text;
}

class ProgressFile : public ::testing::Test
{
protected:
    void SetUp() override
    {
        mHome = MakeTempDir("progress");
        ASSERT_FALSE(mHome.empty());
        PointHomeAt(mHome);
        mFolder = mHome + "/Documents/Varnholt/Mandrel";
        mFile = mFolder + "/States.txt";
        SetFlags(0, 0, 0, 0, 0, 0);
        gAttrBattery = 0;
        gAttrHealth = 0;
    }

    void WriteStates(const std::string& text)
    {
        ASSERT_EQ(system(("mkdir -p '" + mFolder + "'").c_str()), 0);
        WriteFileText(mFile, text);
    }

    std::string mHome, mFolder, mFile;
};

} // namespace

TEST_F(ProgressFile, AWellFormedFileFillsTheFlagsAndAttributesAndCountsTheOnes)
{
    WriteStates("110100\n2\n1");
    EXPECT_EQ(StatesRead(), 3);
    EXPECT_EQ(Flags(), "1,1,0,1,0,0");
    EXPECT_EQ(gAttrBattery, 2);
    EXPECT_EQ(gAttrHealth, 1);
}

TEST_F(ProgressFile, WritingGivesSixFlagsTheBatteryAndTheHealthOnThreeLinesWithNoFinalLineEnd)
{
    WriteStates("");
    SetFlags(1, 0, 1, 1, 0, 0);
    gAttrBattery = 3;
    gAttrHealth = 0;
    StatesWrite();
    EXPECT_EQ(ReadFileText(mFile), "101100\n3\n0");
}

TEST_F(ProgressFile, TheVeryFirstRunCreatesTheFoldersOnTheFirstReadAndTheFileOnTheSecond)
{
    SetFlags(0, 1, 0, 0, 0, 0);
    gAttrBattery = 1;
    EXPECT_EQ(StatesRead(), 0);
    EXPECT_TRUE(Exists(mFolder)) << "the first read's write makes both folders";
    EXPECT_FALSE(Exists(mFile)) << "and writes nothing";
    EXPECT_EQ(Flags(), "0,1,0,0,0,0") << "memory keeps what it held";
    EXPECT_EQ(gAttrBattery, 1);

    EXPECT_EQ(StatesRead(), 0);
    EXPECT_EQ(ReadFileText(mFile), "010000\n1\n0") << "the second read's write makes the file from memory";
}

TEST_F(ProgressFile, AtProgramStartTheFirstRunWritesANewFileOfZeros)
{
    StatesRead();
    StatesRead();
    EXPECT_EQ(ReadFileText(mFile), "000000\n0\n0");
    EXPECT_EQ(StatesRead(), 0);
}

TEST_F(ProgressFile, WithTheFoldersPresentTheFirstReadCreatesTheFile)
{
    ASSERT_EQ(system(("mkdir -p '" + mFolder + "'").c_str()), 0);
    EXPECT_EQ(StatesRead(), 0);
    EXPECT_EQ(ReadFileText(mFile), "000000\n0\n0");
}

TEST_F(ProgressFile, ADigitOtherThanZeroOrOneOnLineOneIsKeptThroughAWriteButEarnsNoPoint)
{
    WriteStates("120100\n0\n0");
    EXPECT_EQ(StatesRead(), 2);
    EXPECT_EQ(StatesLevelFlags()[1], 2);
    StatesWrite();
    EXPECT_EQ(ReadFileText(mFile), "120100\n0\n0");
}

TEST_F(ProgressFile, OnesBeyondTheSixthCountButOnlySixFlagsAreStoredAndWritten)
{
    WriteStates("00000011111\n1\n2");
    EXPECT_EQ(StatesRead(), 5);
    EXPECT_EQ(Flags(), "0,0,0,0,0,0");
    EXPECT_EQ(gAttrBattery, 1);
    EXPECT_EQ(gAttrHealth, 2);
    StatesWrite();
    EXPECT_EQ(ReadFileText(mFile), "000000\n1\n2");
}

TEST_F(ProgressFile, AVeryLongFirstLineIsReadWithoutWritingPastTheFlags)
{
    WriteStates(std::string(5000, '1') + "\n3\n3");
    gAttrBattery = 0;
    EXPECT_EQ(StatesRead(), 5000);
    EXPECT_EQ(Flags(), "1,1,1,1,1,1");
    EXPECT_EQ(gAttrBattery, 3);
    EXPECT_EQ(gAttrHealth, 3);
}

TEST_F(ProgressFile, AFileOfFewerThanSixDigitsLeavesTheMissingFlagsAsTheyWere)
{
    SetFlags(0, 0, 0, 1, 1, 1);
    WriteStates("10\n2\n2");
    EXPECT_EQ(StatesRead(), 1);
    EXPECT_EQ(Flags(), "1,0,0,1,1,1");
}

TEST_F(ProgressFile, AtProgramStartTheFlagsAFileLeavesOutAreZero)
{
    WriteStates("11\n0\n0");
    SetFlags(0, 0, 0, 0, 0, 0);
    EXPECT_EQ(StatesRead(), 2);
    EXPECT_EQ(Flags(), "1,1,0,0,0,0");
}

TEST_F(ProgressFile, AFirstLineWithoutALineEndStoresMinus49BehindItsLastFlagAndEnds)
{
    gAttrBattery = 2;
    gAttrHealth = 2;
    WriteStates("110");
    EXPECT_EQ(StatesRead(), 2);
    EXPECT_EQ(Flags(), "1,1,0,-49,0,0") << "the end of the file reads as -1";
    EXPECT_EQ(gAttrBattery, 2);
    EXPECT_EQ(gAttrHealth, 2);
}

TEST_F(ProgressFile, AFileEndingRightAfterTheFirstLineEndSetsTheBatteryToMinus49)
{
    gAttrHealth = 3;
    WriteStates("000000\n");
    EXPECT_EQ(StatesRead(), 0);
    EXPECT_EQ(gAttrBattery, -49);
    EXPECT_EQ(gAttrHealth, 3);
}

TEST_F(ProgressFile, AFileEndingStraightAfterLineTwoSetsTheHealthToMinus49)
{
    WriteStates("000000\n2");
    StatesRead();
    EXPECT_EQ(gAttrBattery, 2);
    EXPECT_EQ(gAttrHealth, -49);
    WriteStates("000000\n2\n");
    gAttrHealth = 0;
    StatesRead();
    EXPECT_EQ(gAttrHealth, -49);
}

TEST_F(ProgressFile, AnEmptyFileStoresMinus49InTheFirstFlag)
{
    WriteStates("");
    EXPECT_EQ(StatesRead(), 0);
    EXPECT_EQ(Flags(), "-49,0,0,0,0,0");
}

TEST_F(ProgressFile, AnEmptyLineTwoStoresALineFeedInTheBatteryAndTheNextCharacterInTheHealth)
{
    WriteStates("000000\n\n3");
    StatesRead();
    EXPECT_EQ(gAttrBattery, -38);
    EXPECT_EQ(gAttrHealth, 3);
}

TEST_F(ProgressFile, ExtraEmptyLinesBetweenLinesTwoAndThreeAreSkipped)
{
    WriteStates("000000\n1\n\n\n\n2");
    StatesRead();
    EXPECT_EQ(gAttrBattery, 1);
    EXPECT_EQ(gAttrHealth, 2);
}

TEST_F(ProgressFile, AnythingBehindTheHealthCharacterIsNotRead)
{
    WriteStates("000000\n1\n2\n9\n9");
    StatesRead();
    EXPECT_EQ(gAttrBattery, 1);
    EXPECT_EQ(gAttrHealth, 2);
}

TEST_F(ProgressFile, MinusOneIsWrittenAsASlashAndReadsBackAsMinusOne)
{
    WriteStates("");
    gAttrBattery = -1;
    gAttrHealth = 2;
    StatesWrite();
    EXPECT_EQ(ReadFileText(mFile), "000000\n/\n2");
    gAttrBattery = 0;
    StatesRead();
    EXPECT_EQ(gAttrBattery, -1);
}

TEST_F(ProgressFile, ValuesAreWrittenAsCharactersWithNoRangeCheck)
{
    WriteStates("");
    SetFlags(9, 0, 0, 0, 0, 0);
    gAttrBattery = 10;
    gAttrHealth = -10;
    StatesWrite();
    EXPECT_EQ(ReadFileText(mFile), "900000\n:\n&");
}

TEST_F(ProgressFile, ACrLfFileReadsLikeAnLfFile)
{
    WriteStates("011000\r\n3\r\n\r\n1");
    EXPECT_EQ(StatesRead(), 2);
    EXPECT_EQ(Flags(), "0,1,1,0,0,0");
    EXPECT_EQ(gAttrBattery, 3);
    EXPECT_EQ(gAttrHealth, 1);
}

TEST_F(ProgressFile, AMissingFileLeavesMemoryAsItWasAndEarnsNothing)
{
    ASSERT_EQ(system(("mkdir -p '" + mFolder + "'").c_str()), 0);
    SetFlags(1, 1, 1, 1, 1, 0);
    gAttrBattery = 2;
    EXPECT_EQ(StatesRead(), 0);
    EXPECT_EQ(Flags(), "1,1,1,1,1,0");
    EXPECT_EQ(gAttrBattery, 2);
}

TEST_F(ProgressFile, MarkingALevelSetsItsFlagInTheFileAndKeepsLinesTwoAndThree)
{
    WriteStates("100000\n2\n1");
    gAttrBattery = 0;
    gAttrHealth = 3;
    StatesMarkLevel(4);
    EXPECT_EQ(ReadFileText(mFile), "100010\n2\n1") << "memory's attributes don't reach the file";
    EXPECT_EQ(gAttrBattery, 0);
    EXPECT_EQ(gAttrHealth, 3);
}

TEST_F(ProgressFile, FinishingLevelThreeAndLevelFourYieldsOnePointBetweenThem)
{
    WriteStates("000000\n0\n0");
    StatesMarkLevel(3); // Level_3
    StatesMarkLevel(3); // Level_4 marks the same flag
    EXPECT_EQ(ReadFileText(mFile), "000100\n0\n0");
    EXPECT_EQ(StatesRead(), 1);
}

TEST_F(ProgressFile, MarkingAFinishedLevelAgainChangesNothing)
{
    WriteStates("110000\n1\n1");
    StatesMarkLevel(1);
    EXPECT_EQ(ReadFileText(mFile), "110000\n1\n1");
}

TEST_F(ProgressFile, MarkingWithTheFileGoneLosesTheMarkAndCreatesNothing)
{
    StatesMarkLevel(2);
    EXPECT_FALSE(Exists(mFile));
    EXPECT_FALSE(Exists(mHome + "/Documents/Varnholt"));
}

TEST_F(ProgressFile, MarkingALongerFileReadsItWholeAndWritesOnlyTheSixFlags)
{
    std::string tail = "\n" + std::string(4000, '7') + "\n5";
    WriteStates("000000" + tail);
    StatesMarkLevel(0);
    EXPECT_EQ(ReadFileText(mFile), "100000" + tail);
}

TEST_F(ProgressFile, MarkingACrLfFileKeepsItsLineEnds)
{
    WriteStates("000000\r\n1\r\n2");
    StatesMarkLevel(2);
    EXPECT_EQ(ReadFileText(mFile), "001000\r\n1\r\n2");
}

TEST_F(ProgressFile, TheUserLevelExistsWhenItsFileOpensInTheSaveFolder)
{
    std::strcpy(gUserLevelName, "crypt 7");
    EXPECT_FALSE(UserLevelExists());
    WriteStates("");
    WriteFileText(mFolder + "/crypt 7.txt", "8\n0\n0\n");
    EXPECT_TRUE(UserLevelExists());
    gUserLevelName[0] = 0;
    EXPECT_FALSE(UserLevelExists()) << "an empty name looks for \".txt\"";
    WriteFileText(mFolder + "/.txt", "");
    EXPECT_TRUE(UserLevelExists());
}

TEST_F(ProgressFile, AFolderNamedLikeTheUserLevelIsNoUserLevel)
{
    std::strcpy(gUserLevelName, "crypt");
    ASSERT_EQ(system(("mkdir -p '" + mFolder + "/crypt.txt'").c_str()), 0);
    EXPECT_FALSE(UserLevelExists());
}
