// Names such as $count.number, answered by conventions that show what they are given.
#include <chrono>
#include <stdexcept>

#include "HostTree.h"

namespace {

using namespace lm_test;

/// Writes "de:0:3" for a number in German texts, and "de|text" for a text.
class Marks : public host::Conventions {
public:
    explicit Marks(std::string language) : language_(std::move(language)) {}

    void Write(host::ValueFormat format, qor::string16_t& value) const override {
        if (value.view() == u"bad") {
            throw std::invalid_argument("'bad' is bad");
        }
        value = host::ToString16(language_ + ':' + std::to_string(static_cast<int>(format)) + ':' +
                                 host::ToUtf8(value));
    }
    void Isolate(qor::string16_t& value) const override {
        value = host::ToString16(language_ + '|' + host::ToUtf8(value));
    }

private:
    std::string language_;
};

class ConventionsTest : public HostTree {
protected:
    host::TreeSettings Marking() {
        host::TreeSettings settings = Settings();
        settings.whenMissing = [](const host::TextProblem& problem) { return problem.message; };
        settings.conventions = [this](const std::string& language) {
            made += language + ' ';
            return std::make_shared<const Marks>(language);
        };
        return settings;
    }

    std::string made;  // the conventions, in their order
};

TEST_F(ConventionsTest, AnswersDerivedNamesFromTheValuesOfTheCall) {
    const auto seconds = std::chrono::seconds(-1);
    const std::chrono::system_clock::time_point when(seconds - std::chrono::milliseconds(1));
    const std::vector<host::Param> params{{"count", 2000}, {"a.b", "x"},    {"number", 7},
                                          {"own", "bad"},  {"own.date", 1}, {"share", -0.25},
                                          {"huge", 1e22},  {"when", when}};
    const auto wrong = [](const std::string& rest) {
        return "text 'T' of scope 'main' in culture 'de': it asks for $" + rest;
    };
    const std::string names =
        ", the call has: $count, $a.b, $number, $own, $own.date, $share, $huge, $when";
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"{$count: 'one', $count.number + ' of ' + $count}", "de:0:2000 of 2000"},
        {"$a.b + ' ' + $a.b.currency", "de|x de:2:x"},
        {"$own.date + $own", "1de|bad"},  // a name that the call has is its own
        {"$share + ' ' + $share.percent", "-0.25 de:1:-0.25"},
        {"$huge.number", "de:0:10000000000000000000000"},
        {"$when.date + ' ' + $when.time", "de:3:-2 de:4:-2"},
        {"$own.number", wrong("own.number: 'bad' is bad")},
        {"$count.Number", wrong("count.Number" + names)},
        {"$cuont.number", wrong("cuont.number" + names)},
        {"$a.number", wrong("a.number" + names)},
    };
    for (const auto& [text, expected] : cases) {
        files.Write("de/Locs/main.lt", "T = " + text);
        EXPECT_EQ(Open("de", Marking())("T", params), expected) << text;
        TakeReports();
    }
    files.Write("de/Locs/main.lt", "T = $count.number");
    host::TreeSettings none = Marking();
    none.conventions = nullptr;
    EXPECT_EQ(Open("de", none)("T", params),
              wrong("count.number, and TreeSettings::conventions is not set"));
    EXPECT_EQ(Open("de", none)("T", {{"count.number", "2k"}}), "2k");
    TakeReports();
}

TEST_F(ConventionsTest, BelongToTheCultureWhoseTextIsShownAndAreMadeOnce) {
    files.Write("pt/Locs/main.lt", "A = $n.number");
    files.Write("de/Locs/main.lt", "A = $n.number B = $n.number");
    const host::Tree tree(files.Root().string(), Marking());
    const host::Texts texts = tree.Open("main", {"br", "de-at-x", "de"});
    EXPECT_EQ(texts("A", {{"n", 1}}) + ' ' + texts("B", {{"n", 2}}), "pt-br:0:1 de-at:0:2");
    files.Write("pt/Locs/main.lt", "A = 'new ' + $n.number");
    EXPECT_EQ(tree.Refresh().outcome, host::Refreshed::Outcome::Replaced);
    EXPECT_EQ(tree.Open("main", "br")("A", {{"n", 1}}), "new pt-br:0:1");
    EXPECT_EQ(made, "pt-br de-at de ");
}

}  // namespace
