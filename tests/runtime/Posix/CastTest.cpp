// Conversions between wide and narrow texts in the encoding of the C runtime's locale.
#include "qor/rtl/text/Cast.h"

#include <gtest/gtest.h>

#include "GlobalLocale.h"

namespace {

using namespace std::literals;
using qor::text::Cast;

TEST(CastTest, AsciiPassesInEveryLocaleAndTheLocaleDecidesTheRest) {
    const auto wide = u"\u00E4\U0001F511"sv;
    EXPECT_EQ(Cast<qor::string16_t>("a\0b"sv).view(), u"a\0b"sv);
    EXPECT_EQ(Cast<qor::string8_t>(u"a\0b"sv).view(), "a\0b"sv);
    EXPECT_THROW(Cast<std::string>(wide), std::bad_cast);
    const lm_test::GlobalLocale english("en_US.UTF-8");
    EXPECT_EQ(Cast<std::string>(wide), "\xC3\xA4\xF0\x9F\x94\x91");
    EXPECT_EQ(Cast<std::u16string>("\xC3\xA4\xF0\x9F\x94\x91"sv), wide);
    for (const auto lone : {u"a\xD800"sv, u"\xD800z"sv, u"\xDC00\xD800"sv}) {
        EXPECT_THROW(Cast<std::string>(lone), std::bad_cast);
    }
    for (const auto malformed : {"\xC3"sv, "a\xFFz"sv, "\xED\xA0\x80"sv}) {
        EXPECT_THROW(Cast<std::u16string>(malformed), std::bad_cast);
    }
}

TEST(CastTest, OneSequenceOfBytesCanStandForTwoCharacters) {
    const lm_test::GlobalLocale hongKong("zh_HK.BIG5-HKSCS");
    for (const auto& [narrow, wide] :
         {std::pair("\x88\x62z\x88\xA3"sv, u"\u00CA\u0304z\u00EA\u0304"sv),
          {"\x88\x66\0z\x88\x66"sv, u"\u00CA\0z\u00CA"sv}}) {
        EXPECT_TRUE(Cast<std::u16string>(narrow) == wide);
        EXPECT_TRUE(Cast<std::string>(wide) == narrow);
    }
}

}  // namespace
