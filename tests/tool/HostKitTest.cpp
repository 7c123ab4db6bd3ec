// The host kit where the tool does not show it.
#include <gtest/gtest.h>

#include "ErrorText.h"
#include "localization_manager/IConstruct.h"
#include "localization_manager/host/host.h"

namespace {

namespace lm = localization_manager;
namespace host = localization_manager::host;

TEST(HostText, ReplacesWhatIsNoCharacter) {
    const std::u16string units = {0xDC00, 0xD800, u'b', 0xD83D, 0xD83D, 0xDE00, 0xDBFF};
    EXPECT_EQ(host::ToUtf8(units), "\uFFFD\uFFFDb\uFFFD\U0001F600\uFFFD");
    EXPECT_EQ(host::ToUtf16("\xE2\x82|\U0001F600"), u"\uFFFD|\U0001F600");
}

TEST(HostTracer, GrantsLevelsInRangeAndKeepsTheTextOfAnEnlargedRecord) {
    std::string heard;
    const host::Report report = [&](std::uint32_t level, std::string_view text) {
        heard.append(std::to_string(level)).append(text);
    };
    const auto tracer = host::Make<host::Tracer>(report, 300U, 500U);
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
    EXPECT_EQ(heard, "500" + text);
}

TEST(HostModule, StaysLoadedWhileItsObjectsLiveAndSaysWhyOneCannotBeMade) {
    const auto services = host::Make<host::ServiceLocator>(host::Report());
    qor::objptr_t<lm::ILocalizationManager> survivor;
    {
        const host::Module module(MODULE);
        EXPECT_TRUE(module.CanUnload());
        survivor = module.CreateManager(*services);
        EXPECT_FALSE(module.CanUnload());
        EXPECT_EQ(lm_test::ErrorText<host::ResultError>([&] {
                      module.Create<lm::IConstruct>(lm::class_id::CultureConverter, *services);
                  }),
                  "cannot create an object: Interface not supported");
    }
    EXPECT_EQ(survivor->Init(u"", u""), qor::rcInvalidState);
    EXPECT_THROW(host::Module("libc.so.6"), std::runtime_error);
}

}  // namespace
