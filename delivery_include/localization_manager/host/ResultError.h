// A failed call of a component, as an exception.
#pragma once

#include <stdexcept>
#include <string>

#include "qor/result_codes.h"
#include "qor/result_messages.h"

namespace localization_manager::host {

class ResultError : public std::runtime_error {
public:
    /// @param what  what failed; the code's own text is added.
    ResultError(qor::result_t code, const std::string& what)
        : std::runtime_error(what + ": " + std::string(qor::ResultText(code))), code_(code) {}

    qor::result_t code() const noexcept { return code_; }

private:
    qor::result_t code_;
};

/// For hosts that would rather catch than compare.
/// @param what  what could not be done, in case the code says so.
inline void Check(qor::result_t code, const char* what) {
    if (qor::Failed(code)) {
        throw ResultError(code, what);
    }
}

}  // namespace localization_manager::host
