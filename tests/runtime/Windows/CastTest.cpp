// Conversions between wide and narrow texts in the encoding of the C runtime's locale.
#include "qor/rtl/text/Cast.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

using namespace std::literals;
using qor::text::Cast;

TEST(CastTest, AsciiPassesInEveryLocaleAndTheLocaleDecidesTheRest) {
    EXPECT_EQ(Cast<qor::string16_t>("a\0b"sv).view(), u"a\0b"sv);
    EXPECT_EQ(Cast<qor::string8_t>(u"a\0b"sv).view(), "a\0b"sv);
    EXPECT_THROW(Cast<std::string>(u"\u0416"sv), std::bad_cast);

    ASSERT_NE(std::setlocale(LC_CTYPE, ".1252"), nullptr);
    EXPECT_EQ(Cast<std::string>(u"a\u00E4\u20AC"sv), "a\xE4\x80");
    EXPECT_TRUE(Cast<std::u16string>("a\xE4\x80"sv) == u"a\u00E4\u20AC");
    for (const auto other : {u"\u0416"sv, u"\U0001F511"sv, u"a\xD800"sv}) {
        EXPECT_THROW(Cast<std::string>(other), std::bad_cast);
    }

    ASSERT_NE(std::setlocale(LC_CTYPE, ".932"), nullptr);
    EXPECT_EQ(Cast<std::string>(u"\u3042z"sv), "\x82\xA0z");
    EXPECT_TRUE(Cast<std::u16string>("\x82\xA0\0z"sv) == u"\u3042\0z"sv);
    EXPECT_THROW(Cast<std::u16string>("z\x82"sv), std::bad_cast);
    std::setlocale(LC_CTYPE, "C");
}

}  // namespace
