// The lines of files that people keep in version control and merge.
#pragma once

#include <cstddef>
#include <sstream>
#include <string>
#include <string_view>

namespace lm_check {

/// Calls `read(line, number)` for each line that is not empty, without a CR at its end.
template <class Read>
void ForEachLine(std::string_view text, Read read) {
    std::istringstream lines{std::string(text)};
    std::size_t number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        if (!line.empty()) {
            read(line, number);
        }
    }
}

}  // namespace lm_check
