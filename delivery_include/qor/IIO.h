// A stream of bytes with a position.
#pragma once

#include <cstdint>

#include "qor/IObject.h"

namespace qor {

/// Where the offset of `IIO::Seek` counts from; any other value counts from the start.
namespace seek_origin {
inline constexpr std::int32_t Start = 0;
inline constexpr std::int32_t Current = 1;
inline constexpr std::int32_t End = 2;
}  // namespace seek_origin

/// Positions and sizes are bytes from the start of the stream. A stream has one position, so it
/// belongs to one thread at a time. Out arguments are written on success only; where one may not be
/// null, null is answered with `rcInvalidArgument` and nothing is done.
class IIO : public IObject {
public:
    static constexpr std::uint32_t InterfaceId = 0x0000000A;

    /// Reads at the position and moves it on.
    /// @param destination  room for `wanted` bytes.
    /// @param wanted       the most bytes to read.
    /// @param read         receives the bytes read: fewer than wanted near the end, 0 at the end.
    /// @return `rcOk` (at the end, too), or the code of the platform's error.
    virtual result_t Read(void* destination, std::uint32_t wanted, std::uint32_t* read) = 0;

    /// Not supported by the read-only streams of this component: `rcNotSupported`.
    virtual result_t Write(const void* source, std::uint32_t size, std::uint32_t* written) = 0;

    /// Moves the position; beyond the end is allowed, before the start is an error. The largest
    /// position that a file can take depends on its file system.
    /// @param origin    a `seek_origin`.
    /// @param offset    bytes, may be negative.
    /// @param position  receives the new position; may be null.
    virtual result_t Seek(std::int32_t origin, std::int64_t offset, std::int64_t* position) = 0;

    /// @param position  receives the position.
    virtual result_t GetPosition(std::int64_t* position) = 0;

    /// @param size  receives the size of the stream in bytes.
    virtual result_t GetSize(std::int64_t* size) = 0;

    /// Not supported by the read-only streams of this component: `rcNotSupported`.
    virtual result_t SetSize(std::int64_t size) = 0;

    /// Not supported by the read-only streams of this component: `rcNotSupported`.
    virtual result_t Flush() = 0;

protected:
    ~IIO() = default;
};

}  // namespace qor
