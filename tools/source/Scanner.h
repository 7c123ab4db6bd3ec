// What the syntax of localisation files is made of.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "source/Range.h"

namespace lm_source {

/// How long the name is that a text begins with; zero when it begins with none.
std::uint32_t NameLength(std::string_view text) noexcept;

/// Finds where things end. It keeps a view of the bytes. What is white space is asked of the locale
/// when it is made.
class Scanner {
public:
    Scanner(std::string_view bytes, Range content);

    std::uint32_t End() const noexcept { return end_; }

    /// The byte at a place; a zero at the end.
    char At(std::uint32_t at) const noexcept { return at < end_ ? bytes_[at] : '\0'; }

    std::uint32_t SkipSpace(std::uint32_t at) const {
        while (at < end_ && IsAsciiSpace(bytes_[at])) {
            ++at;
        }
        return at < end_ && (bytes_[at] & '\x80') != 0 ? SkipWideSpace(at) : at;
    }

    std::uint32_t SkipSpaceAndComments(std::uint32_t at) const;

    /// The place itself when no name begins there.
    std::uint32_t SkipName(std::uint32_t at) const noexcept {
        return at + NameLength(bytes_.substr(at, end_ - at));
    }

    bool BeginsName(std::uint32_t at) const noexcept;

    /// @param at  behind the opening quote.
    /// @return where the closing quote stands; the end when there is none.
    std::uint32_t FindQuote(std::uint32_t at) const noexcept;

    /// Where the line ends that holds a place: before its line break.
    std::uint32_t LineEnd(std::uint32_t at) const noexcept;

    bool HasLineBreak(Range range) const noexcept;

    /// The first line after the one of a place that begins `key =`; the end when there is none.
    std::uint32_t NextEntryLine(std::uint32_t at) const;

private:
    bool IsAsciiSpace(char unit) const noexcept {
        return static_cast<unsigned char>(unit) < isSpace_.size() &&
               isSpace_[static_cast<unsigned char>(unit)];
    }
    std::uint32_t SkipOneSpace(std::uint32_t at) const;
    std::uint32_t SkipWideSpace(std::uint32_t at) const;
    std::uint32_t SkipBlanks(std::uint32_t at) const;  // not over line breaks

    std::string_view bytes_;
    std::uint32_t end_;
    std::array<bool, 128> isSpace_{};
};

/// The place behind an escape or any other backslash, and what it stands for.
/// @param rest  begins with a backslash.
struct Escape {
    std::uint32_t size;
    char unit;
};
inline Escape EscapeAt(std::string_view rest) noexcept {
    const char second = rest.size() > 1 ? rest[1] : ' ';
    if (second == 'n') {
        return {2, '\n'};
    }
    return {second == '\\' || second == '\'' ? 2U : 1U, second == '\'' ? '\'' : '\\'};
}

}  // namespace lm_source
