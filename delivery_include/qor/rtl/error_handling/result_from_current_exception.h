// Turns whatever exception is in flight into a result code: the last resort at the boundary.
#pragma once

#include <cstdint>

#include "qor/ITracer.h"
#include "qor/result_codes.h"

namespace qor {

/// To be called inside a catch-all handler only.
/// @param tracer  when given, the exception's text is traced first; what the tracer throws is
///                swallowed.
/// @param prefix  put in front of the traced text.
/// @param level   level of the trace record.
result_t ResultFromCurrentException(ITracer* tracer, const char* prefix, std::uint32_t level);

/// The same without a trace.
result_t ResultFromCurrentException();

}  // namespace qor
