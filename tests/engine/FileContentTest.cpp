// Reading and decoding of whole files.
#include "FileContent.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <boost/numeric/conversion/cast.hpp>

#include "TempTree.h"

namespace {

using namespace std::literals;
using LocalizationManager::File::GetFileContent;

TEST(FileContentTest, TextIsUtf8WithoutMarkAndZerosAtTheEnd) {
    const lm_test::TempTree tree;
    const std::pair<std::string_view, std::u16string_view> cases[] = {
        {"", u""},
        {"\xEF\xBB\xBF", u""},
        {"\xEF\xBB", u"\uFFFD"},
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

TEST(FileContentTest, AFileOfTwoGibibytesAndMoreIsRefusedUnread) {
    const lm_test::TempTree tree;
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    const long before = usage.ru_maxrss;
    for (const std::uintmax_t size : {(1ULL << 31U) + 3, (1ULL << 32U) - 1, 1ULL << 32U}) {
        std::filesystem::resize_file(tree.Write("huge", "\xEF\xBB\xBF"), size);
        EXPECT_THROW(GetFileContent(tree.Path("huge")), boost::numeric::positive_overflow) << size;
    }
    ::getrusage(RUSAGE_SELF, &usage);
    EXPECT_LT(usage.ru_maxrss - before, 256 * 1024) << "KiB of memory at its peak";
}

}  // namespace
