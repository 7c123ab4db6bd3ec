// A file opened for reading.
#pragma once

#include <cstdint>
#include <string_view>

#include "qor/result_codes.h"

namespace qor {

/// How a file is opened.
namespace file_flags {
inline constexpr std::uint32_t ReadAccess = 0x1;
inline constexpr std::uint32_t ShareRead = 0x2;
inline constexpr std::uint32_t OpenExisting = 0x3;  // a disposition
}  // namespace file_flags

namespace filesystem {

/// Owns a platform file. Failures are the mapped platform error; out arguments are written on
/// success only. Belongs to one thread at a time.
class File {
public:
    File() noexcept = default;
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File();

    /// Opens a file; one that was open is closed first.
    /// @param access       `ReadAccess` and `ShareRead`.
    /// @param disposition  `OpenExisting`.
    /// @param flags        none are known: 0.
    result_t Create(std::u16string_view name, std::uint32_t access, std::uint32_t disposition,
                    std::uint32_t flags);

    /// Does nothing when no file is open.
    void Close() noexcept;

    /// Reads at the position; fewer bytes than wanted mean the end of the file.
    result_t Read(void* destination, std::uint32_t wanted, std::uint32_t& read);

    /// @param origin  a `seek_origin`; any other value counts from the start.
    result_t Seek(std::int32_t origin, std::int64_t offset, std::int64_t& position);

    result_t GetSize(std::int64_t& size) const;

private:
    static constexpr std::intptr_t kInvalidHandle = -1;

    std::intptr_t handle_ = kInvalidHandle;
};

/// Whether a path is a directory.
/// @return `rcOk` for a directory; `rcFalse` for a file, and for a link or junction, whatever it
///         leads to; the mapped platform error when the path cannot be asked.
result_t IsDirectory(std::u16string_view path);

/// Whether a path exists, as a file or a directory; links are not followed.
bool Exists(std::u16string_view path);

}  // namespace filesystem

}  // namespace qor
