#include "lsp/places.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "lsp/members.h"

namespace lm_lsp {

using lm_source::LineTable;
using lm_source::Place;
using lm_source::Range;

namespace {

/// Lines and columns of people begin at 1.
std::uint32_t ReadNumber(const Json& value, const std::string& path) {
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint32_t>::max() - 1;
    return static_cast<std::uint32_t>(std::min(NumberAt(value, path), kMost)) + 1;
}

LineTable LinesOf(std::string_view text) {
    return {text, {0, static_cast<std::uint32_t>(text.size())}};
}

/// A line with its line break.
Range WholeLine(const LineTable& lines, std::string_view text, std::uint32_t line) {
    const std::uint32_t begin = lines.RangeOf(text, line).begin;
    return {begin, line < lines.Count() ? lines.RangeOf(text, line + 1).begin
                                        : static_cast<std::uint32_t>(text.size())};
}

}  // namespace

Place ReadPlace(const Json& value, const std::string& path) {
    return {ReadNumber(value, path + ".line"), ReadNumber(value, path + ".character")};
}

Json PositionOf(Place place) {
    return {{"line", place.line - 1}, {"character", place.column - 1}};
}

Json RangeOf(Place begin, Place end) {
    return {{"start", PositionOf(begin)}, {"end", PositionOf(end)}};
}

Json RangeOf(const lm_source::Document& document, Range range) {
    return RangeOf(document.PlaceOf(range.begin), document.PlaceOf(range.end));
}

Json EditOf(const lm_source::Document& document, Range range, std::string text) {
    return {{"range", RangeOf(document, range)}, {"newText", std::move(text)}};
}

Json EditsBetween(std::string_view before, std::string_view after) {
    // An editor keeps the mark of a file apart from its text.
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    if (before.substr(0, kMark.size()) == kMark && after.substr(0, kMark.size()) == kMark) {
        before.remove_prefix(kMark.size());
        after.remove_prefix(kMark.size());
    }
    const LineTable from = LinesOf(before);
    const LineTable to = LinesOf(after);
    const auto isSame = [&](std::uint32_t left, std::uint32_t right) {
        const Range one = WholeLine(from, before, left);
        const Range other = WholeLine(to, after, right);
        return before.substr(one.begin, one.size()) == after.substr(other.begin, other.size());
    };
    Json edits = Json::array();
    const auto add = [&](Range range, Range by) {
        edits.push_back(
            {{"range", RangeOf(from.PlaceOf(before, range.begin), from.PlaceOf(before, range.end))},
             {"newText", after.substr(by.begin, by.size())}});
    };
    if (from.Count() == to.Count()) {
        for (std::uint32_t line = 1; line <= from.Count(); ++line) {
            if (!isSame(line, line)) {
                add(WholeLine(from, before, line), WholeLine(to, after, line));
            }
        }
        return edits;
    }
    const std::uint32_t least = std::min(from.Count(), to.Count());
    std::uint32_t same = 0;
    while (same < least && isSame(same + 1, same + 1)) {
        ++same;
    }
    std::uint32_t last = 0;
    while (last < least - same && isSame(from.Count() - last, to.Count() - last)) {
        ++last;
    }
    const auto between = [&](const LineTable& lines, std::string_view text) {
        const auto size = static_cast<std::uint32_t>(text.size());
        const std::uint32_t begin =
            same < lines.Count() ? lines.RangeOf(text, same + 1).begin : size;
        return Range{begin, last == 0 ? size : lines.RangeOf(text, lines.Count() - last + 1).begin};
    };
    add(between(from, before), between(to, after));
    return edits;
}

}  // namespace lm_lsp
