// The checks that raise contract exceptions.
#pragma once

#include <string_view>

#include "qor/result_codes.h"
#include "qor/rtl/contracts/ContractLocation.h"
#include "qor/rtl/contracts/ContractViolationException.h"

namespace code_contracts {

inline constexpr const char* kUnexpectedNullPointer = "unexpected null pointer";

/// Argument check: throws `NullPointerException<RequireViolationException>` for null.
template <class Pointer>
void RequireNotNull(const Pointer& pointer, const ContractLocation& location) {
    if (!pointer) {
        throw NullPointerException<RequireViolationException>(location, kUnexpectedNullPointer);
    }
}

/// Check inside a body: throws `NullPointerException<InvariantViolationException>` for null.
template <class Pointer>
void CheckNotNull(const Pointer& pointer, const ContractLocation& location) {
    if (!pointer) {
        throw NullPointerException<InvariantViolationException>(location, kUnexpectedNullPointer);
    }
}

}  // namespace code_contracts

namespace LocalizationManager {

/// Throws the failure of a checked call; not to be called directly.
[[noreturn]] void ThrowCallFailed(qor::result_t code, std::string_view text,
                                  const code_contracts::ContractLocation& location);

/// Checked call: throws `QorCallFailedException` when `code`, the result of the call that
/// `location` names, is a failure.
/// @param text  what could not be done; makes the description together with the code's message.
inline void CheckCall(qor::result_t code, std::string_view text,
                      const code_contracts::ContractLocation& location) {
    if (qor::Failed(code)) {
        ThrowCallFailed(code, text, location);
    }
}

}  // namespace LocalizationManager
