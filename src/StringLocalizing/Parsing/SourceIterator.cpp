#include "SourceIterator.h"

namespace LocalizationManager::StringLocalizing::Parsing {

SourceRange MakeSourceRange(std::u16string_view text, std::u16string_view sourceName,
                            std::int64_t line) {
    const char16_t* const begin = text.data();
    const char16_t* const end = begin + text.size();
    const SourcePosition start{sourceName, line};
    return {SourceIterator(begin, end, start), SourceIterator(end, end, start)};
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
