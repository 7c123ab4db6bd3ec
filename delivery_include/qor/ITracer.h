// The host's diagnostic channel: narrow text records, written at a level.
#pragma once

#include <cstdint>

#include "qor/IObject.h"

namespace qor {

/// Levels that this framework writes at; a host enables the ones it wants to see.
namespace trace_level {
inline constexpr std::uint32_t Error = 300;
inline constexpr std::uint32_t Info = 500;
inline constexpr std::uint32_t Debug = 700;
/// Not a level: in `RequestRecord` it asks to enlarge the record that is passed in.
inline constexpr std::uint32_t Enlarge = 1000;
}  // namespace trace_level

/// Implemented by the host; called from any thread that uses an object made with it.
class ITracer : public IObject {
public:
    static constexpr std::uint32_t InterfaceId = 0x6EF3329B;

    /// Asks for a record to write into, or enlarges one.
    /// @param level     level of the new record, or `trace_level::Enlarge`.
    /// @param record    in and out, the record's writable buffer. Null going in for a new record;
    ///                  to enlarge, the present buffer, whose text the tracer keeps.
    /// @param capacity  bytes wanted.
    /// @return `rcOk` with a non-null buffer grants the request; anything else declines it.
    virtual result_t RequestRecord(std::uint32_t level, char** record, std::uint32_t capacity) = 0;

    /// Writes a finished record and takes the buffer over.
    /// @param buffer  buffer that `RequestRecord` gave.
    /// @param length  bytes of text in it; no terminating zero, no line break.
    virtual result_t WriteRecord(char* buffer, std::uint32_t length) = 0;

protected:
    ~ITracer() = default;
};

}  // namespace qor
