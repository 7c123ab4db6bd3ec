// Files that change under a running program.
#include <chrono>
#include <filesystem>

#include "HostTree.h"

namespace {

using namespace lm_test;
using Outcome = host::Refreshed::Outcome;

class RefreshTest : public HostTree {
protected:
    static std::string Forms(const host::Texts& texts) {
        return texts("Forms", {{"n", 0}}) + texts("Forms", {{"n", 1}}) + texts("Forms", {{"n", 2}});
    }
};

TEST_F(RefreshTest, SeesEveryFileThatCanAnswer) {
    const TempTree other;
    files.Write("pt/Locs/main.lt", "A = 'a' Forms = {$n: '1', '2'} B = Common");
    files.Write("neutral/Locs/common.lt", "Common = 'c'");
    host::TreeSettings settings = Settings();
    settings.alternative = other.Root().string();
    const host::Texts texts = Open("pt-br-x", settings);
    EXPECT_EQ(texts("A") + texts("B") + Forms(texts), "ac112");
    EXPECT_EQ(texts.Refresh().outcome, Outcome::Unchanged);

    const auto changed = [&](const TempTree& tree, const std::string& name, std::string_view text) {
        tree.Write(name, text);
        EXPECT_EQ(texts.Refresh().outcome, Outcome::Replaced) << name;
        EXPECT_EQ(texts.Refresh().outcome, Outcome::Unchanged) << name;
        return texts("A") + texts("B") + Forms(texts);
    };
    EXPECT_EQ(changed(files, "pt/Locs/main.lt", "A = 'aa' Forms = {$n: '1', '2'} B = Common"),
              "aac112");
    EXPECT_EQ(changed(files, "neutral/Locs/common.lt", "Common = 'cc'"), "aacc112");
    EXPECT_EQ(changed(files, "pt/Plural.rule", "n==2; n!=2;"), "aacc221");
    EXPECT_EQ(changed(files, "pt/br/Plural.rule", "n==0; n!=0;"), "aacc122");
    EXPECT_EQ(changed(files, "pt-br/Locs/common.lt", "Common = 'br'"), "aabr122");
    EXPECT_EQ(changed(files, "pt-br-x/Locs/common.lt", "Common = 'x'"), "aax122");
    EXPECT_EQ(changed(other, "neutral/Locs/main.lt", "A = 'alt' Forms = {$n: '1', '2'} B = Common"),
              "altx122");
    std::filesystem::remove(other.Root() / "neutral/Locs/main.lt");
    EXPECT_EQ(changed(files, "pt-br/Locs/common.lt", ""), "aax122");
    // The time alone differs, or the size alone.
    const std::filesystem::path file = files.Root() / "pt-br/Locs/common.lt";
    const auto time = std::filesystem::last_write_time(file);
    std::filesystem::last_write_time(file, time - std::chrono::seconds(2));
    EXPECT_EQ(texts.Refresh().outcome, Outcome::Replaced);
    files.Write("pt-br/Locs/common.lt", "Common = 'longer'");
    std::filesystem::last_write_time(file, time - std::chrono::seconds(2));
    EXPECT_EQ(texts.Refresh().outcome, Outcome::Replaced);
    // Where nobody looks.
    files.Write("pt/Locs/other.lt", "");
    files.Write("de/Locs/main.lt", "");
    EXPECT_EQ(texts.Refresh().outcome, Outcome::Unchanged);
    EXPECT_EQ(TakeReports(), "");
}

TEST_F(RefreshTest, KeepsTheOldTextsUntilEveryMistakeIsMended) {
    files.Write("en/Locs/main.lt", "A = 'a' Forms = {$n: '1', '2'}");
    files.Write("en/Locs/side.lt", "S = 's'");
    const host::Tree tree(files.Root().string(), Settings());
    const host::Texts texts = tree.Open("main", "en");
    const host::Texts side = tree.Open("side", "en");
    const host::Texts none = tree.Open("none", "en");  // unusable from the start holds up nobody
    EXPECT_NE(TakeReports(), "");

    files.Write("en/Locs/side.lt", "S = 'new'");
    const std::pair<const char*, const char*> mistakes[] = {
        {"A = 'a", "parse error"},
        {"A = B", "Key 'b' not found"},
        {"A =  a", "Cyclic reference"},
        {"", "duplicate key"},
        {nullptr, "cannot find localization file 'main.lt'"}};
    for (const auto& [source, what] : mistakes) {
        if (source == nullptr) {
            std::filesystem::remove(files.Root() / "en/Locs/main.lt");
        } else {
            files.Write("en/Locs/main.lt", *source != '\0' ? source : "A = 'a' a = 'b' ");
        }
        const host::Refreshed refreshed = tree.Refresh();
        EXPECT_EQ(refreshed.outcome, Outcome::Kept) << what;
        EXPECT_NE(refreshed.mistakes.find(what), std::string::npos) << refreshed.mistakes;
        EXPECT_EQ(TakeReports(), refreshed.mistakes + '\n');
        EXPECT_EQ(tree.Refresh().outcome, Outcome::Unchanged);
        EXPECT_EQ(texts("A") + side("S"), "as");
    }
    files.Write("en/Locs/main.lt", "A = 'mended'");
    files.Write("en/Plural.rule", "n ==");
    EXPECT_EQ(tree.Refresh().outcome, Outcome::Kept);
    std::filesystem::remove(files.Root() / "en/Plural.rule");
    TakeReports();
    EXPECT_EQ(tree.Refresh().outcome, Outcome::Replaced);
    EXPECT_EQ(texts("A") + side("S"), "mendednew");

    files.Write("en/Locs/none.lt", "N = 'n'");
    EXPECT_EQ(tree.Refresh().outcome, Outcome::Replaced);
    EXPECT_EQ(none("N"), "n");
    EXPECT_TRUE(none.State().isUsable);
    std::filesystem::rename(files.Root() / "en", files.Root() / "gone");
    EXPECT_EQ(tree.Refresh().outcome, Outcome::Kept);
    EXPECT_EQ(none("N"), "n");
}

/// More replacements than there are places for states, one of them while an old one is still read.
TEST_F(RefreshTest, GivesOldTextsBackWhenTheirLastReaderIsGone) {
    files.Write("en/Locs/main.lt", "A = '0'");
    host::TreeSettings settings = Settings();
    std::optional<host::Texts> texts;
    settings.whenMissing = [&](const host::TextProblem&) {
        files.Write("en/Locs/main.lt", "A = 'inner'");
        EXPECT_EQ(texts->Refresh().outcome, Outcome::Replaced);
        return (*texts)("A");
    };
    texts = Open("en", settings);
    EXPECT_EQ((*texts)("None"), "inner");
    for (int i = 0; i < 600; ++i) {
        const std::string text(static_cast<std::size_t>(1 + i % 2), 'x');
        files.Write("en/Locs/main.lt", "A = '" + text + "'");
        ASSERT_EQ(texts->Refresh().outcome, Outcome::Replaced);
        ASSERT_EQ((*texts)("A"), text);
    }
}

}  // namespace
