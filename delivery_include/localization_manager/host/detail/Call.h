// A request while the module works on it.
#pragma once

#include <string>

#include "localization_manager/host/Conventions.h"
#include "localization_manager/host/Params.h"

namespace localization_manager::host::detail {

/// What the request has for the module's callbacks, and what they heard.
struct Call {
    Params params;
    const Conventions* conventions = nullptr;  // of the culture that is asked; null for none
    std::string paramProblem;                  // what is wrong with a parameter; UTF-8
    std::string report;                        // the module's, about a failure
};

}  // namespace localization_manager::host::detail
