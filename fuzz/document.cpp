// Fuzzes the tools' reader of localisation files, which the engine's parser judges: the same entries,
// or the same mistake at the same place in the same words. What is read is also kept to the byte.
#include <algorithm>
#include <clocale>
#include <string>
#include <vector>

#include "DocumentText.h"
#include "FileContent.h"
#include "Input.h"
#include "MessageUtf8.h"
#include "ParsingException.h"
#include "source/comments.h"
#include "source/mistake_text.h"
#include "source/tokens.h"

namespace {

using lm_fuzz::Require;
using lm_source::Document;
using lm_source::Mistake;
using lm_source::MistakeKind;
using LocalizationManager::StringLocalizing::Parsing::ParsingException;

std::string DescriptionOf(MistakeKind kind) {
    switch (kind) {
        case MistakeKind::MissingEquals:
            return "\"=\" here or one of previous lines miss termination '(qoute)";
        case MistakeKind::MissingValue:
            return "<expression_> here";
        case MistakeKind::NoEntry:
            return "<eoi> here";
        case MistakeKind::UnclosedString:
            return "\"'\" here";
        case MistakeKind::MissingName:
            return "<key_> here";
        case MistakeKind::MissingParameter:
            return "<paramName_> here";
        case MistakeKind::MissingColon:
            return "\":\" here";
        case MistakeKind::MissingBrace:
        case MistakeKind::TooManyForms:
            return "\"}\" here";
        case MistakeKind::NestedTooDeep:
            return "at most 64 nested plural forms here";
        case MistakeKind::DuplicateKey:
            break;
    }
    return "duplicate key found (keys are case insensitive): '";
}

void RequireEveryByte(const Document& document) {
    std::uint32_t at = 0;
    std::vector<lm_source::Comment> comments = CommentsOf(document);
    std::reverse(comments.begin(), comments.end());
    for (const lm_source::Token& token : TokensOf(document)) {
        Require(token.range.begin == at && !token.range.empty(), "tokens follow each other");
        at = token.range.end;
        if (token.kind == lm_source::TokenKind::Comment) {
            Require(!comments.empty() && comments.back().range == token.range,
                    "comments are known");
            comments.pop_back();
        }
    }
    Require(at == document.Bytes().size(), "tokens are the file");
    Require(comments.empty(), "comments are tokens");
}

/// The engine finds each mistake where the document does, if it starts where its entry does.
void RequireItsPlace(const Document& document, const Mistake& mistake) {
    const std::string text = TextOf(document, mistake, "app.lt");
    const std::string description = DescriptionOf(mistake.kind);
    if (mistake.kind == MistakeKind::DuplicateKey) {
        Require(text.substr(0, description.size()) == description, "a duplicate is one");
        return;
    }
    const auto& lines = document.Lines();
    const std::string_view bytes = document.Bytes();
    const std::uint32_t at = mistake.range.begin;
    const auto place = lines.PlaceOf(bytes, at);
    const std::string start = "parse error at file app.lt line " + std::to_string(place.line) +
                              " column " + std::to_string(lines.MessageColumn(bytes, at)) + "\n\"";
    Require(text.substr(0, start.size()) == start, "a mistake stands where the engine finds it");
    Require(text.size() > description.size() &&
                text.substr(text.size() - description.size()) == description,
            "a mistake is what the engine says");
    Require(lines.OffsetOf(bytes, place) == at, "a place leads back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::setlocale(LC_CTYPE, size % 2 == 0 ? "C.UTF-8" : "C");  // decides what is white space
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::u16string text = LocalizationManager::File::DecodeFileContent(bytes, size);
    const Document document(bytes);
    const std::string printed = lm_test::PrintDocument(document);
    RequireEveryByte(document);
    for (const Mistake& mistake : document.Mistakes()) {
        RequireItsPlace(document, mistake);
    }
    lm_test::model::ResourceDictionary dictionary;
    try {
        lm_test::ParseInto(dictionary, text);
    } catch (const ParsingException& fault) {
        Require(!document.Mistakes().empty(), "no mistake is overlooked");
        // A report ends at the first zero; a file of zeros only is told as one, whatever its size.
        const auto shown = [](const std::string& message) {
            return message.substr(0, message.find('\0'));
        };
        // The engine encodes every unit by itself.
        const std::u16string units =
            localization_manager::host::ToUtf16(TextOf(document, document.Mistakes()[0], "app.lt"));
        Require(shown(LocalizationManager::Text::ToUtf8(units)) == fault.what(),
                "the first mistake is the engine's");
        return 0;
    }
    Require(document.Mistakes().empty(), "only mistakes are reported");
    Require(printed == lm_test::PrintDictionary(dictionary), "entries are the engine's");
    return 0;
}
