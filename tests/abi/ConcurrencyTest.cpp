// Many threads of a host over one manager.
#include <array>
#include <filesystem>
#include <fstream>
#include <thread>

#include "AbiHost.h"

namespace {

using namespace abi_host;

constexpr int kThreads = 6;
constexpr int kRounds = 40;

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
            tree.Write(culture + "/Locs/app.lt", "Own = Name + {$n: ' one', ' more'} + $n");
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

TEST_F(ConcurrencyTest, CulturesMayChangeFromThreadToThread) {
    const std::pair<std::uint32_t, std::u16string> cultures[] = {
        {8, u"en"}, {13, u"de"}, {12, u"fr"}};
    OnThreads([&](int thread) {
        for (int round = 0; round < kRounds; ++round) {
            const auto& [language, name] = cultures[(thread + round) % 3];
            const Localizer localizer = MakeLocalizer(u"app", Culture(language));
            Object stream;
            EXPECT_EQ(localizer.Call(kGetStream, String16(u"file"), stream.Out()), kOk);
            EXPECT_EQ(localizer.Get(u"own"), name + u"! one1");
            EXPECT_EQ(localizer.Get(u"name"), name + u"!");
            std::int64_t size = 0;
            EXPECT_EQ(stream.Call(7, &size), kOk);
            EXPECT_EQ(size, 2);
        }
    });
}

TEST_F(ConcurrencyTest, SharedLocalizersTakeTheirFirstRequestsTogether) {
    for (int round = 0; round < kRounds; ++round) {
        std::array<Localizer, 3> shared = {MakeLocalizer(u"app"), MakeLocalizer(u"app"), {}};
        EXPECT_EQ(CreateLocalizer(kFromBuffers, u"Own = Name + {$n: ' one', ' more'} + $n",
                                  Culture(), &resolver, shared[2].Out()),
                  kOk);
        OnThreads([&](int thread) {
            const Localizer& localizer = shared[static_cast<std::size_t>(thread) % 3];
            localizer.Call(0);
            EXPECT_EQ(localizer.Call(kHasString, String16(u"none")), kUnspecifiedError);
            EXPECT_EQ(localizer.Get(u"own"), u"en! one1");
            localizer.Call(1);
        });
        EXPECT_EQ(shared[2].References(), 1U);
        MakeLocalizer(u"app", Culture(13));  // the manager forgets the texts
    }
}

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
                localizer.Call(kHasString, String16(u"name"));
                MakeLocalizer(u"late").Call(kHasString, String16(u"name"));
            }
        });
        EXPECT_EQ(MakeLocalizer(u"late").Get(u"name"), u"late");
        MakeLocalizer(u"app", Culture(13));
    }
}

}  // namespace
