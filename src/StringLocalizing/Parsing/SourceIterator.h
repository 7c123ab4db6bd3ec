// Iterators over the text of a source that know its name, the line and the column.
#pragma once

#include <boost/spirit/include/classic_position_iterator.hpp>
#include <string_view>

namespace LocalizationManager::StringLocalizing::Parsing {

/// Copied with every copy of an iterator, so it only views the name of the source.
using SourcePosition = boost::spirit::classic::file_position_base<std::u16string_view>;

/// Lines end with LF, CR LF or CR; columns count UTF-16 units, and a tab goes to the next stop.
using SourceIterator = boost::spirit::classic::position_iterator2<const char16_t*, SourcePosition>;

/// The two ends of a source. The base of `last` is the end of the text, which a default-constructed
/// end iterator would not know.
struct SourceRange {
    SourceIterator first;
    SourceIterator last;
};

/// Text and name must outlive the range.
SourceRange MakeSourceRange(std::u16string_view text, std::u16string_view sourceName);

}  // namespace LocalizationManager::StringLocalizing::Parsing
