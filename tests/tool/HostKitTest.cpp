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

TEST(HostReport, IsCutAroundTheMistakeWithTheCaretBelowIt) {
    const std::string many(3000, '.');
    const std::string line = "\"" + many + "\tä\uD55C! " + many + "\"";
    // The tab stands at column 3001 and leads to 3005.
    const std::string report = "place\n" + line + "\n" + std::string(3007, ' ') + "^- expecting";
    const std::string shown = host::Shortened(report);
    const std::size_t caret = shown.find('^');
    const std::string cut = shown.substr(6, shown.find('\n', 6) - 6);
    EXPECT_EQ(caret - shown.rfind('\n', caret) - 1, host::ToUtf16(cut).find('!'));
    EXPECT_EQ(cut.find('\t'), cut.npos);
    EXPECT_LT(shown.size(), 400U);
    EXPECT_LT(host::Shortened(many + report).size(), 1000U);
    EXPECT_EQ(host::Shortened(many).substr(295, 10), "..... ... ");
    EXPECT_EQ(host::Shortened("short"), "short");
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

TEST(HostManager, RefusesWhatLeadsOutOfTheTreeOfTextsFromMemoryToo) {
    std::string heard;
    const auto services =
        host::Make<host::ServiceLocator>([&](std::uint32_t level, std::string_view text) {
            heard.append(std::to_string(level)).append(" ").append(text).append("\n");
        });
    const host::Module module(MODULE);
    const auto manager = module.CreateManager(*services);
    ASSERT_EQ(manager->Init(u".", u""), qor::rcOk);
    const lm::Culture inside{lm::Language::English, "au", "x"};
    const lm::Culture outside{lm::Language::English, "au", "x\\y"};
    qor::objptr_t<lm::ILocalizer> localizer;
    EXPECT_EQ(manager->CreateLocalizerFromBuffer(u"", outside, nullptr, localizer.Ref()),
              qor::rcProhibited);
    EXPECT_EQ(manager->CreateLocalizerFromBuffer(u"", inside, nullptr, nullptr),
              qor::rcInvalidArgument);
    ASSERT_EQ(manager->CreateLocalizerFromBuffer(u"", inside, nullptr, localizer.Ref()), qor::rcOk);
    EXPECT_EQ(localizer->HasResource(u"../x"), qor::rcProhibited);
    EXPECT_EQ(localizer->HasResource(u"x"), qor::rcUnspecifiedError);
    EXPECT_EQ(
        heard,
        "300 localization manager error: refused culture 'au-x\\y', error: the name leads out "
        "of the tree\n300 localization manager error: refused file '../x', error: the name "
        "leads out of the tree\n");
}

}  // namespace
