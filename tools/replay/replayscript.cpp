// replayscript.cpp -- splits a replay script between the scripted back-end and the replay tool's own requests.
#include "replayscript.h"

#include "KRPlatformScripted.h"

#include <sstream>

// Reads a probe or shot line. Returns false when the line is one of them but malformed.
static bool ReadOwnLine(const std::string& command, std::istringstream& in, ReplayScript* pScript)
{
    int step = -1;
    if (!(in >> step) || step < 0)
        return false;
    if (command == "probe")
    {
        std::string rest;
        if (in >> rest)
            return false;
        pScript->probes.push_back(step);
        return true;
    }
    std::string path, rest;
    if (!(in >> path) || (in >> rest))
        return false;
    pScript->shots.push_back({step, path});
    return true;
}

bool ReplayScriptRead(const std::string& text, ReplayScript* pScript, std::string* pError)
{
    *pScript = ReplayScript();
    pScript->hasClose = false;
    KRScriptReset();

    std::istringstream in(text);
    std::string line, engineText;
    int lineNumber = 0;
    while (std::getline(in, line))
    {
        ++lineNumber;
        std::istringstream words(line);
        std::string command;
        words >> command;
        if (command == "probe" || command == "shot")
        {
            if (!ReadOwnLine(command, words, pScript))
            {
                *pError = "line " + std::to_string(lineNumber) + " not understood: " + line +
                          (command == "probe" ? " (expected: probe <step>)" : " (expected: shot <step> <file.png>)");
                return false;
            }
            // An empty line in its place keeps the back-end's line numbers those of the file.
            engineText += "\n";
            continue;
        }
        if (command == "close")
            pScript->hasClose = true;
        engineText += line + "\n";
    }

    if (!KRScriptParse(engineText.c_str()))
    {
        *pError = "the scripted back-end could not read it (see the line above)";
        return false;
    }
    return true;
}
