// Reading and decoding of whole files.
#include "FileContent.h"

#include <gtest/gtest.h>

#include <boost/numeric/conversion/cast.hpp>

#include "PeakMemory.h"
#include "SystemTraits.h"
#include "TempTree.h"

namespace {

using namespace std::literals;
using LocalizationManager::File::GetFileContent;

TEST(FileContentTest, TextIsUtf8WithoutMarkAndZerosAtTheEnd) {
    const lm_test::TempTree tree;
    const std::pair<std::string_view, std::u16string_view> cases[] = {
        {"", u""},
        {"\xEF\xBB\xBF", u""},
        {"\xEF\xBB\xBF\xEF\xBB\xBFx", u"\uFEFFx"},
        {"\xEF\xBB\xBF\x41\0\0"sv, u"A"},
        {"a\0b\0"sv, u"a\0b"sv},
        {"\xEF\xBB\xBF\0\0"sv, u"\0\0\0\0\0"sv},
        {"\xD0\xB0\xF0\x9D\x84\x9E\r\n", u"\u0430\U0001D11E\r\n"},
    };
    for (const auto& [bytes, text] : cases) {
        tree.Write("text", bytes);
        EXPECT_TRUE(GetFileContent(tree.Path("text")) == text) << testing::PrintToString(bytes);
    }
}

TEST(FileContentTest, WhatIsNoCharacterIsReplaced) {
    const lm_test::TempTree tree;
    const std::pair<std::string_view, std::u16string_view> cases[] = {
        {"\xEF\xBB", u"\uFFFD"},
        {"a\xE4z", u"a\uFFFDz"},
        {"a\xF1\x80z", u"a\uFFFDz"},
        {"\xED\xA0\x80!", u"\uFFFD\uFFFD\uFFFD!"},
    };
    for (const auto& [bytes, text] : cases) {
        tree.Write("text", bytes);
        const std::u16string content = GetFileContent(tree.Path("text"));
        if (lm_test::kCountsIllFormedParts) {
            EXPECT_TRUE(content == text) << testing::PrintToString(bytes);
        } else {  // how many, and what is lost with them, is the system's affair
            EXPECT_EQ(content.find(u'\uFFFD'), text.find(u'\uFFFD'));
        }
    }
}

TEST(FileContentTest, AFileOfTwoGibibytesAndMoreIsRefusedUnread) {
    const lm_test::TempTree tree;
    const std::int64_t before = lm_test::PeakMemory();
    for (const std::uintmax_t size : {(1ULL << 31U) + 3, (1ULL << 32U) - 1, 1ULL << 32U}) {
        std::filesystem::resize_file(tree.Write("huge", "\xEF\xBB\xBF"), size);
        EXPECT_THROW(GetFileContent(tree.Path("huge")), boost::numeric::positive_overflow) << size;
    }
    EXPECT_THROW(LocalizationManager::File::DecodeFileContent("x", 1ULL << 31U),
                 boost::numeric::positive_overflow);
    EXPECT_LT(lm_test::PeakMemory() - before, 256 * 1024 * 1024) << "bytes of memory at the peak";
}

}  // namespace
