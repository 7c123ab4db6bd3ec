// Localisation files: what valid texts hold, and the message of every fault.
#include <gtest/gtest.h>

#include "Cases.h"
#include "DictionaryText.h"
#include "ErrorText.h"
#include "GlobalLocale.h"
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

TEST(LocFileParserTest, TheGlobalLocaleDecidesWhatIsWhitespaceButNotHowNumbersPrint) {
    const lm_test::GlobalLocale english("en_US.UTF-8");
    EXPECT_EQ(PrintDictionary(ParseDictionary(u"\u2003A\u3000=\u2003'x'\u3000+\u2003B\u3000")),
              "a = 'x' + b");
    const std::u16string source = std::u16string(1233, u'\n') + std::u16string(1233, u' ') + u'?';
    const std::string shown = LocalizationManager::Text::ToUtf8(source.substr(1233));
    EXPECT_EQ(ErrorOf(source),
              lm_test::FaultText("app.lt", "1234:1234 [" + shown + "] <eoi> here"));
}

}  // namespace
