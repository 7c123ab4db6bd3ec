// What ICU cannot do, as exceptions.
#pragma once

#include <unicode/utypes.h>

#include <stdexcept>
#include <string>
#include <string_view>

#include "localization_manager/host/shortened.h"

namespace localization_manager::host::detail {

/// @param what  was tried.
/// @throws std::runtime_error for a failure.
inline void CheckIcu(UErrorCode status, const char* what) {
    if (U_FAILURE(status)) {
        throw std::runtime_error(std::string("ICU cannot ") + what + ": " + u_errorName(status));
    }
}

/// @param value  UTF-8, from the host.
/// @param why    what is wrong with it, and what would be right.
inline std::invalid_argument Refused(std::string_view value, const char* why) {
    return std::invalid_argument("'" + ShortenedMiddle(value) + "' " + why);
}

}  // namespace localization_manager::host::detail
