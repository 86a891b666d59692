// ProbeRead.h -- reading probe pairs ("name=value" after a blank) as the live state gives them and as the
// replay tool prints them.
#pragma once

#include <string>

// The live state's pairs now, as its probe function writes them; empty when no state named a probe.
std::string ProbeNow();

// The value of name in a text of pairs; NaN when the name is not there or its value is no number.
double ProbeValue(const std::string& pairs, const char* name);

// The text of the value of name ("GS_MENU"); empty when absent.
std::string ProbeText(const std::string& pairs, const char* name);

// ProbeValue(ProbeNow(), name).
double ProbeNumber(const char* name);
