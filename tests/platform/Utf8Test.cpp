// UTF-8 decoding of the platform layer.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "Platform.h"

namespace {

using namespace std::literals;

TEST(Utf8Test, EveryMaximalIllFormedPartBecomesOneReplacement) {
    const std::pair<std::string_view, std::u16string_view> cases[] = {
        // Well-formed, to the boundaries.
        {"", u""},
        {"a\0b\x7F\xC2\x80\xDF\xBF"sv, u"a\0b\x7F\u0080\u07FF"sv},
        {"\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF", u"\u0800\uD7FF\uE000\uFFFF"},
        {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", u"\U00010000\U0010FFFF"},
        {"\xEF\xBB\xBFx", u"\uFEFFx"},
        // Ill-formed; "?" stands for the replacement character.
        {"\x80z\xBF\xBFz\xFE\xFF", u"?z??z??"},
        {"\xC0\xAFz\xC1\xBFz\xE0\x9F\xBFz\xF0\x8F\xBF\xBF", u"??z??z???z????"},  // overlong
        {"\xED\xA0\x80z\xED\xBF\xBF", u"???z???"},                               // surrogates
        {"\xF4\x90\x80\x80z\xF5\x80\x80\x80", u"????z????"},                     // too large
        {"\xC3z\xE2\x82z\xF0\x9Fz\x94\xF0\x9F\x94z", u"?z?z?z??z"},              // cut off
        {"\xE2\x82\xE2\x82\xAC\xF1\x80\x80\xE1\x80\xC2z", u"?\u20AC???z"},
        {"\xC3", u"?"},
        {"\xE2\x82", u"?"},
        {"\xF0\x9F\x94", u"?"},
    };
    for (const auto& [bytes, expected] : cases) {
        std::u16string units(bytes.size(), u'-');
        units.resize(Platform::DecodeUtf8(bytes, units.data()));
        std::replace(units.begin(), units.end(), u'\uFFFD', u'?');
        EXPECT_EQ(units, expected) << testing::PrintToString(bytes);
    }
}

}  // namespace
