// Many threads of a host over one manager.
#include <algorithm>
#include <atomic>
#include <functional>
#include <iterator>
#include <random>
#include <thread>

#include "ModuleHost.h"

namespace {

using namespace lm_test;
using qor::string16_t;

constexpr std::string_view kApp = "Own = Name + {$n: ' one', ' more'} + $n Unknown = $nobody";

/// Where a localizer's texts come from, and what it answers to a request for a file.
struct Source {
    Kind kind;
    std::string_view text;
    qor::result_t file;
};
constexpr Source kSources[] = {{Kind::File, "app", qor::rcOk},
                               {Kind::Buffer, kApp, qor::rcNotFound},
                               {Kind::File, "none", qor::rcNotFound},
                               {Kind::Buffers, kApp, qor::rcNotImplemented}};
const std::pair<int, std::string> kCultures[] = {{8, "en"}, {13, "de"}, {12, "fr"}};

struct Localizer {
    qor::objptr_t<ILocalizer> object;
    Source source;
    std::string culture;
};

class ConcurrencyTest : public ModuleHost {
protected:
    ConcurrencyTest() {
        for (const auto& [language, culture] : kCultures) {
            tree.Write(culture + "/Locs/common.lt", "Name = Base + '!' Base = '" + culture + "'");
            tree.Write(culture + "/Locs/app.lt", kApp);
            tree.Write(culture + "/app/file", culture);
        }
    }

    Localizer Make(std::size_t source, std::size_t culture) const {
        const auto& [language, name] = kCultures[culture % std::size(kCultures)];
        Localizer made{nullptr, kSources[source % std::size(kSources)], name};
        EXPECT_EQ(CreateLocalizer(made.source.kind, host::ToUtf16(made.source.text),
                                  MakeCulture(language), resolver_.get(), made.object.Ref()),
                  qor::rcOk);
        return made;
    }

    void Visit(const Localizer& shared) {
        const Localizer localizer = shared;  // NOLINT(*-unnecessary-copy-*): a share of its own
        EXPECT_FALSE(module.CanUnload());
        if (localizer.source.text == "none") {
            EXPECT_EQ(localizer.object->HasString(u"own"), qor::rcUnspecifiedError);
            ++failures_;
        } else {
            AskForTexts(localizer);
        }
        AskForFile(localizer);
    }

    std::atomic<std::size_t> failures_{0};

private:
    void AskForTexts(const Localizer& localizer) {
        std::string last;
        const auto heard = lm_test::Make<host::ResolveListener>(
            [&last](auto, const auto&, const auto&, const std::string& value) { last = value; });
        string16_t text;
        for (const auto& [key, ending] :
             {std::pair(u"base", ""), {u"NAME", "!"}, {u"Own", "! one1"}}) {
            EXPECT_EQ(localizer.object->GetResolvedString(key, text, heard.get()), qor::rcOk);
            EXPECT_EQ(host::ToUtf8(text), localizer.culture + ending);
            EXPECT_EQ(last, localizer.culture + ending);
            EXPECT_EQ(localizer.object->HasString(key), qor::rcOk);
        }
        EXPECT_EQ(localizer.object->GetResolvedString(u"unknown", text, nullptr),
                  qor::rcUnspecifiedError);
        ++failures_;
        EXPECT_EQ(localizer.object->HasString(u"none"), qor::rcUnspecifiedError);
    }

    void AskForFile(const Localizer& localizer) const {
        string16_t path;
        qor::objptr_t<qor::IIO> stream;
        EXPECT_EQ(localizer.object->GetPath(u"file", path), localizer.source.file);
        EXPECT_EQ(localizer.object->GetStream(u"file", stream.Ref()), localizer.source.file);
        if (stream) {
            char bytes[8];
            std::uint32_t read = 0;
            EXPECT_EQ(stream->Read(bytes, sizeof bytes, &read), qor::rcOk);
            EXPECT_EQ(std::string(bytes, read), localizer.culture);
            EXPECT_EQ(path.view(), tree.Path(localizer.culture + "/app/file"));
        }
    }

    const qor::objptr_t<IParamResolver> resolver_ = lm_test::Make<Unordered<host::ParamResolver>>(
        [](const std::string& name) { return name == "n" ? std::optional("1") : std::nullopt; });
};

TEST_F(ConcurrencyTest, EveryThreadIsAnsweredAsIfAlone) {
    for (int round = 0; round < 40; ++round) {
        manager = MakeManager();
        ASSERT_EQ(Init(tree.Path(), u"", listener), qor::rcOk);
        std::vector<Localizer> shared;  // nobody has asked them; whoever is last gives them back
        for (std::size_t i = 0; i < 2 * std::size(kSources) * std::size(kCultures); ++i) {
            shared.push_back(Make(i, i / (2 * std::size(kSources))));
        }
        std::atomic<int> waiting{6};
        std::vector<std::thread> threads;
        for (unsigned seed = 0; seed < 6; ++seed) {
            threads.emplace_back([this, &waiting, seed, shared]() mutable {
                const auto object = shared.front().object;
                std::mt19937 engine(seed);
                std::shuffle(shared.begin(), shared.end(), engine);
                for (--waiting; waiting > 0;) {  // all begin together
                    std::this_thread::yield();
                }
                for (int i = 0; i < 200; ++i) {
                    const auto share = object;  // NOLINT(*-unnecessary-copy-*): counted by all
                }
                for (; !shared.empty(); shared.pop_back()) {
                    Visit(shared.back());
                    Visit(Make(engine(), engine()));
                }
            });
        }
        shared.clear();
        std::for_each(threads.begin(), threads.end(), std::mem_fn(&std::thread::join));
    }
    manager = nullptr;
    EXPECT_TRUE(module.CanUnload());
    replaced.emplace_back("localization manager error: .*( 'none.lt'|nobody, error: Not found)\n",
                          ".");
    EXPECT_EQ(Shown(TakeReports()), std::string(failures_, '.'));
}

}  // namespace
