// A file to read from.
#pragma once

#include <cstdint>
#include <string_view>

#include "Platform.h"

namespace Platform {

/// Implemented by each system. Out arguments are written on success only; without an open file
/// every operation but `Open` meets an invalid handle. Belongs to one thread at a time.
class InputFile {
public:
    enum class Origin : std::uint8_t { Start, Current, End };

    InputFile() noexcept = default;
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;
    ~InputFile() { Close(); }

    /// Opens an existing file for reading and shares it with other readers; one that was open is
    /// closed first. Opens regular files only and never waits; anything else is refused as access
    /// denied. A file that somebody holds exclusively is a sharing violation.
    ErrorNumber Open(std::u16string_view path);

    /// Reads at the position until `wanted` bytes are there or the file ends.
    /// @param read  bytes read.
    ErrorNumber Read(void* destination, std::uint32_t wanted, std::uint32_t& read);

    /// @param position  the new position from the start.
    ErrorNumber Seek(Origin origin, std::int64_t offset, std::int64_t& position);

    /// @param size  bytes.
    ErrorNumber GetSize(std::int64_t& size) const;

private:
    using Handle = std::intptr_t;
    static constexpr Handle kInvalidHandle = -1;

    void Close() noexcept;

    Handle handle_ = kInvalidHandle;
};

}  // namespace Platform
