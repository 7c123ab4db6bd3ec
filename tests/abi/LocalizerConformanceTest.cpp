// What every kind of localizer answers, and reports when it cannot, in every locale.
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <tuple>

#include "AbiHost.h"
#include "GlobalLocale.h"

namespace {

using namespace abi_host;

/// The parameters: which operation of the manager makes the localizer, from a file or from memory,
/// and the global locale.
class LocalizerConformanceTest
    : public AbiTest,
      public testing::WithParamInterface<std::tuple<ManagerSlot, const char*>> {
protected:
    LocalizerConformanceTest() {
        EXPECT_EQ(Init(tree.Path(), tree.Path(), &listener), kOk);
        resolver.values = {{u"one", u"1"}, {u"word", u"x"}, {u"Who", u"Ada"}};
        replaced.emplace_back(kind_ == kFromFiles     ? "<root>/neutral/Locs/app.lt|\\bapp\\b"
                              : kind_ == kFromBuffers ? "x_<uuid>"
                                                      : "<uuid>",
                              "<scope>");
        replaced.emplace_back(kind_ == kFromBuffers ? ":400D" : ":265D", ":<line>D");
        replaced.emplace_back("\n", "\u240A");
    }

    Localizer Make(const std::string& source, const Culture& culture, ParamResolver* params) {
        tree.Write("neutral/Locs/app.lt", kind_ == kFromFiles ? source : "never read");
        Localizer made;
        EXPECT_EQ(CreateLocalizer(kind_, kind_ == kFromFiles ? u"app" : Wide(source), culture,
                                  params, made.Out()),
                  kOk);
        return made;
    }

    /// What the listeners hear of a request for a text.
    std::string Answer(const Localizer& localizer, const std::string& key) {
        String16 text(u"before");
        ResolveListener resolved;
        const Result code = localizer.Call(kGetResolved, String16(Wide(key)), &text, &resolved);
        const std::string report = listener.Take();
        EXPECT_EQ(code, report.empty() ? kOk : kUnspecifiedError);
        const std::string heard = resolved.Take();
        EXPECT_EQ(text.Narrow() + '\n',
                  report.empty() ? heard.substr(heard.rfind('|') + 1) : "before\n");
        const bool isThere = localizer.Call(kHasString, String16(Wide(key))) == kOk;
        const std::string again = listener.Take();
        EXPECT_EQ(again, again.empty() ? "" : report);
        return heard + report + (isThere ? "" : again.empty() ? "(no key)" : "(again)");
    }

    static std::u16string Wide(const std::string& text) {
        return std::filesystem::path(text).u16string();
    }

    const ManagerSlot kind_ = std::get<0>(GetParam());
    const lm_test::GlobalLocale locale_{std::get<1>(GetParam())};
};

INSTANTIATE_TEST_SUITE_P(FileBufferAndBuffers, LocalizerConformanceTest,
                         testing::Combine(testing::Values(kFromFiles, kFromBuffer, kFromBuffers),
                                          testing::Values("C", "en_US.UTF-8")));

TEST_P(LocalizerConformanceTest, RequestsAreAnsweredAsListed) {
    const std::string arrow = " \u2192 ";
    std::ifstream file(ANSWERS);
    for (std::string line; std::getline(file, line);) {
        const std::size_t end = line.find(arrow);
        std::istringstream words(line.substr(0, end));
        std::string name, number, key, source;
        std::uint32_t language = 0;
        if (end != std::string::npos) {
            words >> language >> std::quoted(name) >> std::quoted(number) >> key;
            std::getline(words >> std::ws, source);
            resolver.values[u"n"] = Wide(number);
            resolver.throws = number == "throws";
            ParamResolver* const params = number == "none" ? nullptr : &resolver;
            const Localizer localizer = Make(source, Culture(language, name), params);
            EXPECT_EQ(Shown(Answer(localizer, key)), line.substr(end + arrow.size()));
        } else if (line[0] != '#') {
            words >> name;
            std::getline(words >> std::ws, source);
            tree.Write(name, source);
        }
    }
    EXPECT_FALSE(resolver.values[u"n"].empty());
}

TEST_P(LocalizerConformanceTest, ListenersThatThrowChangeNoResult) {
    tree.Write("neutral/Locs/common.lt", "");
    listener.throws = true;
    EXPECT_NE(Answer(Make("", Culture(), nullptr), "none"), "");
    EXPECT_NE(Answer(Make("?", Culture(), nullptr), "none"), "");
    ResolveListener resolved;
    resolved.throws = true;
    String16 text(u"before");
    EXPECT_EQ(Make("a=''", Culture(), nullptr).Call(kGetResolved, String16(u"a"), &text, &resolved),
              kUnspecifiedError);
    EXPECT_EQ(text.Text(), u"before");
    EXPECT_NE(listener.Take(), "");
}

}  // namespace
