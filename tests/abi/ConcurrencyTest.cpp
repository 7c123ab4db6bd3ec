// Many threads of a host over one manager.
#include <array>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <thread>
#include <tuple>

#include "AbiHost.h"

namespace {

using namespace abi_host;

constexpr int kThreads = 6;
constexpr int kRounds = 40;
constexpr std::string_view kApp = "Own = Name + {$n: ' one', ' more'} + $n Unknown = $nobody";
const std::pair<std::uint32_t, std::u16string> kCultures[] = {{8, u"en"}, {13, u"de"}, {12, u"fr"}};

/// Runs a function on several threads that begin together.
template <class Function>
void OnThreads(Function function) {
    std::atomic<int> waiting{kThreads};
    std::vector<std::thread> threads;
    threads.reserve(kThreads);
    for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back([&, i] {
            for (--waiting; waiting > 0;) {
                std::this_thread::yield();
            }
            function(i);
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

class ConcurrencyTest : public AbiTest {
protected:
    ConcurrencyTest() {
        for (const std::string culture : {"en", "de", "fr"}) {
            tree.Write(culture + "/Locs/common.lt",
                       std::string("Name = Base + '!' Base = '").append(culture).append("'"));
            tree.Write(culture + "/Locs/app.lt", kApp);
            tree.Write(culture + "/app/file", culture);
        }
        tree.Write("en/Locs/late.lt", "Own = 'own'");
        EXPECT_EQ(Init(tree.Path(), u"", &listener), kOk);
        resolver.values.emplace(u"n", u"1");
    }

    /// Replaces a file so that readers see the old or the new one.
    void Replace(const std::string& name, const std::string& bytes) {
        const std::string fresh = name + std::to_string(++written_);
        std::filesystem::rename(tree.Write(fresh, bytes), tree.Root() / name);
    }

private:
    std::atomic<int> written_{0};
};

TEST_F(ConcurrencyTest, OneCultureParsesTheCommonSourceOnceEvenWhileItChanges) {
    for (int round = 0; round < kRounds / 4; ++round) {
        std::array<std::u16string, kThreads> seen;
        OnThreads([&](int thread) {
            Replace("en/Locs/common.lt",
                    std::string("Name = Base Base = '").append(std::to_string(thread)).append("'"));
            const Localizer first = MakeLocalizer(u"app");
            seen[static_cast<std::size_t>(thread)] = first.Get(u"name");
            for (int i = 0; i < kRounds / 4; ++i) {  // lookups while others build
                const Localizer next = MakeLocalizer(u"app");
                EXPECT_EQ(next.Get(u"name"), first.Get(u"base"));
            }
        });
        for (const std::u16string& text : seen) {
            EXPECT_EQ(text, seen[0]);
        }
        MakeLocalizer(u"app", Culture(13));
    }
}

TEST_F(ConcurrencyTest, CommonSourceMayGetItsFirstTextsWhileOthersAreServed) {
    for (int round = 0; round < kRounds / 4; ++round) {
        Replace("en/Locs/common.lt", "; nothing yet");
        OnThreads([&](int thread) {
            const Localizer localizer = MakeLocalizer(u"late");
            EXPECT_EQ(localizer.Call(kHasString, String16(u"own")), kOk);
            if (thread == 0) {
                Replace("en/Locs/common.lt", "Name = 'late'");
            }
            for (int i = 0; i < kRounds; ++i) {
                EXPECT_TRUE(localizer.Call(kHasString, String16(u"name")) != kOk || thread != 0);
                MakeLocalizer(u"late").Call(kHasString, String16(u"name"));
            }
        });
        EXPECT_EQ(MakeLocalizer(u"late").Get(u"name"), u"late");
        MakeLocalizer(u"app", Culture(13));
    }
}

/// Threads that have an object of each kind at most, and do one thing after the other with them.
class EverythingAtOnceTest : public ConcurrencyTest {
protected:
    enum { kFactory, kManager, kLocalizer, kStream, kObjects };
    /// What a thread has; others may hold the same objects, apart from the stream.
    struct Holding {
        std::size_t Draw(std::size_t bound) { return engine() % bound; }

        std::mt19937 engine;
        std::array<Object, kObjects> objects = {};
        std::size_t kind = 0;      // of the localizer
        std::size_t culture = 0;   // of the localizer
        std::string content = {};  // of the stream
    };
    using Own = std::unique_ptr<Holding>;
    using Action = void (EverythingAtOnceTest::*)(Own&);

    void Act(Own& own) {
        constexpr Action kActions[] = {
            &EverythingAtOnceTest::MakeLocalizer, &EverythingAtOnceTest::AskForText,
            &EverythingAtOnceTest::AskForFile, &EverythingAtOnceTest::HandOver};
        if (own->objects[kLocalizer].get() == nullptr) {
            MakeLocalizer(own);
        }
        EXPECT_EQ(CanUnload(), kFalse);
        (this->*kActions[own->Draw(std::size(kActions))])(own);
        if (own->Draw(3) == 0) {
            own->objects[own->Draw(kObjects)].Reset();
        }
    }

    void MakeLocalizer(Own& own) {
        auto& [factory, from, localizer, stream] = own->objects;
        if (from.get() == nullptr) {
            void* const locator = &services;
            ErrorListener* const reportsTo = &listener;
            EXPECT_EQ(GetObjectFactory(locator, kManagerClass, factory.Out()), kOk);
            EXPECT_EQ(factory.Call(3, locator, kManagerId, from.Out()), kOk);
            EXPECT_EQ(from.Call(kInitEx, String16(tree.Path()), String16(), &reportsTo), kOk);
        }
        const auto& [slot, text, file] = kKinds[own->kind = own->Draw(std::size(kKinds))];
        own->culture = own->Draw(std::size(kCultures));
        EXPECT_EQ(CreateLocalizer(slot, std::u16string(text.begin(), text.end()),
                                  Culture(kCultures[own->culture].first), &resolver,
                                  localizer.Out(), u"", &from),
                  kOk);
    }

    void AskForText(Own& own) {
        const Object& localizer = own->objects[kLocalizer];
        const std::size_t which = own->Draw(std::size(kTexts));
        const auto& [key, ending] = kTexts[which];
        const bool hasSource = own->kind != kMissing;
        const bool hasText = hasSource && which < 3;
        String16 text;
        ResolveListener heard;
        EXPECT_EQ(localizer.Call(kGetResolved, String16(key), &text, &heard),
                  hasText ? kOk : kUnspecifiedError);
        EXPECT_EQ(text.Text(), hasText ? kCultures[own->culture].second + ending : u"");
        const std::string told = heard.Take();
        EXPECT_EQ(told.substr(told.rfind('|') + 1), hasText ? text.Narrow() + '\n' : "");
        EXPECT_EQ(localizer.Call(kHasString, String16(key)),
                  hasSource && which < 4 ? kOk : kUnspecifiedError);
        failures += hasText ? 0U : hasSource ? 1U : 2U;
    }

    void AskForFile(Own& own) {
        const Object& localizer = own->objects[kLocalizer];
        const Result expected = std::get<Result>(kKinds[own->kind]);
        const String16 file(u"file");
        String16 path;
        EXPECT_EQ(localizer.Call(kGetPath, file, &path), expected);
        EXPECT_EQ(localizer.Call(kHasResource, file),
                  expected == kNotFound ? kUnspecifiedError : expected);
        EXPECT_EQ(localizer.Call(kGetStream, file, own->objects[kStream].Out()), expected);
        own->content = String16(kCultures[own->culture].second).Narrow();
        EXPECT_TRUE(path.size == 0 || path.Narrow() == tree.Root() / own->content / "app/file");
    }

    /// Leaves the stream and a share in all else to others, and may go on with what they left.
    void HandOver(Own& own) {
        std::array<Object, kObjects>& objects = own->objects;
        if (objects[kStream].get() != nullptr) {
            char bytes[8];
            std::uint32_t read = 0;
            EXPECT_EQ(objects[kStream].Call(5, 0, std::int64_t{1}, nullptr), kOk);
            EXPECT_EQ(objects[kStream].Call(3, &bytes[0], 8U, &read), kOk);
            EXPECT_EQ(std::string(bytes, read), own->content.substr(1));
        }
        Own left(
            new Holding{std::mt19937(own->engine()), {}, own->kind, own->culture, own->content});
        for (std::size_t i = 0; i < kObjects; ++i) {
            if (objects[i].get() != nullptr) {
                objects[i].Call(0);
                *left->objects[i].Out() = objects[i].get();
            }
        }
        objects[kStream].Reset();
        left.reset(exchange[own->Draw(2)].exchange(left.release(), std::memory_order_acq_rel));
        if (left != nullptr && own->Draw(2) != 0) {
            own = std::move(left);
        }
    }

    /// Where a localizer's texts come from, and what it answers to a request for a file.
    static constexpr std::tuple<ManagerSlot, std::string_view, Result> kKinds[] = {
        {kFromFiles, "app", kOk},
        {kFromBuffer, kApp, kNotFound},
        {kFromBuffers, kApp, kNotImplemented},
        {kFromFiles, "none", kNotFound}};
    static constexpr std::size_t kMissing = 3;
    /// Keys and what follows the culture in their texts; the last two have none, the last is no key.
    static constexpr std::pair<const char16_t*, const char16_t*> kTexts[] = {
        {u"base", u""}, {u"NAME", u"!"}, {u"Own", u"! one1"}, {u"unknown", u""}, {u"none", u""}};

    std::array<std::atomic<Holding*>, 2> exchange = {};  // what threads left for each other
    std::atomic<std::size_t> failures{0};
};

TEST_F(EverythingAtOnceTest, IsAnsweredAsIfAlone) {
    manager.Reset();
    OnThreads([&](int thread) {
        Own own(new Holding{std::mt19937(static_cast<unsigned>(thread))});
        for (int i = 0; i < 40 * kRounds; ++i) {
            Act(own);
        }
    });
    for (const std::atomic<Holding*>& left : exchange) {
        delete left.load();
    }
    EXPECT_EQ(CanUnload(), kOk);
    replaced.emplace_back(
        "localization manager error: .*( 'none.lt'|Key 'none' not found|nobody, error: Not "
        "found)\n",
        ".");
    EXPECT_EQ(Shown(listener.Take()), std::string(failures, '.'));
}

}  // namespace
