#include "LocFileParser.h"

#include "LocFileGrammar.h"
#include "ParseError.h"

namespace LocalizationManager::StringLocalizing::Parsing {

void ParseResourceDictionary(const SourceIterator& first, const SourceIterator& last,
                             Model::ResourceDictionary& dictionary) {
    try {
        dictionary.Reserve(static_cast<std::size_t>(last.base() - first.base()));
        LocFileActions actions(dictionary);
        const LocFileGrammar grammar(actions);
        const char16_t* current = first.base();
        boost::spirit::qi::parse(current, last.base(), grammar);
    } catch (...) {
        TranslateParseError(first);
    }
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
