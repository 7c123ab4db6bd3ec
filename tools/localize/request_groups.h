// For whom a finding holds, put together.
#pragma once

#include <string>
#include <vector>

#include "check/Report.h"

namespace localize {

/// Cultures for which a finding holds in the same scopes.
struct RequestGroup {
    std::vector<std::string> cultures;
    std::vector<std::string> scopes;
};

std::vector<RequestGroup> GroupsOf(const lm_check::Report& report,
                                   const lm_check::Finding& finding);

struct Counts {
    std::size_t errors = 0;
    std::size_t warnings = 0;
};

Counts CountsOf(const lm_check::Report& report);

}  // namespace localize
