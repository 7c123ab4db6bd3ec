#include "LocFileParser.h"

#include "LocFileGrammar.h"
#include "ParseError.h"

namespace LocalizationManager::StringLocalizing::Parsing {

void ParseResourceDictionary(const SourceIterator& first, const SourceIterator& last,
                             Model::ResourceDictionary& dictionary) {
    try {
        dictionary.Reserve(static_cast<std::size_t>(last.base() - first.base()));
        LocFileGrammar grammar;  // counts while it parses
        const char16_t* current = first.base();
        boost::spirit::qi::parse(current, last.base(), grammar, dictionary);
    } catch (...) {
        TranslateParseError(first);
    }
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
