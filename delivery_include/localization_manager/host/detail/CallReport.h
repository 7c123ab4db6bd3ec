// Where the module's reports go.
#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "localization_manager/host/Report.h"
#include "localization_manager/host/detail/CurrentCall.h"
#include "qor/objptr_t.h"

namespace localization_manager::host::detail {

/// Gives a report to the request that it is about, which decides what becomes of it.
/// @param otherwise  hears what comes outside of requests; may be empty.
inline Report CallReport(qor::objptr_t<CurrentCall> calls, Report otherwise) {
    return [calls = std::move(calls), otherwise = std::move(otherwise)](
               std::uint32_t level, std::string_view text) noexcept {
        try {
            if (Call* const call = calls->Get()) {
                call->report.append(call->report.empty() ? "" : "\n").append(text);
            } else if (otherwise) {
                otherwise(level, text);
            }
        } catch (...) {  // without memory the failure itself still tells that something is wrong
        }
    };
}

}  // namespace localization_manager::host::detail
