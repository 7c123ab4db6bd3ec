// All that the operating system must supply. One implementation per system stands beside this
// header and is chosen by the build; nothing above may know which one runs. The headers that hosts
// compile as well (process heap, shared libraries) stand in the implementation's `public` folder.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Platform {

/// Errors are Windows error numbers whatever the system: they are what result codes are made from.
using ErrorNumber = std::uint32_t;
inline constexpr ErrorNumber kNoError = 0;
inline constexpr ErrorNumber kInvalidHandleError = 6;

// Paths

/// The separator to put between two components.
extern const char16_t kPathSeparator;

/// A path whose separators, written "/" or "\", the system understands.
std::u16string NativePath(std::u16string_view path);

// Attributes

struct FileAttributes {
    bool isDirectory;
    bool isLink;  // a symbolic link, junction or other reparse point; it is not followed
};

/// @param attributes  written on success only.
ErrorNumber GetFileAttributes(std::u16string_view path, FileAttributes& attributes);

// Files

enum class FileAccess : std::uint8_t { Read };
enum class FileSharing : std::uint8_t { Read };
enum class FileDisposition : std::uint8_t { OpenExisting };
enum class SeekOrigin : std::uint8_t { Start, Current, End };

using FileHandle = std::intptr_t;
inline constexpr FileHandle kInvalidFileHandle = -1;

/// Opens regular files only and never waits; anything else is refused as access denied. A file that
/// somebody holds exclusively is a sharing violation.
/// @param file  receives a handle to close with `CloseFile`; written on success only.
ErrorNumber OpenFile(std::u16string_view path, FileAccess access, FileSharing sharing,
                     FileDisposition disposition, FileHandle& file);

void CloseFile(FileHandle file) noexcept;

/// Reads until `wanted` bytes are there or the file ends.
/// @param read  bytes read; written on success only.
ErrorNumber ReadFile(FileHandle file, void* destination, std::uint32_t wanted, std::uint32_t& read);

/// @param position  the new position from the start; written on success only.
ErrorNumber SeekFile(FileHandle file, SeekOrigin origin, std::int64_t offset,
                     std::int64_t& position);

/// @param size  bytes; written on success only.
ErrorNumber GetFileSize(FileHandle file, std::int64_t& size);

// Text

/// Decodes UTF-8 into UTF-16; every maximal ill-formed part becomes one U+FFFD.
/// @param output  room for as many units as there are bytes.
/// @return the number of units written.
std::size_t DecodeUtf8(std::string_view bytes, char16_t* output);

/// Text in the multibyte encoding of the C runtime's locale, which is never changed here. Empty
/// when a character has no form on the other side.
std::optional<std::u16string> WidenMultibyte(std::string_view text);
std::optional<std::string> NarrowToMultibyte(std::u16string_view text);

// Time

/// Seconds of the calendar, as the C runtime counts them.
std::int64_t CalendarTime() noexcept;

}  // namespace Platform
