// What a check found.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "check/Finding.h"

namespace lm_check {

struct Report {
    std::vector<std::string> cultures;  // that were judged
    std::vector<std::string> scopes;    // the common one first
    std::string reference;
    std::vector<Finding> findings;  // ordered by file and place
    std::size_t files = 0;          // that were read
    std::size_t suppressed = 0;     // findings that a comment in the source asks to ignore
    std::size_t baselined = 0;      // that the baseline knows
};

}  // namespace lm_check
