// Writing a record to the host's tracer.
#pragma once

#include <cstdint>
#include <string_view>

#include "qor/ITracer.h"

namespace qor {

/// Writes one record, without line break or terminating zero. Does nothing without a tracer or when
/// the tracer declines the level; a text that does not fit because the tracer declines to enlarge
/// the record is dropped.
void Trace(ITracer* tracer, std::uint32_t level, std::string_view text);

/// The same for places that already have a failure to tell of, which none may replace: what the
/// tracer throws is swallowed, and a text that cannot be made is dropped.
/// @param makeText  returns the text; called only when there is a tracer.
template <class MakeText>
void TraceNoThrow(ITracer* tracer, std::uint32_t level, MakeText makeText) noexcept {
    if (tracer == nullptr) {
        return;
    }
    try {
        Trace(tracer, level, makeText());
    } catch (...) {  // there is nobody left to tell
    }
}

}  // namespace qor
