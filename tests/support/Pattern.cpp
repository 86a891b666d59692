// Pattern.cpp -- the one user of <regex> in the tests.
#include "Pattern.h"

#include <regex>

bool MatchesWhole(const std::string& text, const std::string& pattern)
{
    return std::regex_match(text, std::regex(pattern));
}

std::vector<std::string> FirstGroups(const std::string& text, const std::string& pattern, bool ignoreCase)
{
    const std::regex expression(pattern, ignoreCase ? std::regex::ECMAScript | std::regex::icase
                                                    : std::regex::ECMAScript);
    std::vector<std::string> groups;
    for (std::sregex_iterator it(text.begin(), text.end(), expression), end; it != end; ++it)
        groups.push_back((*it)[1]);
    return groups;
}
