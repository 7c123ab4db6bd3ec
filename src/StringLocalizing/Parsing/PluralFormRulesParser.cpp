#include "PluralFormRulesParser.h"

#include "ParseError.h"
#include "PluralFormRulesActions.h"
#include "PluralFormRulesGrammar.h"

namespace LocalizationManager::StringLocalizing::Parsing {

void ParsePluralFormRules(const SourceIterator& first, const SourceIterator& last,
                          Model::PluralFormRule& rule) {
    try {
        PluralFormRulesGrammar<const char16_t*, PluralFormRulesActions>
            grammar;  // counts while it parses
        const char16_t* current = first.base();
        boost::spirit::qi::parse(current, last.base(), grammar, rule);
    } catch (...) {
        TranslateParseError(first);
    }
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
