#include "plural/parse_rule.h"

#include <boost/spirit/include/qi_parse.hpp>
#include <utility>

#include "NestingLimitExceeded.h"
#include "PluralFormRulesGrammar.h"

namespace lm_plural {

namespace {

namespace parsing = LocalizationManager::StringLocalizing::Parsing;

/// Keeps what the engine's own actions make callables of.
struct RecordingActions {
    using Condition = lm_plural::Condition;
    using Term = std::uint32_t;  // the divisor, zero for the number itself

    static void MakeComparison(Condition& result, Term term, parsing::CompareOperator op,
                               std::uint32_t constant) {
        result = {Condition::Kind::Comparison, op, term, constant, {}};
    }

    static void MakeOr(Condition& result, const Condition& first,
                       const std::vector<Condition>& rest) {
        Join(result, Condition::Kind::Any, first, rest);
    }

    static void MakeAnd(Condition& result, const Condition& first,
                        const std::vector<Condition>& rest) {
        Join(result, Condition::Kind::All, first, rest);
    }

    static void MakeModulo(Term& result, std::uint32_t divisor) { result = divisor; }

    static void MakeParameter(Term& result) { result = 0; }

private:
    static void Join(Condition& result, Condition::Kind kind, const Condition& first,
                     const std::vector<Condition>& rest) {
        if (rest.empty()) {
            result = first;
            return;
        }
        Condition joined;
        joined.kind = kind;
        joined.parts.reserve(1 + rest.size());
        joined.parts.push_back(first);
        joined.parts.insert(joined.parts.end(), rest.begin(), rest.end());
        result = std::move(joined);
    }
};

}  // namespace

std::vector<Condition> ParseRule(std::u16string_view text) {
    std::vector<Condition> conditions;
    const char16_t* current = text.data();
    try {
        parsing::PluralFormRulesGrammar<const char16_t*, RecordingActions> grammar;
        boost::spirit::qi::parse(current, text.data() + text.size(), grammar, conditions);
    } catch (const boost::spirit::qi::expectation_failure<const char16_t*>&) {
        conditions.clear();
    } catch (const parsing::NestingLimitExceeded&) {
        conditions.clear();
    }
    return conditions;
}

}  // namespace lm_plural
