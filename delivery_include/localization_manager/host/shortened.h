// Long reports, as a person wants to see them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace localization_manager::host {

namespace detail {

/// A report up to this many bytes is shown as it is.
inline constexpr std::size_t kLongestShown = 2000;

/// So many bytes at either end of a text that is cut in its middle.
inline constexpr std::size_t kShownAtEnds = 300;

/// So many bytes at most on either side of a mistake: where lines wrap, no caret points at anything.
inline constexpr std::size_t kShownAround = 100;

inline bool IsTrailingByte(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
}

/// The start of the character that holds the byte at `at`.
inline std::size_t CharacterAt(std::string_view text, std::size_t at) {
    while (at > 0 && at < text.size() && IsTrailingByte(text[at])) {
        --at;
    }
    return std::min(at, text.size());
}

/// Where a column of a report lies in its line: one for each character, a tab goes to the next
/// fourth.
inline std::size_t OffsetOfColumn(std::string_view line, std::size_t column) {
    constexpr std::size_t kTab = 4;
    std::size_t at = 0;
    std::size_t reached = 0;
    for (; at < line.size() && reached < column; ++at) {
        if (line[at] == '\t') {
            reached += kTab - (reached - 1) % kTab;
        } else if (!IsTrailingByte(line[at])) {
            ++reached;
        }
    }
    while (at < line.size() && IsTrailingByte(line[at])) {
        ++at;
    }
    return at;
}

/// A long text without its middle.
inline std::string ShortenedMiddle(std::string_view text) {
    if (text.size() <= kLongestShown) {
        return std::string(text);
    }
    const std::size_t begin = CharacterAt(text, kShownAtEnds);
    const std::size_t end = CharacterAt(text, text.size() - kShownAtEnds);
    return std::string(text.substr(0, begin)).append(" ... ").append(text.substr(end));
}

/// The line of a mistake around it, and a caret below the mistake. Tabs become blanks, so that the
/// caret stands below its character however wide they are shown.
/// @param line   in quotes.
/// @param caret  blanks, "^", and what was expected.
inline std::string ShortenedMistake(std::string_view line, std::string_view caret) {
    const std::size_t column = caret.find('^');
    const std::size_t at = OffsetOfColumn(line, column);
    const std::size_t begin = CharacterAt(line, at > kShownAround ? at - kShownAround : 0);
    const std::size_t end = CharacterAt(line, std::min(at + kShownAround, line.size()));
    const std::string_view before = line.substr(begin, at - begin);
    const auto blanks = std::count_if(before.begin(), before.end(),
                                      [](char byte) { return !IsTrailingByte(byte); });
    std::string shown(line.substr(begin, end - begin));
    std::replace(shown.begin(), shown.end(), '\t', ' ');
    return std::string(begin > 0 ? "... " : "")
        .append(shown)
        .append(end < line.size() ? " ..." : "")
        .append("\n")
        .append((begin > 0 ? 4 : 0) + static_cast<std::size_t>(blanks), ' ')
        .append(ShortenedMiddle(caret.substr(column)));
}

}  // namespace detail

/// A report that a person can read: a very long one is cut around the mistake that it shows, or else
/// in its middle, and says how long it was.
/// @param report  UTF-8, as a listener or a tracer gets it.
inline std::string Shortened(std::string_view report) {
    if (report.size() <= detail::kLongestShown) {
        return std::string(report);
    }
    // A mistake in a source: three lines, the second in quotes, the third with a caret. The line of
    // the source holds no line break.
    const std::size_t second = report.find("\n\"");
    const std::size_t third =
        second != std::string_view::npos ? report.find('\n', second + 1) : std::string_view::npos;
    const std::size_t caret = third != std::string_view::npos
                                  ? report.find_first_not_of(' ', third + 1)
                                  : std::string_view::npos;
    std::string shown;
    if (caret != std::string_view::npos && report[caret] == '^') {
        shown = detail::ShortenedMiddle(report.substr(0, second))
                    .append("\n")
                    .append(detail::ShortenedMistake(report.substr(second + 1, third - second - 1),
                                                     report.substr(third + 1)));
    } else {
        shown = detail::ShortenedMiddle(report);
    }
    return shown + "\n(shortened: the report has " + std::to_string(report.size()) + " bytes)";
}

}  // namespace localization_manager::host
