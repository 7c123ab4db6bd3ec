// Many threads of a host with the same texts.
#include <atomic>
#include <thread>

#include "HostTree.h"

namespace {

using namespace lm_test;

class TextsConcurrencyTest : public HostTree {
protected:
    static constexpr int kCalls = 200'000;

    /// Two threads make requests, each with its own parameters.
    template <class Check>
    static void InTwoThreads(const Check& check) {
        std::thread other([&] {
            for (int i = 0; i < kCalls; ++i) {
                check("other", -i);
            }
        });
        for (int i = 0; i < kCalls; ++i) {
            check("one", i);
        }
        other.join();
    }
};

TEST_F(TextsConcurrencyTest, NoThreadSeesTheParametersOfTheOther) {
    files.Write("en/Locs/main.lt",
                "A = $who + {$count: ' ' + $count + ' one ', ' ' + $count + ' many '} + $who");
    const host::Texts texts = Open("en");
    std::atomic<int> wrong{0};
    InTwoThreads([&](const std::string& who, int count) {
        const std::string expected =
            who + ' ' + std::to_string(count) + (count == 1 ? " one " : " many ") + who;
        wrong += texts("A", {{"who", who}, {"count", count}}) != expected ? 1 : 0;
    });
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(TakeReports(), "");
}

/// Every answer is whole and from one state of the files, while they change; and none is lost.
TEST_F(TextsConcurrencyTest, ARefreshDisturbsNoRequest) {
    const auto write = [&](int generation) {
        const std::string sign(static_cast<std::size_t>(1 + generation % 5), 'x');
        files.Write("en/Locs/main.lt", "A = '" + sign + "' + Sign B = 'b'");
        files.Write("neutral/Locs/common.lt", "Sign = '" + sign + "'");
    };
    write(0);
    const host::Texts texts = Open("en");
    std::atomic<bool> isOver{false};
    int replaced = 0;
    std::thread writer([&] {
        for (int generation = 1; !isOver; ++generation) {
            write(generation);
            replaced += texts.Refresh().outcome == host::Refreshed::Outcome::Replaced ? 1 : 0;
        }
    });
    std::atomic<int> wrong{0};
    InTwoThreads([&](const std::string&, int count) {
        const std::string text = texts(count % 2 == 0 ? "A" : "B");
        const bool isRight = count % 2 == 0 ? text.size() % 2 == 0 && !text.empty() &&
                                                  text.find_first_not_of('x') == std::string::npos
                                            : text == "b";
        wrong += isRight ? 0 : 1;
    });
    isOver = true;
    writer.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_GT(replaced, 1);
    EXPECT_EQ(TakeReports(), "");
}

/// Scopes and cultures are opened while others read.
TEST_F(TextsConcurrencyTest, OpeningDisturbsNoRequest) {
    for (const char* const culture : {"en", "de", "fr"}) {
        files.Write(culture + std::string("/Locs/main.lt"), "A = '" + std::string(culture) + "'");
    }
    const host::Tree tree(files.Root().string(), Settings());
    std::atomic<int> wrong{0};
    InTwoThreads([&](const std::string&, int count) {
        if (count % 1000 == 0) {
            for (const char* const culture : {"en", "de", "fr"}) {
                wrong += tree.Open("main", culture)("A") != culture ? 1 : 0;
            }
        }
    });
    EXPECT_EQ(wrong, 0);
}

}  // namespace
