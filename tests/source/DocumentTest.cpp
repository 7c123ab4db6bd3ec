// Documents: what is left of a faulty file, and where everything stands. That they agree with the
// engine's parser on all files, fuzz/document.cpp shows.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "Cases.h"
#include "DocumentText.h"
#include "source/comments.h"
#include "source/edits.h"
#include "source/mistake_text.h"
#include "source/rule_mistake.h"

namespace {

using lm_source::Document;
using lm_source::Place;

std::string PlaceText(Place place) {
    return std::to_string(place.line) + ':' + std::to_string(place.column);
}

std::string Join(const std::vector<std::string>& texts, const char* separator) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += (joined.empty() ? "" : separator) + text;
    }
    return joined;
}

/// line:column ... | key = value ...
std::string Describe(const Document& document) {
    std::vector<std::string> texts;
    for (const lm_source::Mistake& mistake : document.Mistakes()) {
        texts.push_back(PlaceText(document.PlaceOf(mistake.range.begin)));
    }
    texts.emplace_back("|");
    for (const lm_source::Entry& entry : document.Entries()) {
        const std::string value = lm_test::PrintValue(document, document.ValueOf(entry));
        texts.push_back((entry.isFaulty ? "!" : "") + document.LowerKey(entry) + " = " +
                        (value.empty() ? "?" : value));
    }
    return Join(texts, " ");
}

TEST(DocumentTest, WhatTheEngineReadsAndReportsIsTheSame) {
    for (const auto& [source, dictionary] : lm_test::ReadCases("../parsing/loc_file_texts.txt")) {
        const Document document(lm_test::ToUtf8(source));
        EXPECT_EQ(lm_test::PrintDocument(document), dictionary);
        EXPECT_TRUE(document.Mistakes().empty()) << dictionary;
    }
    for (const auto& [source, fault] : lm_test::ReadCases("../parsing/loc_file_faults.txt")) {
        const Document document(lm_test::ToUtf8(source));
        ASSERT_FALSE(document.Mistakes().empty()) << fault;
        const std::string text = TextOf(document, document.Mistakes()[0], "app.lt");
        EXPECT_EQ(LocalizationManager::Text::ToUtf8(localization_manager::host::ToUtf16(text)),
                  lm_test::FaultText("app.lt", fault));
    }
}

TEST(DocumentTest, AfterAMistakeTheNextEntryLineIsRead) {
    for (const auto& [source, expected] : lm_test::ReadCases("mistakes.txt")) {
        const Document document(lm_test::ToUtf8(source));
        EXPECT_EQ(Describe(document), expected) << lm_test::ToUtf8(source);
    }
}

TEST(DocumentTest, CommentsBelongToTheEntryBelowOrBefore) {
    const Document document(
        "; file\n\n;1\n  ;2\r\na='x' ;3\n;4\nb='y'c='z' ;5\n\n;6\n\nd='u';7\n; = 'end'");
    std::vector<std::string> comments;
    for (std::size_t entry = 0; entry < document.Entries().size(); ++entry) {
        for (const lm_source::Range range : CommentsAbove(document, entry)) {
            comments.emplace_back(document.Bytes(range));
        }
        comments.emplace_back(document.Key(document.Entries()[entry]));
        comments.emplace_back(document.Bytes(CommentAfter(document, entry)));
    }
    EXPECT_EQ(Join(comments, " "), ";1 ;2 a ;3 ;4 b  c ;5 d ;7");
    EXPECT_EQ(CommentsOf(document).size(), 9U);
}

TEST(DocumentTest, APlaceCountsUnitsAndAnOffsetBytes) {
    const std::string bytes =
        "\xEF\xBB\xBF"
        "a\r\n'\xF0\x9D\x84\x9E\xE2\x82\xC3\xA9'\t?\rb\n";
    const Document document(bytes);
    const lm_source::LineTable& lines = document.Lines();
    EXPECT_EQ(lines.Count(), 4U);
    const std::vector<std::pair<std::string, std::string>> places = {
        {"a", "1:1"},  {"\xF0", "2:2"}, {"\xE2\x82", "2:4"}, {"\xC3", "2:5"},
        {"\t", "2:7"}, {"?", "2:8"},    {"b", "3:1"}};
    for (const auto& [part, place] : places) {
        const auto offset = static_cast<std::uint32_t>(bytes.find(part));
        EXPECT_EQ(PlaceText(document.PlaceOf(offset)), place);
        EXPECT_EQ(lines.OffsetOf(bytes, document.PlaceOf(offset)), offset) << part;
    }
    EXPECT_EQ(lines.MessageColumn(bytes, static_cast<std::uint32_t>(bytes.find('?'))), 9U);
    EXPECT_EQ(lines.OffsetOf(bytes, {2, 3}), bytes.find('\xF0'));  // within the pair
    EXPECT_EQ(lines.OffsetOf(bytes, {1, 99}), bytes.find('\r'));
    EXPECT_EQ(lines.OffsetOf(bytes, {99, 1}), bytes.size());
    EXPECT_EQ(document.Bytes(lines.RangeOf(bytes, 3)), "b");
    EXPECT_TRUE(lines.RangeOf(bytes, 4).empty());
}

TEST(DocumentTest, WhatIsNotUtf8HasAPlace) {
    const Document document(
        "\xEF\xBB\xBF; Gr\xF6\xDF"
        "e \xEF\xBF\xBD\na='\xE2\x82'");
    std::vector<std::string> parts;
    for (const lm_source::Range range : document.GetEncoding().illFormed) {
        parts.push_back(PlaceText(document.PlaceOf(range.begin)) + '+' +
                        std::to_string(range.size()));
    }
    EXPECT_EQ(Join(parts, " "), "1:5+1 1:6+1 2:4+2");
    for (const auto& [start, isUtf16] :
         std::vector<std::pair<std::string, bool>>{{"\xFF\xFE", true},
                                                   {"\xFE\xFF", true},
                                                   {std::string("a\0", 2), true},
                                                   {std::string("\0a", 2), true},
                                                   {std::string("\0\0", 2), false},
                                                   {"a=", false},
                                                   {"", false}}) {
        EXPECT_EQ(Document(start).GetEncoding().isUtf16, isUtf16) << start;
    }
}

TEST(DocumentTest, EditsChangeNothingElse) {
    using lm_source::Apply;
    const std::string bytes = "ab\xFF\r\ncd";
    EXPECT_EQ(Apply(bytes, {}), bytes);
    EXPECT_EQ(
        Apply(bytes, {{{5, 7}, "C"}, {{0, 1}, ""}, {{5, 5}, "1"}, {{5, 5}, "2"}, {{7, 7}, "!"}}),
        "b\xFF\r\n12C!");
    EXPECT_THROW(Apply(bytes, {{{0, 2}, ""}, {{1, 3}, ""}}), std::invalid_argument);
    EXPECT_THROW(Apply(bytes, {{{0, 2}, ""}, {{1, 1}, "x"}}), std::invalid_argument);
    EXPECT_THROW(Apply(bytes, {{{7, 8}, ""}}), std::invalid_argument);
    EXPECT_THROW(Apply(bytes, {{{2, 1}, ""}}), std::invalid_argument);
}

TEST(DocumentTest, ARuleFileHasTheMistakeThatTheEngineReports) {
    EXPECT_FALSE(lm_source::FindRuleMistake("\xEF\xBB\xBF n==1; n>=0;\n", "Plural.rule"));
    const auto mistake =
        lm_source::FindRuleMistake("\xEF\xBB\xBFn==1;\r\n\xC3\xA9;", "Plural.rule");
    ASSERT_TRUE(mistake);
    EXPECT_EQ(mistake->offset, 10U);
    EXPECT_EQ(
        mistake->text,
        "parse error at file Plural.rule line 2 column 1\n\"\u00E9;\"\n ^- expecting <eoi> here");
}

}  // namespace
