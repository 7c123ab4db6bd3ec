// A scope and the cultures that serve it.
#pragma once

#include <string>
#include <vector>

#include "localization_manager/Culture.h"

namespace localization_manager::host::detail {

// NOLINTNEXTLINE(bugprone-exception-escape): there is one allocator, so that nothing is copied
struct Selection {
    std::string scope;               // UTF-8
    std::vector<std::string> names;  // of the cultures, as the host wrote them, most wanted first
    std::vector<Culture> cultures;   // the same as records
    std::vector<std::string> isoNames;  // of their languages
};

}  // namespace localization_manager::host::detail
