// The save folder: which documents folder is used, the error without a home folder, and making the folders.
#include "ChildProcess.h"
#include "TestEnv.h"
#include "savefolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <sys/stat.h>

namespace {

bool IsFolder(const std::string& path)
{
    struct stat info;
    return stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

class SaveFolder : public ::testing::Test
{
protected:
    void SetUp() override
    {
        mHome = MakeTempDir("savefolder");
        ASSERT_FALSE(mHome.empty());
        PointHomeAt(mHome);
    }

    void WriteUserDirs(const std::string& configFolder, const std::string& text)
    {
        ASSERT_EQ(system(("mkdir -p '" + configFolder + "'").c_str()), 0);
        WriteFileText(configFolder + "/user-dirs.dirs", text);
    }

    std::string mHome;
};

} // namespace

TEST_F(SaveFolder, WithoutAnyConfigurationTheDocumentsFolderIsDocumentsInTheHomeFolder)
{
    EXPECT_EQ(SaveFolderPath("States.txt"), mHome + "/Documents/Varnholt/Mandrel/States.txt");
}

TEST_F(SaveFolder, TheUserDirsConfigurationNamesTheDocumentsFolderRelativeToHome)
{
    WriteUserDirs(mHome + "/.config", "# written by xdg-user-dirs-update\n"
                                      "XDG_DESKTOP_DIR=\"$HOME/Desktop\"\n"
                                      "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n"
                                      "XDG_MUSIC_DIR=\"$HOME/Musik\"\n");
    EXPECT_EQ(SaveFolderPath("Tomb.txt"), mHome + "/Dokumente/Varnholt/Mandrel/Tomb.txt");
}

TEST_F(SaveFolder, TheUserDirsConfigurationMayNameAnAbsoluteFolder)
{
    std::string elsewhere = mHome + "/elsewhere/papers";
    WriteUserDirs(mHome + "/.config", "XDG_DOCUMENTS_DIR=\"" + elsewhere + "/\"\n");
    EXPECT_EQ(SaveFolderPath("States.txt"), elsewhere + "/Varnholt/Mandrel/States.txt");
}

TEST_F(SaveFolder, TheUserDirsConfigurationIsReadFromTheXdgConfigHome)
{
    std::string config = mHome + "/cfg";
    setenv("XDG_CONFIG_HOME", config.c_str(), 1);
    WriteUserDirs(config, "XDG_DOCUMENTS_DIR=\"$HOME/Papiers\"\n");
    WriteUserDirs(mHome + "/.config", "XDG_DOCUMENTS_DIR=\"$HOME/Wrong\"\n");
    EXPECT_EQ(SaveFolderPath("a.txt"), mHome + "/Papiers/Varnholt/Mandrel/a.txt");
}

TEST_F(SaveFolder, AnEmptyXdgConfigHomeMeansTheConfigFolderInTheHome)
{
    setenv("XDG_CONFIG_HOME", "", 1);
    WriteUserDirs(mHome + "/.config", "XDG_DOCUMENTS_DIR=\"$HOME/Docs\"\n");
    EXPECT_EQ(SaveFolderPath("a.txt"), mHome + "/Docs/Varnholt/Mandrel/a.txt");
}

TEST_F(SaveFolder, AnUnusableUserDirsLineFallsBackToDocumentsInTheHome)
{
    WriteUserDirs(mHome + "/.config", "XDG_DOCUMENTS_DIR=\"relative/path\"\nXDG_DOCUMENTS_DIRX=\"/x\"\n");
    EXPECT_EQ(SaveFolderPath("a.txt"), mHome + "/Documents/Varnholt/Mandrel/a.txt");
}

TEST_F(SaveFolder, AnXdgDocumentsDirVariableWinsOverTheConfiguration)
{
    WriteUserDirs(mHome + "/.config", "XDG_DOCUMENTS_DIR=\"$HOME/Docs\"\n");
    std::string chosen = mHome + "/chosen";
    setenv("XDG_DOCUMENTS_DIR", chosen.c_str(), 1);
    EXPECT_EQ(SaveFolderPath("a.txt"), chosen + "/Varnholt/Mandrel/a.txt");
}

TEST_F(SaveFolder, AnEmptyXdgDocumentsDirVariableIsIgnored)
{
    setenv("XDG_DOCUMENTS_DIR", "", 1);
    EXPECT_EQ(SaveFolderPath("a.txt"), mHome + "/Documents/Varnholt/Mandrel/a.txt");
}

TEST_F(SaveFolder, WithoutAHomeFolderTheErrorIsPrintedAndThePathIsBuiltOnAnEmptyFolder)
{
    ChildResult result = RunInChild([] {
        unsetenv("HOME");
        unsetenv("XDG_CONFIG_HOME");
        unsetenv("XDG_DOCUMENTS_DIR");
        std::string path = SaveFolderPath("States.txt");
        std::printf("%s\n", path.c_str());
    });
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "Error: 2\n/Varnholt/Mandrel/States.txt\n");
}

TEST_F(SaveFolder, WithAHomeFolderNothingIsPrinted)
{
    ChildResult result = RunInChild([] { SaveFolderPath("States.txt"); });
    EXPECT_EQ(result.out, "");
}

TEST_F(SaveFolder, CreatingMakesVarnholtAndMandrelAndAMissingDocumentsFolder)
{
    ASSERT_FALSE(IsFolder(mHome + "/Documents"));
    SaveFolderCreate();
    EXPECT_TRUE(IsFolder(mHome + "/Documents/Varnholt/Mandrel"));
}

TEST_F(SaveFolder, CreatingAgainChangesNothingAndLeavesFilesAlone)
{
    SaveFolderCreate();
    WriteFileText(mHome + "/Documents/Varnholt/Mandrel/States.txt", "000000\n0\n0");
    SaveFolderCreate();
    EXPECT_EQ(ReadFileText(mHome + "/Documents/Varnholt/Mandrel/States.txt"), "000000\n0\n0");
}

TEST_F(SaveFolder, CreatingFollowsTheConfiguredDocumentsFolder)
{
    WriteUserDirs(mHome + "/.config", "XDG_DOCUMENTS_DIR=\"$HOME/deep/Docs\"\n");
    SaveFolderCreate();
    EXPECT_TRUE(IsFolder(mHome + "/deep/Docs/Varnholt/Mandrel"));
}
