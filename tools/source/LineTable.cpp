#include "source/LineTable.h"

#include <algorithm>

#include "SourceIterator.h"
#include "localization_manager/host/text.h"
#include "source/Encoding.h"

namespace lm_source {

namespace {

bool IsLineBreak(char unit) noexcept {
    return unit == '\n' || unit == '\r';
}

}  // namespace

LineTable::LineTable(std::string_view bytes, Range content)
    : starts_{content.begin}, end_(content.end) {
    const std::string_view text = bytes.substr(0, content.end);
    // Few files have a CR, and none has many beside its LFs: either is found faster by itself.
    std::size_t lf = text.find('\n', content.begin);
    std::size_t cr = text.find('\r', content.begin);
    while (std::min(lf, cr) != std::string_view::npos) {
        const std::size_t end = cr + 1 == lf ? lf : std::min(lf, cr);
        starts_.push_back(static_cast<std::uint32_t>(end + 1));
        lf = lf <= end ? text.find('\n', end + 1) : lf;
        cr = cr <= end ? text.find('\r', end + 1) : cr;
    }
}

std::uint32_t LineTable::LineOf(std::uint32_t offset) const noexcept {
    const auto next = std::upper_bound(starts_.begin() + 1, starts_.end(), offset);
    return static_cast<std::uint32_t>(next - starts_.begin());
}

Range LineTable::RangeOf(std::string_view bytes, std::uint32_t line) const noexcept {
    std::uint32_t end = line < Count() ? starts_[line] : end_;
    const std::uint32_t begin = starts_[line - 1];
    while (line < Count() && end > begin && IsLineBreak(bytes[end - 1])) {
        --end;
    }
    return {begin, end};
}

Place LineTable::PlaceOf(std::string_view bytes, std::uint32_t offset) const {
    const std::uint32_t line = LineOf(offset);
    const std::uint32_t start = std::min(starts_[line - 1], offset);
    return {line, CountUnits(bytes.substr(start, offset - start)) + 1};
}

std::uint32_t LineTable::OffsetOf(std::string_view bytes, Place place) const {
    if (place.line > Count()) {
        return end_;
    }
    const Range line = RangeOf(bytes, std::max(place.line, 1U));
    std::uint32_t offset = line.begin;
    for (std::uint32_t column = 1; offset < line.end;) {
        const Character next = FirstCharacter(bytes.substr(offset, line.end - offset));
        column += next.units;
        if (column > place.column) {
            break;
        }
        offset += next.bytes;
    }
    return offset;
}

std::uint32_t LineTable::MessageColumn(std::string_view bytes, std::uint32_t offset) const {
    using namespace LocalizationManager::StringLocalizing::Parsing;
    const std::uint32_t start = starts_[LineOf(offset) - 1];
    const std::u16string text =
        localization_manager::host::ToUtf16(bytes.substr(start, offset - start));
    SourceRange range = MakeSourceRange(text, {});
    while (range.first.base() != range.last.base()) {
        ++range.first;
    }
    return static_cast<std::uint32_t>(range.first.get_position().column);
}

}  // namespace lm_source
