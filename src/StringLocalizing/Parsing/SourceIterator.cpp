#include "SourceIterator.h"

namespace LocalizationManager::StringLocalizing::Parsing {

namespace {

constexpr unsigned kTabWidth = 4;

}  // namespace

SourceRange MakeSourceRange(std::u16string_view text, std::u16string_view sourceName) {
    const char16_t* const begin = text.data();
    const char16_t* const end = begin + text.size();
    SourceRange range{SourceIterator(begin, end, sourceName), SourceIterator(end, end, sourceName)};
    range.first.set_tabchars(kTabWidth);
    return range;
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
