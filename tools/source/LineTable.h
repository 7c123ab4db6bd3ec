// Where the lines of a file begin.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "source/Range.h"

namespace lm_source {

/// Both count from 1; columns in UTF-16 units, as editors and the engine do.
struct Place {
    std::uint32_t line = 1;
    std::uint32_t column = 1;
};

/// Lines end with LF, CR LF or CR. It does not keep the bytes, which have to be the same each time.
class LineTable {
public:
    LineTable() = default;
    LineTable(std::string_view bytes, Range content);

    /// At least one; the last may be empty.
    std::uint32_t Count() const noexcept { return static_cast<std::uint32_t>(starts_.size()); }

    /// The number of the line that holds an offset of the text or its end.
    std::uint32_t LineOf(std::uint32_t offset) const noexcept;

    /// A line without its line break.
    /// @param line  from 1 to `Count()`.
    Range RangeOf(std::string_view bytes, std::uint32_t line) const noexcept;

    /// The place of an offset.
    Place PlaceOf(std::string_view bytes, std::uint32_t offset) const;

    /// The offset of a place. A column behind the end of its line means its end, a line behind the
    /// last the end of the text, and a column inside a character the character.
    std::uint32_t OffsetOf(std::string_view bytes, Place place) const;

    /// The column that the engine's messages give, in which a tab goes to the next stop.
    std::uint32_t MessageColumn(std::string_view bytes, std::uint32_t offset) const;

private:
    std::vector<std::uint32_t> starts_;
    std::uint32_t end_ = 0;
};

}  // namespace lm_source
