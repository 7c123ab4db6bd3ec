// Letter case, and UTF-8 of messages.
#include <gtest/gtest.h>

#include <locale>

#include "GlobalLocale.h"
#include "LowerCaseMapping.h"
#include "Utf8.h"

namespace {

using namespace std::literals;
using namespace LocalizationManager::Text;

/// Maps one ASCII letter unusually.
struct TurkishLetters : std::ctype<wchar_t> {
    wchar_t do_tolower(wchar_t letter) const override {
        return letter == L'I' ? L'\u0131' : std::ctype<wchar_t>::do_tolower(letter);
    }
};

std::u16string Mapped(std::u16string key, const LowerCaseMapping& lowerCase) {
    lowerCase.Map(key, key.data());
    return key;
}

TEST(TextTest, KeysAreLowerCasedUnitByUnitAsTheGlobalLocaleSays) {
    const struct {
        std::u16string key, classic, english;
    } cases[] = {
        {u"Key_42.A\0Z"s, u"key_42.a\0z"s, u"key_42.a\0z"s},
        {u"\u00C4\u041A", u"\u00C4\u041A", u"\u00E4\u043A"},
        {u"\u0130", u"\u0130", u"i"},
        {u"\U00010400", u"\U00010400", u"\U00010400"},  // a capital letter, but of two units
        {u"A\xD800Z", u"a\xD800z", u"a\xD800z"},
    };
    for (const auto& expected : cases) {
        const LowerCaseMapping classic;
        EXPECT_EQ(Mapped(expected.key, classic), expected.classic);
        const lm_test::GlobalLocale english("en_US.UTF-8");
        EXPECT_EQ(Mapped(expected.key, classic), expected.english);
        EXPECT_EQ(Mapped(expected.key, LowerCaseMapping()), expected.english);
    }
    const std::locale before = std::locale::global(std::locale({}, new TurkishLetters));
    EXPECT_EQ(Mapped(u"TITLE.A", LowerCaseMapping()), u"t\u0131tle.a");
    std::locale::global(before);
}

TEST(TextTest, EveryUnitOfAMessageIsEncodedByItself) {
    EXPECT_EQ(ToUtf8(u"a\0\u007F\u0080\u07FF\u0800\uFFFF"sv),
              "a\0\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF"sv);
    EXPECT_EQ(ToUtf8(u"\U0001F511\xD800"), "\xED\xA0\xBD\xED\xB4\x91\xED\xA0\x80");
}

}  // namespace
