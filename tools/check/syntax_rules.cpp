#include <algorithm>

#include "check/families.h"
#include "source/Scanner.h"
#include "source/comments.h"
#include "source/mistake_text.h"

namespace lm_check {

using lm_source::Document;
using lm_source::Mistake;
using lm_source::MistakeKind;

namespace {

/// Of a file that is no localisation file at all nobody reads more.
constexpr std::size_t kMaxMistakes = 1000;

const char* CureOf(MistakeKind kind) {
    switch (kind) {
        case MistakeKind::MissingEquals:
            return "no '=' follows the key: write 'Key = value', or close the quote of a string "
                   "further up (an apostrophe in a text is \\')";
        case MistakeKind::MissingValue:
            return "a value is missing: write a 'string', $parameter, key or {plural form}; a "
                   "comment cannot stand inside an entry";
        case MistakeKind::NoEntry:
            return "no entry begins here: join the parts of a value by '+', begin a comment with "
                   "';', or close the quote of a string further up (an apostrophe in a text is "
                   "\\')";
        case MistakeKind::UnclosedString:
            return "the last string is not closed: write ' at its end";
        case MistakeKind::MissingName:
            return "a name must follow '$' at once";
        case MistakeKind::MissingParameter:
            return "a plural form begins with its parameter: {$count: ...}";
        case MistakeKind::MissingColon:
            return "write ':' after the parameter of a plural form";
        case MistakeKind::MissingBrace:
            return "a plural form goes on with ',' and the next form, or ends with '}': one of "
                   "them is missing";
        case MistakeKind::TooManyForms:
            return "a plural form has six forms at most";
        case MistakeKind::NestedTooDeep:
            return "too many plural forms stand inside each other";
        case MistakeKind::DuplicateKey:
            break;
    }
    return "";
}

/// What the engine expects: the last line of its message, behind the caret.
std::string ExpectationOf(const std::string& engineText) {
    const std::size_t at = engineText.rfind("expecting ");
    return at == std::string::npos ? engineText : engineText.substr(at);
}

/// The key of the entry that a place stands in.
std::string_view KeyAt(const Document& document, std::uint32_t offset) {
    const auto& entries = document.Entries();
    const auto after = std::upper_bound(
        entries.begin(), entries.end(), offset,
        [](std::uint32_t place, const auto& entry) { return place < entry.key.begin; });
    return after == entries.begin() ? std::string_view() : document.Key(*(after - 1));
}

void AddDuplicate(const TextFile& file, const Mistake& mistake,
                  const std::vector<Request>& requests, Collector& out) {
    const SourceView source = Subject::ViewOf(file);
    const std::string first(file.document.Bytes(mistake.other));
    Finding* const finding = out.Add(
        Rule::DuplicateKey, source, mistake.range, file.document.Bytes(mistake.range), requests,
        "the key stands above as '" + first +
            "' (letter case does not count), so that the file cannot be used: remove or "
            "rename one of them");
    if (finding != nullptr) {
        finding->engineText = TextOf(file.document, mistake, file.file.path);
        finding->related.push_back({source.At(mistake.other), "the first entry of the key"});
    }
}

void AddMistake(const TextFile& file, const Mistake& mistake, const std::vector<Request>& requests,
                Collector& out) {
    if (mistake.kind == MistakeKind::DuplicateKey) {
        AddDuplicate(file, mistake, requests, out);
        return;
    }
    const Rule rule = mistake.kind == MistakeKind::NestedTooDeep ? Rule::TooLarge : Rule::Syntax;
    if (!out.Wants(rule)) {
        return;
    }
    std::string engineText = TextOf(file.document, mistake, file.file.path);
    const SourceView source = Subject::ViewOf(file);
    const std::string_view entry = file.document.Bytes().substr(mistake.entry);
    std::string_view key = entry.substr(0, lm_source::NameLength(entry));
    if (key.empty()) {
        key = KeyAt(file.document, mistake.range.begin);
    }
    Finding* const finding =
        out.Add(rule, source, mistake.range, key, requests,
                CureOf(mistake.kind) + (" (" + ExpectationOf(engineText)) + ")");
    if (finding != nullptr) {
        finding->engineText = std::move(engineText);
        if (!mistake.other.empty()) {
            finding->related.push_back({source.At(mistake.other), "the string begins here"});
        }
    }
}

bool IsInOneOf(const std::vector<lm_source::Comment>& comments, Range range) {
    const auto after = std::upper_bound(
        comments.begin(), comments.end(), range.begin,
        [](std::uint32_t place, const auto& comment) { return place < comment.range.begin; });
    return after != comments.begin() && range.begin < (after - 1)->range.end;
}

void CheckEncoding(const TextFile& file, const std::vector<Request>& requests, Collector& out) {
    const lm_source::Encoding& encoding = file.document.GetEncoding();
    const SourceView source = Subject::ViewOf(file);
    if (encoding.isUtf16) {
        out.AddWhole(Rule::Encoding, source.file.side, source.file.path, requests,
                     "the file is UTF-16, which the program takes for rubbish: save it as UTF-8");
        return;
    }
    if (encoding.illFormed.empty() || !out.Wants(Rule::Encoding)) {
        return;
    }
    const auto comments = CommentsOf(file.document);
    const auto isInText = [&](Range range) { return !IsInOneOf(comments, range); };
    const auto found = std::find_if(encoding.illFormed.begin(), encoding.illFormed.end(), isInText);
    const std::string others =
        encoding.illFormed.size() == 1
            ? ""
            : " (" + std::to_string(encoding.illFormed.size()) + " such places in the file)";
    if (found != encoding.illFormed.end()) {
        out.Add(Rule::Encoding, source, *found, KeyAt(file.document, found->begin), requests,
                "these bytes are not UTF-8 and come out as \xEF\xBF\xBD: save the file as UTF-8, "
                "it may be Latin-1" +
                    others);
    } else {
        out.AddWarning(
            Rule::Encoding, source, encoding.illFormed.front(), {}, requests,
            "a comment is not UTF-8: save the file as UTF-8, it may be Latin-1" + others);
    }
}

}  // namespace

void CheckSyntax(const TextFile& file, const std::vector<Request>& requests, Collector& out) {
    CheckEncoding(file, requests, out);
    if (file.document.GetEncoding().isUtf16) {
        return;  // all else would be said of rubbish
    }
    const auto& mistakes = file.document.Mistakes();
    for (std::size_t i = 0; i < std::min(mistakes.size(), kMaxMistakes); ++i) {
        AddMistake(file, mistakes[i], requests, out);
    }
    if (mistakes.size() > kMaxMistakes) {
        out.AddWhole(Rule::Syntax, file.file.side, file.file.path, requests,
                     std::to_string(mistakes.size() - kMaxMistakes) +
                         " more mistakes of the file are not told: put the others right first");
    }
}

}  // namespace lm_check
