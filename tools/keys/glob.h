// Patterns of names.
#pragma once

#include <cstddef>
#include <string_view>

namespace lm_keys {

/// Takes no longer than the product of the lengths.
/// @param pattern  "*" stands for any characters, also none, "?" for one.
inline bool MatchesGlob(std::string_view pattern, std::string_view text) {
    std::size_t at = 0;  // in the pattern
    std::size_t star = std::string_view::npos;
    std::size_t behindStar = 0;  // where the text goes on that the last star stands for
    for (std::size_t i = 0; i < text.size();) {
        if (at < pattern.size() && pattern[at] == '*') {
            star = at++;
            behindStar = i;
        } else if (at < pattern.size() && (pattern[at] == '?' || pattern[at] == text[i])) {
            ++at;
            ++i;
        } else if (star != std::string_view::npos) {
            at = star + 1;
            i = ++behindStar;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', at) == std::string_view::npos;
}

}  // namespace lm_keys
