// level_probe.h -- what a level tells a tester after a frame: its variables by their own names.
#pragma once

#include <string>

void LevelProbe(std::string* pOut);
