// What may be keys in sources of programs.
#include <gtest/gtest.h>

#include <string>

#include "keys/WordScanner.h"
#include "keys/glob.h"

namespace {

using lm_keys::Language;

/// The words with blanks between them, those that are no literals in brackets.
std::string WordsOf(const std::string& source, Language language) {
    std::string words;
    for (const lm_keys::Word& word : lm_keys::WordScanner(source, language).Scan()) {
        words += words.empty() ? "" : " ";
        words += word.isLiteral ? std::string(word.text) : '[' + std::string(word.text) + ']';
    }
    return words;
}

TEST(WordScannerTest, FindsLiteralsThatAreNamesAndMembers) {
    const struct {
        Language language;
        const char* source;
        const char* words;
    } cases[] = {
        {Language::C, R"(f("A.b"), g(u"B"), L"C", u8"D", U"E";)", "A.b B C D E"},
        {Language::C, R"src(R"(A.b)" u8R"q(B)x")q" LR"q(C)q" uR"(D)" VAR"(E)")src", "A.b C D"},
        {Language::C, R"("a b" "1a" "" "a\n" "a-b" "\"A" "B\\" "C")", "C"},
        {Language::C, "// \"A\"\nint b; /* \"B\" \n \"C\" */ \"D\" /* \"E\"", "D"},
        {Language::C, R"("http://x" "A")", "A"},
        {Language::C, R"(x = 1'000'000; y = 0x1'F; "A"; '"'; '\''; "B"; u'c';)", "A B c"},
        {Language::C, "#error don't\n\"A\n\"B\" \"", "B"},
        {Language::C, "t.A_b(1) p->\n  B::C d . E .5 f> g:h ::I", "[A_b] [B] [C] [E] [5] [I]"},
        {Language::C, "R\"(ABC", ""},
        {Language::C, "R\"A", ""},
        {Language::C, "\"A\\", ""},
        {Language::C, "'''A''' `B`", "A"},
        {Language::Python, "x['A.b'] r\"B\" u'C' # 'D'\n'E' '''F''' \"\"\"G\nH\"\"\" \"I\"",
         "A.b B C E F I"},
        {Language::Python, "a // 'A'  # '''\n/* 'B' */ d.E", "A B"},
        {Language::Other, "`A` \"\"\"B\"\"\" 'C' `D\n${\"E\"}` // \"F\n\"G\" x.y", "A B C G"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(WordsOf(c.source, c.language), c.words) << c.source;
    }
}

TEST(GlobTest, StarsStandForAnyText) {
    const struct {
        const char* pattern;
        const char* text;
        bool matches;
    } cases[] = {{"", "", true},         {"", "a", false},        {"*", "", true},
                 {"a.*", "a.b.c", true}, {"a.*", "ab", false},    {"*.b", "a.b.b", true},
                 {"*b*d", "abcd", true}, {"*b*d", "abdc", false}, {"a?c", "abc", true},
                 {"a?", "a", false},     {"**", "a", true},       {"a", "ab", false}};
    for (const auto& c : cases) {
        EXPECT_EQ(lm_keys::MatchesGlob(c.pattern, c.text), c.matches) << c.pattern << ' ' << c.text;
    }
    const std::string many(100'000, 'a');
    EXPECT_FALSE(lm_keys::MatchesGlob("*a*a*a*a*a*b", many));
}

}  // namespace
