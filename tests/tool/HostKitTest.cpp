// The host kit where the tool does not show it.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "localization_manager/IConstruct.h"
#include "localization_manager/host/host.h"

namespace {

namespace lm = localization_manager;
namespace host = localization_manager::host;

TEST(HostText, ConvertsBothWaysAndReplacesWhatIsMalformed) {
    struct Case {
        std::string utf8;
        std::u16string utf16;
        std::string back;  // empty when the same as `utf8`
    };
    using namespace std::string_literals;
    const std::vector<Case> cases = {
        {"", u"", ""},
        {"a\0b"s, u"a\0b"s, ""},
        {"\x7F\xC2\x80\xDF\xBF", u"\u007F\u0080\u07FF", ""},
        {"\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF", u"\u0800\uD7FF\uE000\uFFFF", ""},
        {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", u"\U00010000\U0010FFFF", ""},
        {"\xC0\xAF|\xFF", u"\uFFFD\uFFFD|\uFFFD", "\uFFFD\uFFFD|\uFFFD"},
        {"\xE2\x82|\xF0\x9F\x98", u"\uFFFD|\uFFFD", "\uFFFD|\uFFFD"},
        {"\xE0\x9F\xBF", u"\uFFFD\uFFFD\uFFFD", "\uFFFD\uFFFD\uFFFD"},
        {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD", "\uFFFD\uFFFD\uFFFD"},
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD", "\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD", "\uFFFD\uFFFD\uFFFD\uFFFD"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(host::ToUtf16(c.utf8), c.utf16) << testing::PrintToString(c.utf8);
        EXPECT_EQ(host::ToUtf8(c.utf16), c.back.empty() ? c.utf8 : c.back);
    }
    const std::u16string unpaired = {0xDC00, u'a', 0xD800, u'b', 0xD83D, 0xD83D, 0xDE00, 0xDBFF};
    EXPECT_EQ(host::ToUtf8(unpaired), "\uFFFDa\uFFFDb\uFFFD\U0001F600\uFFFD");
}

TEST(HostTracer, GrantsLevelsInRangeAndKeepsTheTextOfAnEnlargedRecord) {
    std::vector<std::pair<std::uint32_t, std::string>> heard;
    const auto tracer = host::Make<host::Tracer>(
        [&](std::uint32_t level, std::string_view text) { heard.emplace_back(level, text); }, 300U,
        500U);
    char* record = nullptr;
    for (const std::uint32_t declined : {299U, 501U}) {
        EXPECT_NE(tracer->RequestRecord(declined, &record, 8), qor::rcOk);
        EXPECT_EQ(record, nullptr);
    }
    ASSERT_EQ(tracer->RequestRecord(500, &record, 4), qor::rcOk);
    std::string text = "four";
    text.copy(record, 4);
    ASSERT_EQ(tracer->RequestRecord(qor::trace_level::Enlarge, &record, 100'000), qor::rcOk);
    text.append(99'996, 'x').copy(record + 4, 99'996, 4);
    EXPECT_EQ(tracer->WriteRecord(record, 100'000), qor::rcOk);
    EXPECT_EQ(heard, decltype(heard)({{500, text}}));
}

TEST(HostModule, StaysLoadedWhileItsObjectsLiveAndSaysWhyOneCannotBeMade) {
    const auto services = host::Make<host::ServiceLocator>(host::Report());
    qor::objptr_t<lm::ILocalizationManager> survivor;
    {
        const host::Module module(MODULE);
        EXPECT_TRUE(module.CanUnload());
        const auto construct =
            module.Create<lm::IConstruct>(lm::class_id::LocalizationManager, *services);
        EXPECT_FALSE(module.CanUnload());
        EXPECT_EQ(construct->Construct(nullptr), qor::rcInvalidArgument);
        try {
            module.Create<lm::IErrorListener>(lm::class_id::CultureConverter, *services);
            FAIL();
        } catch (const host::ResultError& error) {
            EXPECT_EQ(error.code(), qor::rcInterfaceNotSupported);
            EXPECT_STREQ(error.what(), "cannot create an object: Interface not supported");
        }
        survivor = module.CreateManager(*services);
    }
    EXPECT_EQ(survivor->Init(u"", u""), qor::rcInvalidState);
}

TEST(HostModule, RefusesWhatIsNoModule) {
    EXPECT_THROW(host::Module("/nowhere/module.so"), std::runtime_error);
    EXPECT_THROW(host::Module("libc.so.6"), std::runtime_error);
}

}  // namespace
