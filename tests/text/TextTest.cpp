// Letter case, and UTF-8 of messages.
#include <gtest/gtest.h>

#include "GlobalLocale.h"
#include "LowerCaseMapping.h"
#include "MessageUtf8.h"

namespace {

using namespace std::literals;
using namespace LocalizationManager::Text;

/// Maps letters that are not ASCII, too.
struct ManyLetters : std::ctype<wchar_t> {
    wchar_t do_tolower(wchar_t letter) const override {
        switch (letter) {
            case L'\u00C4':
                return L'\u00E4';
            case L'\u041A':
                return L'\u043A';
            case L'\u0130':
                return L'i';
            default:
                return std::ctype<wchar_t>::do_tolower(letter);
        }
    }
};

std::u16string Mapped(std::u16string key, const LowerCaseMapping& lowerCase) {
    lowerCase.Map(key, key.data());
    return key;
}

TEST(TextTest, KeysAreLowerCasedUnitByUnitAsTheGlobalLocaleSays) {
    const struct {
        std::u16string key, classic, others;
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
        const lm_test::GlobalLocale global(std::locale({}, new ManyLetters));
        EXPECT_EQ(Mapped(expected.key, classic), expected.others);
        EXPECT_EQ(Mapped(expected.key, LowerCaseMapping()), expected.others);
    }
    const lm_test::GlobalLocale turkish(std::locale({}, new lm_test::TurkishLetters));
    EXPECT_EQ(Mapped(u"TITLE.A", LowerCaseMapping()), u"t\u0131tle.a");
}

TEST(TextTest, EveryUnitOfAMessageIsEncodedByItself) {
    EXPECT_EQ(ToUtf8(u"a\0\u007F\u0080\u07FF\u0800\uFFFF"sv),
              "a\0\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF"sv);
    EXPECT_EQ(ToUtf8(u"\U0001F511\xD800"), "\xED\xA0\xBD\xED\xB4\x91\xED\xA0\x80");
}

}  // namespace
