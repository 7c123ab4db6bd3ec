// A request while the module works on it.
#pragma once

#include <string>

#include "localization_manager/host/Params.h"

namespace localization_manager::host::detail {

/// What the request has for the module's callbacks, and what they heard.
struct Call {
    Params params;
    std::string unknownParam;  // a name that the text asks for and `params` does not have; UTF-8
    std::string report;        // the module's, about a failure
};

}  // namespace localization_manager::host::detail
