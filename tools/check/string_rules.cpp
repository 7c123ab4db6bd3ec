#include <array>
#include <optional>

#include "check/families.h"
#include "source/Encoding.h"
#include "source/untranslated.h"

namespace lm_check {

using lm_source::Document;
using lm_source::Entry;
using lm_source::Operand;
using lm_source::OperandKind;

namespace {

bool IsLetter(char unit) {
    return (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z');
}

/// Whether what looks like a line break stands behind a drive: "C:\new", and not "Options:\nNew".
bool IsInPath(std::string_view string, std::size_t at) {
    constexpr std::string_view kBeforeDrive = " '\"([";
    return at >= 3 && at + 2 < string.size() && string[at - 1] == ':' && IsLetter(string[at - 2]) &&
           kBeforeDrive.find(string[at - 3]) != std::string_view::npos && string[at + 2] >= 'a' &&
           string[at + 2] <= 'z';
}

/// Where a string has a backslash that does nothing, or a line break in what looks like a path.
std::optional<std::uint32_t> DoubtfulEscape(std::string_view string) {
    for (std::size_t at = string.find('\\'); at < string.size(); at = string.find('\\', at)) {
        const char next = at + 1 < string.size() ? string[at + 1] : '\0';
        const bool isEscape = next == '\\' || next == '\'' || next == 'n';
        if (!isEscape || (next == 'n' && IsInPath(string, at))) {
            return static_cast<std::uint32_t>(at);
        }
        at += 2;
    }
    return std::nullopt;
}

void CheckEscapes(const SourceView& source, const Document& document, const Entry& entry,
                  const Operand& operand, const std::vector<Request>& requests, Collector& out) {
    const std::string_view string = document.Bytes(operand.range);
    const auto at = DoubtfulEscape(string);
    if (!at) {
        return;
    }
    const std::uint32_t begin = operand.range.begin + *at;
    const bool isLineBreak = string[*at + 1] == 'n';
    out.Add(Rule::Escape, source, {begin, begin + 1}, document.Key(entry), requests,
            isLineBreak
                ? R"(\n is a line break, also in a path: write \\n for a backslash and an n)"
                : "a backslash here stays a backslash: only \\n, \\' and \\\\ are escapes; "
                  "write \\\\ for a backslash, and a tab or any other character itself");
}

// Marks of direction, which begin something and end it.
constexpr bool IsEmbedding(char32_t c) {
    return c == 0x202A || c == 0x202B || c == 0x202D || c == 0x202E;
}
constexpr bool IsIsolate(char32_t c) {
    return c >= 0x2066 && c <= 0x2068;
}
constexpr char32_t kPopEmbedding = 0x202C;
constexpr char32_t kPopIsolate = 0x2069;
constexpr char32_t kByteOrderMark = 0xFEFF;

/// Looks for control characters in the strings of one value.
class ControlCharacters {
public:
    struct Found {
        Range range;
        std::string message;
    };

    void Read(const Document& document, const Operand& string) {
        std::string_view rest = document.Bytes(string.range);
        std::uint32_t at = string.range.begin;
        while (!rest.empty()) {
            const lm_source::Character next = lm_source::FirstCharacter(rest);
            // All that matters is in the first plane.
            if (!next.isIllFormed && next.units == 1) {
                Judge(next.firstUnit, {at, at + next.bytes});
            }
            rest.remove_prefix(next.bytes);
            at += next.bytes;
        }
    }

    std::optional<Found> Result() {
        if (!found_ && !open_.empty()) {
            found_ = {open_.back().second,
                      "this mark of direction is not ended in the text: end an embedding by "
                      "U+202C, an isolate by U+2069"};
        }
        return found_;
    }

private:
    void Judge(char32_t c, Range range) {
        if (IsEmbedding(c) || IsIsolate(c)) {
            open_.emplace_back(IsIsolate(c), range);
        } else if (c == kPopEmbedding || c == kPopIsolate) {
            if (open_.empty() || open_.back().first != (c == kPopIsolate)) {
                Remember(range, "this mark ends a direction that was not begun in the text");
            } else {
                open_.pop_back();
            }
        } else if (c == kByteOrderMark) {
            Remember(range, "a byte-order mark (U+FEFF) stands inside a text: remove it");
        } else if ((c < 0x20 && c != '\t' && c != '\n' && c != '\r') || (c >= 0x7F && c < 0xA0)) {
            Remember(range, "a control character stands in a text: remove it");
        }
    }

    void Remember(Range range, const char* message) {
        if (!found_) {
            found_ = {range, message};
        }
    }

    std::optional<Found> found_;
    std::vector<std::pair<bool, Range>> open_;  // whether it is an isolate
};

/// What a file cannot hold a suspicious character without.
bool MayHoldControls(std::string_view bytes) {
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        if ((value < 0x20 && value != '\t' && value != '\n' && value != '\r') || value == 0x7F ||
            value == 0xC2 || value == 0xE2 || value == 0xEF) {
            return true;
        }
    }
    return false;
}

void CheckControls(const SourceView& source, const Document& document, const Entry& entry,
                   lm_source::Value value, const std::vector<Request>& requests, Collector& out) {
    ControlCharacters controls;
    for (const Operand& operand : value) {
        if (operand.kind == OperandKind::Text) {
            controls.Read(document, operand);
        }
        for (const lm_source::Value form : FormsOf(operand)) {
            CheckControls(source, document, entry, form, requests, out);
        }
    }
    if (const auto found = controls.Result()) {
        out.Add(Rule::ControlCharacter, source, found->range, document.Key(entry), requests,
                found->message);
    }
}

void CheckMark(const SourceView& source, const Document& document, std::size_t number,
               const std::vector<Request>& requests, Collector& out) {
    const Entry& entry = document.Entries()[number];
    if (UntranslatedMark(document, number)) {
        out.Add(Rule::Untranslated, source, entry.key, document.Key(entry), requests,
                "the text is still to be translated: translate it and remove the comment");
    }
}

}  // namespace

void CheckStrings(const TextFile& file, const std::vector<Request>& requests, Collector& out) {
    const Document& document = file.document;
    const SourceView source = Subject::ViewOf(file);
    const bool hasEscapes = document.Bytes().find('\\') != std::string_view::npos;
    const bool hasControls = MayHoldControls(document.Bytes());
    const bool hasMarks = document.Bytes().find("localize: untranslated") != std::string_view::npos;
    for (std::size_t number = 0; number < document.Entries().size(); ++number) {
        const Entry& entry = document.Entries()[number];
        if (entry.isFaulty) {
            continue;
        }
        if (hasEscapes) {
            for (const Operand& operand : document.OperandsOf(entry)) {
                if (operand.kind == OperandKind::Text) {
                    CheckEscapes(source, document, entry, operand, requests, out);
                }
            }
        }
        if (hasControls) {
            CheckControls(source, document, entry, document.ValueOf(entry), requests, out);
        }
        if (hasMarks) {
            CheckMark(source, document, number, requests, out);
        }
    }
}

}  // namespace lm_check
