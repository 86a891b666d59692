// replay_main.cpp -- quillon-replay: the real game, loop and OpenGL window, driven by a script instead of a
// player, printing probe lines and saving shots at the steps the script asks for.
//
//   quillon-replay --script FILE [--state GS_NAME] [--assets DIR] [--documents DIR] [--user-level NAME]
//                  [--attributes B,H] [--draw all|shots]
//
// --draw shots draws only the frames the script saves as shots: the others run through the whole loop and OpenGL
// but shade nothing (see KRScriptDrawNoStep), for runs that want the probes quickly.
//
// Ends at the script's close or when the game reaches GS_QUIT, with status 0. A script or an option it cannot
// read ends it at once with status 2 and a message on standard error.
#include "replayframe.h"
#include "replayprobe.h"
#include "toolpath.h"
#include "replayscript.h"

#include "KRPlatform.h"
#include "KRPlatformScripted.h"
#include "gameloop.h"
#include "gamestatemgr.h"
#include "progress.h"
#include "savefolder.h"
#include "userlevel.h"

#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

const int kStatusBadInput = 2;

struct ReplayOptions
{
    int32_t state = GS_SPLASH;
    std::string script;
    std::string assets = "assets/";
    std::string documents;
    std::string userLevel;
    bool hasUserLevel = false;
    bool hasAttributes = false;
    int battery = 0;
    int health = 0;
    bool drawOnlyShots = false;
};

const char* const kUsage =
    "usage: quillon-replay --script FILE [--state GS_NAME] [--assets DIR] [--documents DIR]\n"
    "                      [--user-level NAME] [--attributes B,H] [--draw all|shots]\n";

ReplayScript sScript;
std::string sShotFailures;
std::vector<ReplayProbe> sTaken; // probes of the frame under way, printed when it is over

int Fail(const std::string& message)
{
    std::fprintf(stderr, "quillon-replay: %s\n", message.c_str());
    return kStatusBadInput;
}

bool ValidUserLevelName(const std::string& name)
{
    if (name.empty() || name.size() > (size_t)USER_LEVEL_NAME_MAX)
        return false;
    for (char c : name)
        if (!std::isalnum((unsigned char)c) && c != '_' && c != ' ')
            return false;
    return true;
}

bool ReadAttributes(const std::string& text, int* pBattery, int* pHealth)
{
    std::istringstream in(text);
    char comma = 0;
    std::string rest;
    return (in >> *pBattery >> comma >> *pHealth) && comma == ',' && !(in >> rest);
}

// Returns 0 when the options were read, else the status to end with (a message has been printed).
int ReadOptions(int argc, char** argv, ReplayOptions* pOptions)
{
    for (int i = 1; i < argc; ++i)
    {
        std::string option = argv[i];
        if (option == "--help" || option == "-h")
        {
            std::fputs(kUsage, stdout);
            std::exit(0);
        }
        if (option != "--state" && option != "--script" && option != "--assets" && option != "--documents" &&
            option != "--user-level" && option != "--attributes" && option != "--draw")
            return Fail("unknown option " + option + "\n" + kUsage);
        if (i + 1 >= argc || argv[i + 1][0] == 0)
            return Fail(option + " needs a value\n" + kUsage);
        std::string value = argv[++i];

        if (option == "--state")
        {
            pOptions->state = ReplayStateFromName(value.c_str());
            if (pOptions->state < 0)
                return Fail("no game state is named " + value + " (GS_EDITOR, GS_LEVEL_0 to GS_LEVEL_5, "
                            "GS_LEVEL_USER, GS_MENU, GS_LS, GS_SPLASH, GS_CREDITS)");
        }
        else if (option == "--script")
            pOptions->script = value;
        else if (option == "--assets")
            pOptions->assets = value;
        else if (option == "--documents")
            pOptions->documents = value;
        else if (option == "--draw")
        {
            if (value != "all" && value != "shots")
                return Fail("--draw wants all or shots, not " + value);
            pOptions->drawOnlyShots = value == "shots";
        }
        else if (option == "--user-level")
        {
            if (!ValidUserLevelName(value))
                return Fail("the user level name " + value + " is not 1 to " + std::to_string(USER_LEVEL_NAME_MAX) +
                            " letters, digits, '_' or blanks");
            pOptions->userLevel = value;
            pOptions->hasUserLevel = true;
        }
        else if (!ReadAttributes(value, &pOptions->battery, &pOptions->health))
            return Fail("--attributes wants two whole numbers B,H, not " + value);
        else
            pOptions->hasAttributes = true;
    }
    if (pOptions->script.empty())
        return Fail(std::string("--script FILE is required\n") + kUsage);
    return 0;
}

// The scripted back-end calls this at each present, before the buffers swap, with the step of the frame: the
// frame has been updated and drawn and the state is still the one that drew it.
void OnPresent(int step)
{
    for (int probeStep : sScript.probes)
        if (probeStep == step)
            sTaken.push_back(ReplayProbeTake(step));
    for (const ReplayShot& shot : sScript.shots)
        if (shot.step == step)
        {
            int width = 0, height = 0;
            gKRPlatform->GetClientSize(&width, &height);
            if (!ReplaySaveFramePng(shot.path, width, height))
                sShotFailures += "quillon-replay: could not write the shot of step " + std::to_string(step) +
                                 " to " + shot.path + "\n";
        }
}

// After the frame: gGameStateNext is what the frame finally asked for, the window's close included, whether or not
// the visit has been closed since.
void PrintTakenProbes()
{
    for (const ReplayProbe& probe : sTaken)
        std::printf("%s\n", ReplayProbeLine(probe, gGameStateNext).c_str());
    std::fflush(stdout);
    sTaken.clear();
}

// Steps the script asked about that the run never reached.
void ReportUnreached(int lastStep)
{
    for (int step : sScript.probes)
        if (step > lastStep)
            std::fprintf(stderr, "quillon-replay: probe %d not reached: the run ended after step %d\n", step,
                         lastStep);
    for (const ReplayShot& shot : sScript.shots)
        if (shot.step > lastStep)
            std::fprintf(stderr, "quillon-replay: shot %d not reached: the run ended after step %d\n", shot.step,
                         lastStep);
}

} // namespace

int main(int argc, char** argv)
{
    ReplayOptions options;
    int status = ReadOptions(argc, argv, &options);
    if (status != 0)
        return status;

    std::ifstream file(options.script, std::ios::binary);
    if (!file)
        return Fail("cannot read the script " + options.script + ": " + std::strerror(errno));
    std::ostringstream text;
    text << file.rdbuf();

    KRPlatformUse(&gKRPlatformScripted);
    std::string error;
    if (!ReplayScriptRead(text.str(), &sScript, &error))
        return Fail("cannot read the script " + options.script + ": " + error);
    if (options.drawOnlyShots)
    {
        KRScriptDrawNoStep();
        for (const ReplayShot& shot : sScript.shots)
            KRScriptDrawStep(shot.step);
    }
    // Shots and the documents folder are named from where the tool was started, not from the assets folder.
    for (ReplayShot& shot : sScript.shots)
        shot.path = ToolAbsolutePath(shot.path);
    if (!options.documents.empty())
        setenv("XDG_DOCUMENTS_DIR", ToolAbsolutePath(options.documents).c_str(), 1);

    if (chdir(options.assets.c_str()) != 0)
        return Fail("cannot enter the assets folder " + options.assets + ": " + std::strerror(errno));
    if (options.hasUserLevel)
        std::snprintf(gUserLevelName, sizeof(gUserLevelName), "%s", options.userLevel.c_str());
    if (options.hasAttributes)
    {
        gAttrBattery = options.battery;
        gAttrHealth = options.health;
    }
    std::fprintf(stderr, "quillon-replay: starting at %s; save folder %s; user level \"%s\"; attributes %d,%d\n",
                 ReplayStateName(options.state), SaveFolderPath("").c_str(), gUserLevelName, (int)gAttrBattery,
                 (int)gAttrHealth);
    if (!sScript.hasClose)
        std::fprintf(stderr, "quillon-replay: the script has no close: the run lasts until the game quits\n");

    KRScriptSetPresentHook(OnPresent);
    GameStartUp(options.state);
    while (GameLoopStep())
        PrintTakenProbes();
    PrintTakenProbes();

    // The step count has gone one past the last frame's step at its closing pump.
    ReportUnreached(KRScriptGetStep() - 1);
    std::fputs(sShotFailures.c_str(), stderr);
    return sShotFailures.empty() ? 0 : 1;
}
