// Every picture and sound the game's code names by file is in assets/MANIFEST.tsv, so nothing the game reads can
// be missing: the code of every state, as it lands, is read for quoted file names.
#include "Pattern.h"

#include <cstdlib>
#include <dirent.h>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <string>

namespace {

std::set<std::string> ManifestNames()
{
    std::set<std::string> names;
    std::ifstream in("MANIFEST.tsv"); // tests run in assets/
    std::string line;
    while (std::getline(in, line))
        names.insert(line.substr(0, line.find('\t')));
    return names;
}

// Quoted names ending in .png, .ogg or .wav in every source file of the game, in src/ and its folders.
void CollectNames(const std::string& dir, std::set<std::string>* pNames)
{
    DIR* folder = opendir(dir.c_str());
    if (!folder)
        return;
    while (dirent* entry = readdir(folder))
    {
        std::string file = entry->d_name;
        if (file == "." || file == "..")
            continue;
        if (entry->d_type == DT_DIR)
        {
            CollectNames(dir + "/" + file, pNames);
            continue;
        }
        if (file.size() < 3 || (file.substr(file.size() - 4) != ".cpp" && file.substr(file.size() - 2) != ".h"))
            continue;
        std::ifstream in(dir + "/" + file);
        std::stringstream text;
        text << in.rdbuf();
        std::string source = text.str();
        for (const std::string& name : FirstGroups(source, "\"([^\"\\\\]+\\.(png|ogg|wav))\"", true))
            pNames->insert(name);
    }
    closedir(folder);
}

std::set<std::string> NamesInGameSources()
{
    std::set<std::string> names;
    const char* root = std::getenv("QUILLON_SOURCE_DIR");
    CollectNames(std::string(root ? root : "..") + "/src", &names);
    return names;
}

} // namespace

TEST(AssetReferences, EveryFileTheGameNamesIsInTheManifest)
{
    std::set<std::string> listed = ManifestNames();
    std::set<std::string> named = NamesInGameSources();
    ASSERT_FALSE(named.empty()) << "the game's sources name no pictures or sounds: wrong folder?";
    for (const std::string& name : named)
        EXPECT_TRUE(listed.count(name)) << "\"" << name << "\" is read by the game but not in the manifest";
}
