// ProbeRead.cpp -- finding one pair in a probe text.
#include "ProbeRead.h"

#include "stateprobe.h"

#include <cmath>
#include <cstdlib>

std::string ProbeNow()
{
    std::string pairs;
    GameStateProbeFn probe = GameStateProbeGet();
    if (probe)
        probe(&pairs);
    return pairs;
}

std::string ProbeText(const std::string& pairs, const char* name)
{
    std::string key = std::string(" ") + name + "=";
    size_t at = pairs.find(key);
    if (at == std::string::npos)
        return std::string();
    size_t from = at + key.size();
    size_t to = pairs.find_first_of(" \n", from);
    return pairs.substr(from, to == std::string::npos ? std::string::npos : to - from);
}

double ProbeValue(const std::string& pairs, const char* name)
{
    std::string text = ProbeText(pairs, name);
    char* end = nullptr;
    double value = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != 0)
        return std::nan("");
    return value;
}

double ProbeNumber(const char* name)
{
    return ProbeValue(ProbeNow(), name);
}
