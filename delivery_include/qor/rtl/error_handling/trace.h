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

/// The same for places that are already reporting a failure: what the tracer throws is swallowed.
void TraceNoThrow(ITracer* tracer, std::uint32_t level, std::string_view text) noexcept;

}  // namespace qor
