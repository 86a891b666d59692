// replayscript.h -- a replay script: the scripted back-end's commands plus the two that ask for evidence.
//
// Owns:    the probe and shot requests of one script.
// Feeds:   the scripted back-end (every other line goes to KRScriptParse) and the replay tool's present hook.
//
//   probe <step>              one line on standard output at the end of that step's frame
//   shot <step> <file.png>    the frame presented at that step, as a PNG
#pragma once

#include <string>
#include <vector>

struct ReplayShot
{
    int step;
    std::string path;
};

struct ReplayScript
{
    std::vector<int> probes;       // steps, in the order the script gives them
    std::vector<ReplayShot> shots; // in the order the script gives them
    bool hasClose;                 // the script ends the run itself with close
};

// Resets the scripted back-end, then reads the script: probe and shot lines into *pScript, every other line into
// the back-end. Lines keep their numbers, so the back-end's complaints name the right line. Returns false with a
// message in *pError ("line 3: ...") for a line neither understands.
bool ReplayScriptRead(const std::string& text, ReplayScript* pScript, std::string* pError);
