// What programs are written in, as far as their literals and comments differ.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace lm_keys {

enum class Language : std::uint8_t {
    C,       // and C++: raw strings, a quote inside numbers
    Python,  // comments after "#", literals of several lines between three quotes
    Other,   // comments as in C, literals of several lines between three quotes or backticks
};

/// By the file's extension; empty when it is none of a program's source that is known.
std::optional<Language> LanguageOf(const std::filesystem::path& file);

}  // namespace lm_keys
