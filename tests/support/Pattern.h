// Pattern.h -- regular expressions for the tests, compiled once here: every file that includes <regex> costs
// seconds of compiling in each test tree.
#pragma once

#include <string>
#include <vector>

// Whether the pattern (ECMAScript syntax) matches the whole text.
bool MatchesWhole(const std::string& text, const std::string& pattern);

// The first group of every match of the pattern in the text, in order; letter case ignored when asked.
std::vector<std::string> FirstGroups(const std::string& text, const std::string& pattern, bool ignoreCase);
