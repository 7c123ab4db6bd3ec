// Fuzzes the parser of plural rule files, and asks what it has read for numbers of each kind.
#include <limits>

#include "Input.h"
#include "ParsingException.h"
#include "PluralFormRulesParser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    namespace engine = LocalizationManager::StringLocalizing;
    using Limits = std::numeric_limits<std::int64_t>;
    const std::u16string text = lm_fuzz::Decode(data, size);
    const auto range = engine::Parsing::MakeSourceRange(text, u"Plural.rule");
    engine::Model::PluralFormRule rule;
    try {
        engine::Parsing::ParsePluralFormRules(range.first, range.last, rule);
    } catch (const engine::Parsing::ParsingException&) {
        // The entries before the fault are there.
    }
    lm_fuzz::Require(rule.size() <= 5, "a rule has five entries at most");
    for (const engine::Model::PluralFormCondition& holds : rule) {
        for (const std::int64_t number : {Limits::min(), std::int64_t{-1}, Limits::max()}) {
            holds(number);
        }
    }
    return 0;
}
