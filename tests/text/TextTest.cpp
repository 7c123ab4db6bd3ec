// Texts of the engine: letter case and UTF-8.
#include <gtest/gtest.h>

#include "GlobalLocale.h"
#include "LowerCase.h"
#include "Utf8.h"

namespace {

using namespace std::literals;
using namespace LocalizationManager::Text;

TEST(LowerCaseTest, FollowsTheGlobalLocaleUnitByUnit) {
    const struct {
        std::u16string key;
        std::u16string classic;
        std::u16string english;
    } cases[] = {
        {u"", u"", u""},
        {u"Key_42.A\0Z"s, u"key_42.a\0z"s, u"key_42.a\0z"s},
        {u"\u00C4\u041A\u041B\u042E\u0427", u"\u00C4\u041A\u041B\u042E\u0427",
         u"\u00E4\u043A\u043B\u044E\u0447"},
        {u"\u0130", u"\u0130", u"i"},
        {u"\U00010400", u"\U00010400", u"\U00010400"},  // a capital letter, but of two units
        {u"A\xD800Z", u"a\xD800z", u"a\xD800z"},
    };
    for (const auto& expected : cases) {
        EXPECT_EQ(LowerCase(expected.key), expected.classic);
        const lm_test::GlobalLocale english("en_US.UTF-8");
        EXPECT_EQ(LowerCase(expected.key), expected.english);
    }
}

TEST(Utf8TextTest, EveryUnitIsEncodedByItself) {
    EXPECT_EQ(ToUtf8(u"a\0\u007F\u0080\u07FF\u0800\uFFFF"sv),
              "a\0\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF"sv);
    EXPECT_EQ(ToUtf8(u"\U0001F511"), "\xED\xA0\xBD\xED\xB4\x91");
    EXPECT_EQ(ToUtf8(u"\xDC00\xD800"), "\xED\xB0\x80\xED\xA0\x80");
}

TEST(Utf8TextTest, DecodesPairsAndReplacesWhatIsIllFormed) {
    EXPECT_EQ(FromUtf8("\xF0\x9F\x94\x91 \xE2\x82 \0x"sv), u"\U0001F511 \uFFFD \0x"sv);
}

}  // namespace
