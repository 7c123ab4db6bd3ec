// Localisation files: what valid texts hold, and the message of every fault.
#include <gtest/gtest.h>

#include "Cases.h"
#include "DictionaryText.h"
#include "ErrorText.h"
#include "NestingGuard.h"
#include "ParsingException.h"

namespace {

using namespace LocalizationManager::StringLocalizing::Parsing;
using lm_test::ErrorText;
using lm_test::ParseDictionary;
using lm_test::PrintDictionary;

std::string ErrorOf(const std::u16string& source) {
    return ErrorText<ParsingException>([&] { ParseDictionary(source); });
}

TEST(LocFileParserTest, ValidTextsFillTheDictionary) {
    for (const auto& [source, dictionary] : lm_test::ReadCases("loc_file_texts.txt")) {
        EXPECT_EQ(PrintDictionary(ParseDictionary(source)), dictionary);
    }
}

TEST(LocFileParserTest, AFaultIsReportedWithItsPlaceItsLineAndACaret) {
    for (const auto& [source, fault] : lm_test::ReadCases("loc_file_faults.txt")) {
        EXPECT_EQ(ErrorOf(source), lm_test::FaultText("app.lt", fault));
    }
}

TEST(LocFileParserTest, ADuplicateKeyIsReportedWithoutAPlaceAndKeepsWhatCameBefore) {
    lm_test::model::ResourceDictionary dictionary;
    EXPECT_EQ(ErrorText<ParsingException>(
                  [&] { lm_test::ParseInto(dictionary, u"a='1' A.b='2'\na.B='3' c='4'"); }),
              "duplicate key found (keys are case insensitive): 'a.b'");
    EXPECT_THROW(lm_test::ParseInto(dictionary, u"d='5' a.b='6'"), ParsingException);
    EXPECT_THROW(lm_test::ParseInto(dictionary, u"e='7' f="), ParsingException);
    EXPECT_EQ(PrintDictionary(dictionary), "a = '1' a.b = '2' d = '5' e = '7'");
}

TEST(LocFileParserTest, FormsSideBySideAreNotNested) {
    std::u16string source = u"a='x'";
    for (int i = 0; i <= kMaxNesting; ++i) {
        source += u"+{$n:'y'}";
    }
    EXPECT_EQ(ErrorOf(source), "");
}

}  // namespace
