// All that the operating system must supply, together with `InputFile.h`. One implementation per
// system stands beside these headers and is chosen by the build; nothing above may know which one
// runs. The headers that hosts compile as well (process heap, shared libraries, what differs in calls
// between host and module) stand in the implementation's `public` folder, the critical section, which
// is header code, in its `include`.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Platform {

/// Errors are Windows error numbers whatever the system: they are what result codes are made from.
using ErrorNumber = std::uint32_t;
inline constexpr ErrorNumber kNoError = 0;

// Paths

/// The separator to put between two components.
extern const char16_t kPathSeparator;

/// A path whose separators, written "/" or "\", the system understands.
std::u16string NativePath(std::u16string_view path);

struct PathAttributes {
    bool isDirectory;
    bool isLink;  // a symbolic link, junction or other reparse point; it is not followed
};

/// @param attributes  written on success only.
ErrorNumber ReadPathAttributes(std::u16string_view path, PathAttributes& attributes);

// Text

/// Decodes UTF-8 into UTF-16; ill-formed parts become U+FFFD. Where the system has no rule of its own,
/// every maximal one becomes one.
/// @param output  room for as many units as there are bytes.
/// @return the number of units written.
/// @throws std::runtime_error when the system cannot decode at all.
std::size_t DecodeUtf8(std::string_view bytes, char16_t* output);

/// Text in the multibyte encoding of the C runtime's locale, which is never changed here. Empty
/// when a character has no form on the other side.
std::optional<std::u16string> WidenMultibyte(std::string_view text);
std::optional<std::string> NarrowToMultibyte(std::u16string_view text);

// Time

/// Seconds of the calendar, as the C runtime counts them.
std::int64_t CalendarTime() noexcept;

// Memory

/// From now on large blocks that are freed go back to the system at once, instead of being kept for
/// the next. For programs; a module leaves its host's memory alone.
void ReturnFreedMemory() noexcept;

/// A hint that a large block will be read here and there: with larger pages, the processor has fewer
/// of them to look up. For memory that nobody wrote to yet.
void PreferLargePages(const void* begin, std::size_t size) noexcept;

// Programs

/// The arguments of `main` in UTF-8, the program's name first.
std::vector<std::string> CommandLine(int argc, const char* const* argv);

/// To be called first: what is written is not changed on its way, a terminal shows it as UTF-8, and a
/// reader that goes early makes writing fail and does nothing else.
void PrepareStandardStreams() noexcept;

/// @return null when the file cannot be opened; `errno` says why.
std::FILE* OpenForReading(const std::filesystem::path& path) noexcept;

/// Whether standard error is read by a person as it is written.
bool IsErrorOutputTerminal() noexcept;

}  // namespace Platform
