// Iterators over the text of a source that know its name, the line and the column.
#pragma once

#include <boost/spirit/include/classic_position_iterator.hpp>
#include <cstdint>
#include <string_view>

#include "SourcePosition.h"

namespace LocalizationManager::StringLocalizing::Parsing {

/// Lines end with LF, CR LF or CR; columns count UTF-16 units, and a tab goes to the next stop.
using SourceIterator = boost::spirit::classic::position_iterator2<const char16_t*, SourcePosition>;

/// The two ends of a source. The base of `last` is the end of the text, which a default-constructed
/// end iterator would not know.
struct SourceRange {
    SourceIterator first;
    SourceIterator last;
};

/// Text and name must outlive the range.
/// @param line  the number of the line that the text begins.
SourceRange MakeSourceRange(std::u16string_view text, std::u16string_view sourceName,
                            std::int64_t line = 1);

}  // namespace LocalizationManager::StringLocalizing::Parsing
