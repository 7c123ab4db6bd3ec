// Names that differ in letter case only. Names of files and parameters may hold anything; only ASCII
// is compared, since that is what people mistype.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace lm_tree {

inline std::string LowerAscii(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char unit) {
        return unit >= 'A' && unit <= 'Z' ? static_cast<char>(unit - 'A' + 'a') : unit;
    });
    return lower;
}

inline bool SameIgnoringCase(std::string_view left, std::string_view right) {
    return LowerAscii(left) == LowerAscii(right);
}

}  // namespace lm_tree
