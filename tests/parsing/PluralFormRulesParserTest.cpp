// Plural rule files: what their conditions hold for, and the message of every fault.
#include "PluralFormRulesParser.h"

#include <gtest/gtest.h>

#include "Cases.h"
#include "ErrorText.h"
#include "NestingGuard.h"
#include "ParsingException.h"

namespace {

using namespace LocalizationManager::StringLocalizing::Model;
using namespace LocalizationManager::StringLocalizing::Parsing;

PluralFormRule Parse(std::u16string_view source) {
    PluralFormRule rule;
    const auto [first, last] = MakeSourceRange(source, u"Plural.rule");
    ParsePluralFormRules(first, last, rule);
    return rule;
}

/// For every entry of a rule the numbers that it holds for.
std::string Accepted(const PluralFormRule& rule) {
    std::string accepted;
    for (const PluralFormCondition& condition : rule) {
        for (const std::int64_t number :
             {-21LL, -7LL, -1LL, 0LL,  1LL,  2LL,   3LL,   4LL,   5LL,          7LL,         10LL,
              11LL,  12LL, 14LL, 20LL, 21LL, 100LL, 101LL, 111LL, 4294967295LL, 4294967296LL}) {
            accepted += condition(number) ? std::to_string(number) + ' ' : "";
        }
        accepted += ';';
    }
    return accepted;
}

TEST(PluralFormRulesParserTest, EveryEntryHoldsForItsNumbers) {
    for (const auto& [source, numbers] : lm_test::ReadCases("plural_rules.txt")) {
        EXPECT_EQ(Accepted(Parse(source)), numbers) << LocalizationManager::Text::ToUtf8(source);
    }
}

TEST(PluralFormRulesParserTest, EveryFaultIsReportedWithItsPlaceAndWhatWasExpected) {
    for (const auto& [source, fault] : lm_test::ReadCases("plural_rule_faults.txt")) {
        const auto parse = [source = source] { Parse(source); };
        EXPECT_EQ(lm_test::ErrorText<ParsingException>(parse),
                  lm_test::FaultText("Plural.rule", fault));
    }
}

TEST(PluralFormRulesParserTest, ParenthesesSideBySideAreNotNested) {
    std::u16string source = u"n==1";
    for (int i = 0; i <= kMaxNesting; ++i) {
        source += u" || (n==2)";
    }
    EXPECT_EQ(Accepted(Parse(source + u";")), "1 2 ;");
}

}  // namespace
