// Numbers, dates and directions as ICU knows them.
#include "localization_manager/host/icu/IcuConventions.h"

#include <atomic>
#include <thread>

#include "ErrorText.h"
#include "HostTree.h"

/// ICU's libraries are not built for the thread sanitizer, which sees what they copy but not the atomic
/// counts that they keep about it.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" __attribute__((visibility("default"))) const char* __tsan_default_suppressions() {
    return "called_from_lib:libicui18n.so\ncalled_from_lib:libicuuc.so\n";
}

namespace {

using namespace lm_test;

class IcuConventionsTest : public HostTree {
protected:
    /// The text "T" with the parameters x and y, or what is wrong with it.
    std::string Show(const std::string& culture, const std::string& text, host::Param x,
                     host::Param y = {"y", ""}) {
        files.Write("neutral/Locs/main.lt", "T = " + text);
        host::TreeSettings settings = Settings();
        settings.conventions = host::UseIcu(options);
        settings.whenMissing = [](const host::TextProblem& problem) {
            return problem.message.substr(problem.message.find("asks for"));
        };
        return Open(culture, settings)("T", {x, y});
    }

    host::IcuOptions options{"EUR", "Europe/Berlin", true};
};

struct Case {
    const char* culture;
    const char* name;
    host::Param value;
    const char* shown;
};

// 2024-05-01 in UTC, and the next day already in Berlin.
constexpr std::int64_t kNight = 1'714'602'600;

TEST_F(IcuConventionsTest, WritesValuesAsTheCultureDoes) {
    const std::string nines(400, '9');
    const Case cases[] = {
        {"de", "number", {"x", 1234567}, "1.234.567"},
        {"de-zz", "number", {"x", -1234.56789}, "-1.234,568"},
        {"de-a b", "number", {"x", "+.5"}, "0,5"},
        {"en-in", "number", {"x", 1234567}, "12,34,567"},
        {"fa", "number", {"x", 1234567}, "\u06F1\u066C\u06F2\u06F3\u06F4\u066C\u06F5\u06F6\u06F7"},
        {"en", "percent", {"x", 0.256}, "26%"},
        {"de", "percent", {"x", 2}, "200\u00A0%"},
        {"de", "currency", {"x", "1234.5"}, "1.234,50\u00A0\u20AC"},
        {"br", "currency", {"x", "1234.5 BRL"}, "R$\u00A01.234,50"},
        {"ja", "currency", {"x", "1234 JPY"}, "\uFFE51,234"},
        {"de", "date", {"x", kNight}, "02.05.2024"},
        {"de", "time", {"x", kNight}, "00:30"},
        {"de", "date", {"x", "2024-05-01T23:30:00.123+01:00"}, "02.05.2024"},
        {"de", "time", {"x", "1714602600.75"}, "00:30"},
        {"ja", "date", {"x", "2024-05-01"}, "2024/05/01"},
    };
    for (const Case& value : cases) {
        EXPECT_EQ(Show(value.culture, "$x." + std::string(value.name), value.value), value.shown);
    }
    EXPECT_EQ(Show("de", "$x.number", {"x", nines}).size(), 400U + 133U);
    // The plain number chooses the form.
    EXPECT_EQ(Show("de", "{$x: 'one', $x.number + ' of ' + $x}", {"x", 1234}), "1.234 of 1234");
    // A day is the same everywhere, also where it ends last.
    options.timeZone = "Etc/GMT+12";
    EXPECT_EQ(Show("de", "$x.date", {"x", "2024-05-01"}), "01.05.2024");
    EXPECT_EQ(TakeReports(), "");
}

TEST_F(IcuConventionsTest, TellsWhichValueIsWrongAndWhatWouldBeRight) {
    const std::string tooLong(401, '9');
    const char* const numbers[] = {"",    "x",     ".",   "-",     "1e9",   "1e999999999",
                                   "1,5", "1.2.3", "nan", "1 EUR", "\u0663"};
    for (const char* const number : numbers) {
        EXPECT_EQ(Show("de", "$x.number", {"x", number}),
                  "asks for $x.number: '" + std::string(number) +
                      "' is no number: write digits, and a point before decimals");
    }
    EXPECT_NE(Show("de", "$x.percent", {"x", tooLong}).find("is no number"), std::string::npos);
    for (const char* const amount : {"1 eur", "1 XYZ", "1 EURO", "1 \u20AC"}) {
        EXPECT_NE(Show("de", "$x.currency", {"x", amount}).find("is no currency"),
                  std::string::npos)
            << amount;
    }
    for (const char* const time :
         {"", "2024-02-30", " 2024-05-01", "24-05-01", "2024-05-01T13:30:00", "1714602600000",
          "2024-05-01T13:30:00+99:00", "-62135596801", "99999999999999999999", "1.x"}) {
        EXPECT_EQ(Show("de", "$x.date", {"x", time}),
                  "asks for $x.date: '" + std::string(time) +
                      "' is no time: give seconds since 1970, '2024-05-01T13:30:00Z' or "
                      "'2024-05-01'");
    }
    EXPECT_EQ(Show("de", "$x.time", {"x", "2024-05-01"}),
              "asks for $x.time: '2024-05-01' is a day, which has no time");
    options.currency.clear();
    EXPECT_EQ(
        Show("de", "$x.currency", {"x", 5}),
        "asks for $x.currency: '5' has no currency: give '12.50 EUR', or IcuOptions::currency");
    const auto error = [](const host::IcuOptions& given) {
        return ErrorText<std::invalid_argument>([&] { host::UseIcu(given); });
    };
    EXPECT_NE(error({"Euro", "", false}).find("'Euro' is no currency"), std::string::npos);
    EXPECT_NE(error({"", "Berlin", false}).find("no time zone 'Berlin'"), std::string::npos);
}

TEST_F(IcuConventionsTest, IsolatesTextsThatRunAgainstTheCulture) {
    const std::string hebrew = "1 \u05D0b";
    const auto isolated = [](const std::string& text) {
        return host::ToUtf8(u"\u2068" + host::ToUtf16(text) + u"\u2069");
    };
    const auto show = [this](const char* culture, const host::Param& x) {
        return Show(culture, "'.' + $x + '.'", x);
    };
    EXPECT_EQ(show("en", {"x", hebrew}), '.' + isolated(hebrew) + '.');
    EXPECT_EQ(show("ar", {"x", "(Ada)"}), '.' + isolated("(Ada)") + '.');
    EXPECT_EQ(show("ar", {"x", hebrew}), '.' + hebrew + '.');
    EXPECT_EQ(show("en", {"x", "Ada \u05D0"}), ".Ada \u05D0.");
    for (const char* const noLetters : {"", "12,5", "...", "\u0661"}) {
        EXPECT_EQ(show("ar", {"x", noLetters}), '.' + std::string(noLetters) + '.');
    }
    EXPECT_EQ(show("ar", {"x", -5}), ".-5.");
    EXPECT_EQ(host::ToUtf16(Show("ar", "$x.currency", {"x", "5 USD"})).find(u'\u2068'),
              std::u16string::npos);
    options.isolates = false;
    EXPECT_EQ(show("ar", {"x", "Ada"}), ".Ada.");
}

TEST_F(IcuConventionsTest, TwoThreadsShareOneCulture) {
    files.Write("de/Locs/main.lt",
                "T = {$n: 'one', $n.number} + ' ' + $p.currency + ' ' + $t.date + ' ' + $t.time");
    host::TreeSettings settings = Settings();
    settings.conventions = host::UseIcu(options);
    const host::Texts texts = Open("de", settings);
    const char* const codes[] = {"EUR", "CHF", "SEK", "CZK"};
    const char* const signs[] = {"\u20AC", "CHF", "SEK", "CZK"};
    std::atomic<int> wrong{0};
    const auto run = [&](std::size_t begin) {
        for (std::size_t i = begin; i < begin + 2000; ++i) {
            const std::string n = std::to_string(i);
            const std::string grouped = n.substr(0, 1) + '.' + n.substr(1);
            const std::string text =
                texts("T", {{"n", i}, {"p", n + ' ' + codes[i % 4]}, {"t", 86'400 * (i % 2)}});
            std::string expected = grouped;
            expected.append(" ").append(grouped).append(",00\u00A0").append(signs[i % 4]);
            expected.append(i % 2 == 0 ? " 01" : " 02").append(".01.1970 01:00");
            wrong += text != expected ? 1 : 0;
        }
    };
    std::thread other(run, 1000);
    run(5000);
    other.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(TakeReports(), "");
}

}  // namespace
