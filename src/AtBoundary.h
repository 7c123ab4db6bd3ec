// What operations that let exceptions out do where none passes from the module to its host.
#pragma once

#include "qor/platform/exceptions.h"
#include "qor/result_codes.h"
#include "qor/rtl/error_handling/result_from_current_exception.h"

namespace localization_manager {

/// Does an operation. What it throws leaves it, or becomes the code of the exception, which nobody hears of
/// otherwise.
template <class Operation>
qor::result_t AtBoundary(Operation operation) {
    if constexpr (qor::platform::kExceptionsPass) {
        return operation();
    } else {
        try {
            return operation();
        } catch (...) {
            return qor::ResultFromCurrentException();
        }
    }
}

}  // namespace localization_manager
