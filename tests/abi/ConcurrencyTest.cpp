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
        EXPECT_EQ(manager.InitEx(tree.Path(), u"", &listener), kOk);
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
            Stream stream;
            EXPECT_EQ(localizer.GetStream(u"file", stream.Out()), kOk);
            EXPECT_EQ(localizer.Get(u"own"), name + u"! one1");
            EXPECT_EQ(localizer.Get(u"name"), name + u"!");
            char bytes[4] = {};
            std::uint32_t read = 0;
            EXPECT_EQ(stream.Read(bytes, 4, &read), kOk);
            EXPECT_EQ(read, 2U);
        }
    });
}

TEST_F(ConcurrencyTest, SharedLocalizersTakeTheirFirstRequestsTogether) {
    for (int round = 0; round < kRounds; ++round) {
        const std::array<Localizer, 2> shared = {MakeLocalizer(u"app"), MakeLocalizer(u"app")};
        OnThreads([&](int thread) {
            const Localizer& localizer = shared[static_cast<std::size_t>(thread) % 2];
            localizer.Call(0);
            EXPECT_EQ(localizer.HasString(u"none"), kUnspecifiedError);
            EXPECT_EQ(localizer.Get(u"own"), u"en! one1");
            localizer.Call(1);
        });
        EXPECT_EQ(shared[0].References(), 1U);
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
        Replace("en/Locs/empty.lt", "Own = 'own'");
        OnThreads([&](int thread) {
            const Localizer localizer = MakeLocalizer(u"empty");
            EXPECT_EQ(localizer.HasString(u"own"), kOk);
            if (thread == 0) {
                Replace("en/Locs/common.lt", "Name = 'late'");
            }
            for (int i = 0; i < kRounds; ++i) {
                localizer.HasString(u"name");
                MakeLocalizer(u"empty").HasString(u"name");
            }
        });
        EXPECT_EQ(MakeLocalizer(u"empty").Get(u"name"), u"late");
        MakeLocalizer(u"app", Culture(13));
    }
}

}  // namespace
