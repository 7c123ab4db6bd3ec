// Plural rule files: what their conditions hold for, and the message of every fault.
#include "PluralFormRulesParser.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "ParseErrorText.h"
#include "ParsingException.h"
#include "PluralFormRulesActions.h"
#include "Utf8.h"

namespace {

using namespace LocalizationManager;
using namespace StringLocalizing::Model;
using namespace StringLocalizing::Parsing;
using lm_test::ParseErrorText;
using lm_test::ParseFault;
using Numbers = std::vector<std::int64_t>;

constexpr std::int64_t kProbes[] = {-21, -7, -1, 0,  1,  2,   3,   4,   5,          7,         10,
                                    11,  12, 14, 20, 21, 100, 101, 111, 4294967295, 4294967296};

PluralFormRule Parse(std::u16string_view source) {
    PluralFormRule rule;
    const auto [first, last] = MakeSourceRange(source, u"Plural.rule");
    ParsePluralFormRules(first, last, rule);
    return rule;
}

std::string ErrorOf(std::u16string_view source) {
    try {
        return "none, but " + std::to_string(Parse(source).size()) + " entries";
    } catch (const ParsingException& caught) {
        return caught.what();
    }
}

Numbers Accepted(const PluralFormCondition& condition) {
    Numbers accepted;
    for (const std::int64_t number : kProbes) {
        if (condition(number)) {
            accepted.push_back(number);
        }
    }
    return accepted;
}

TEST(PluralFormRulesParserTest, EveryEntryHoldsForItsNumbers) {
    const struct {
        const char16_t* source;
        std::vector<Numbers> entries;
    } cases[] = {
        {u"", {}},
        {u" \r\n\t", {}},
        {u"n==1;", {{1}}},
        {u"n!=1;n<0;",
         {{-21, -7, -1, 0,  2,  3,   4,   5,   7,          10,
           11,  12, 14, 20, 21, 100, 101, 111, 4294967295, 4294967296},
          {-21, -7, -1}}},
        {u"n<2;n <= 2;n>101;n>=101;n>=0 && n<1;",
         {{-21, -7, -1, 0, 1},
          {-21, -7, -1, 0, 1, 2},
          {111, 4294967295, 4294967296},
          {101, 111, 4294967295, 4294967296},
          {0}}},
        // Constants have 32 bits without a sign, comparisons and remainders 64 with one.
        {u"n==4294967295;n>4294967295;n%4294967295==0;n == 0000000000001;",
         {{4294967295}, {4294967296}, {0, 4294967295}, {1}}},
        {u"n%10>=0;n%10<0;n%10==1;n%1==0 && n<0;",
         {{0, 1, 2, 3, 4, 5, 7, 10, 11, 12, 14, 20, 21, 100, 101, 111, 4294967295, 4294967296},
          {-21, -7, -1},
          {1, 11, 21, 101, 111},
          {-21, -7, -1}}},
        // Whitespace.
        {u"\n n\r\n% \t10\n== 1\v&& n % 100\n!=\n11 \n;\n", {{1, 21, 101}}},
        {u"( n==1||n==2) ;(\n( n==3) || (n==4)) && ( n>3);", {{1, 2}, {4}}},
        // Precedence and grouping.
        {u"n==1 || n==2 && n>5;n>5 && n==2 || n==1;", {{1}, {1}}},
        {u"(n==1 || n==2) && n<2;n<2 && (n==1 || n==2);", {{1}, {1}}},
        {u"n>1 && n<5 && n!=3;n==1||n==3||n==7;((((n==5))));", {{2, 4}, {1, 3, 7}, {5}}},
        {u"n%10>=2 && n%10<=4 && (n%100<10 || n%100>=20);", {{2, 3, 4}}},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(Text::ToUtf8(expected.source));
        PluralFormRule rule;
        ASSERT_NO_THROW(rule = Parse(expected.source));
        ASSERT_EQ(rule.size(), expected.entries.size());
        for (std::size_t index = 0; index < rule.size(); ++index) {
            EXPECT_EQ(Accepted(rule[index]), expected.entries[index]) << "entry " << index;
        }
    }
}

TEST(PluralFormRulesParserTest, EveryFaultIsReportedWithItsPlaceAndWhatWasExpected) {
    const char* const sixEntries = "n==1;n==1;n==1;n==1;n==1;n==1;";
    const ParseFault faults[] = {
        {u"n%10==1", 1, 8, "n%10==1", "\";\""},
        {u"n==1\n", 2, 1, "", "\";\""},
        {u"n==1 n==2;", 1, 6, "n==1 n==2;", "\";\""},
        {u"n==1.5;", 1, 5, "n==1.5;", "\";\""},
        {u"n==1 & & n==2;", 1, 6, "n==1 & & n==2;", "\";\""},
        {u"n==1 | | n==2;", 1, 6, "n==1 | | n==2;", "\";\""},
        {u"n==1);", 1, 5, "n==1);", "\";\""},

        {u"n==1;n==1;n==1;n==1;n==1;n==1;", 1, 26, sixEntries, "<eoi>"},
        {u"x == 1;", 1, 1, "x == 1;", "<eoi>"},
        {u"1 == n;", 1, 1, "1 == n;", "<eoi>"},
        {u"N == 1;", 1, 1, "N == 1;", "<eoi>"},
        {u"!(n==1);", 1, 1, "!(n==1);", "<eoi>"},
        {u"n==1; ;", 1, 7, "n==1; ;", "<eoi>"},

        {u"n 1;", 1, 3, "n 1;", "<unnamed-rule>"},
        {u"\r\n\tn = 1;", 2, 7, "\tn = 1;", "<unnamed-rule>"},
        {u"n;", 1, 2, "n;", "<unnamed-rule>"},
        {u"nn==1;", 1, 2, "nn==1;", "<unnamed-rule>"},
        {u"n% 2", 1, 5, "n% 2", "<unnamed-rule>"},

        {u"n == ;", 1, 6, "n == ;", "<unsigned-integer>"},
        {u"n == -1;", 1, 6, "n == -1;", "<unsigned-integer>"},
        {u"n==n;", 1, 4, "n==n;", "<unsigned-integer>"},
        {u"n < =1;", 1, 5, "n < =1;", "<unsigned-integer>"},
        {u"n==4294967296;", 1, 4, "n==4294967296;", "<unsigned-integer>"},
        {u"n==18446744073709551617;", 1, 4, "n==18446744073709551617;", "<unsigned-integer>"},

        {u"n %", 1, 4, "n %", "<unsigned-integer>"},
        {u"n % ==1;", 1, 5, "n % ==1;", "<unsigned-integer>"},
        {u"n%4294967296==0;", 1, 3, "n%4294967296==0;", "<unsigned-integer>"},
        {u"n % 0 == 1;", 1, 5, "n % 0 == 1;", "<unsigned-integer>"},
        {u"n%\n 00==1;", 2, 2, " 00==1;", "<unsigned-integer>"},

        {u"n==1 && ;", 1, 9, "n==1 && ;", "<unnamed-rule>"},
        {u"n==1 &&& n==2;", 1, 8, "n==1 &&& n==2;", "<unnamed-rule>"},
        {u"n==1 &&", 1, 8, "n==1 &&", "<unnamed-rule>"},
        {u"n==1 || ;", 1, 9, "n==1 || ;", "<andExpression_>"},
        {u"n==1 ||| n==2;", 1, 8, "n==1 ||| n==2;", "<andExpression_>"},

        {u"( ;", 1, 2, "( ;", "<orExpression_>"},
        {u"()", 1, 2, "()", "<orExpression_>"},
        {u"n==1&&( 1==n);", 1, 8, "n==1&&( 1==n);", "<orExpression_>"},
        {u"(n==1 );", 1, 6, "(n==1 );", "\")\""},
        {u"(n==1;", 1, 6, "(n==1;", "\")\""},
        {u"(n==1 || n==2 ) && n<2;", 1, 14, "(n==1 || n==2 ) && n<2;", "\")\""},
        {u"((n==1)\n);", 1, 8, "((n==1)", "\")\""},
    };
    for (const ParseFault& fault : faults) {
        EXPECT_EQ(ErrorOf(fault.source), ParseErrorText("Plural.rule", fault));
    }
}

// Copying the condition so far at every operator would take minutes here.
TEST(PluralFormRulesParserTest, ALongChainIsCheapToReadCopyAndEvaluate) {
    std::u16string source = u"n==1";
    for (int index = 0; index < 20000; ++index) {
        source += index % 2 == 0 ? u" || n==2" : u" && n<3";
    }
    const PluralFormRule copy = Parse(source + u" || n==7;");
    ASSERT_EQ(copy.size(), 1U);
    EXPECT_EQ(Accepted(copy[0]), (Numbers{1, 2, 7}));
}

TEST(PluralFormRulesActionsTest, JunctionsStopAtTheFirstConditionThatDecides) {
    std::string tried;
    const PluralFormCondition holds = [&tried](std::int64_t) { return tried += 'y', true; };
    const PluralFormCondition fails = [&tried](std::int64_t) { return tried += 'n', false; };
    PluralFormCondition any;
    PluralFormCondition all;
    MakeOr(any, fails, {fails, holds, fails});
    MakeAnd(all, holds, {holds, fails, holds});
    EXPECT_TRUE(any(0));
    EXPECT_FALSE(all(0));
    EXPECT_EQ(tried, "nnyyyn");
}

TEST(PluralFormRulesActionsTest, AnUnknownOperatorIsRefused) {
    PluralFormCondition result;
    NumberExpression number;
    MakeParameter(number);
    try {
        MakeComparison(result, number, static_cast<CompareOperator>(6), 0);
        FAIL();
    } catch (const std::logic_error& caught) {
        EXPECT_STREQ(caught.what(), "unexpected compare operator type");
    }
}

}  // namespace
