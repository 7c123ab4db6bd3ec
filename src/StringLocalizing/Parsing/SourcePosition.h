// A place in a source.
#pragma once

#include <boost/spirit/include/classic_position_iterator.hpp>
#include <cstdint>
#include <string_view>

namespace LocalizationManager::StringLocalizing::Parsing {

/// Copied with every copy of an iterator, so it only views the name of the source. Counts in 64 bits:
/// a long line of tabs has more columns than an `int` can count.
struct SourcePosition {
    std::u16string_view file;
    std::int64_t line = 1;
    std::int64_t column = 1;
};

}  // namespace LocalizationManager::StringLocalizing::Parsing

namespace boost::spirit::classic {

/// How the library's iterator counts.
template <>
class position_policy<LocalizationManager::StringLocalizing::Parsing::SourcePosition> {
protected:
    using Position = LocalizationManager::StringLocalizing::Parsing::SourcePosition;

    static void next_line(Position& position) {
        ++position.line;
        position.column = 1;
    }
    static void next_char(Position& position) { ++position.column; }
    static void tabulation(Position& position) {
        constexpr int kTabWidth = 4;
        position.column += kTabWidth - (position.column - 1) % kTabWidth;
    }
};

}  // namespace boost::spirit::classic
