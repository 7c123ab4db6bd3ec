#include "edit/pseudo.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "source/comments.h"
#include "source/edits.h"

namespace lm_edit {

using lm_source::Document;
using lm_source::Edit;
using lm_source::Entry;
using lm_source::Operand;
using lm_source::OperandKind;
using lm_source::Range;
using lm_source::Value;

namespace {

// As bytes of UTF-8: in a literal they would turn the source around for whoever reads it.
constexpr char kRightToLeftMark[] = {'\xE2', '\x80', '\x8F', '\0'};
constexpr char kOverride[] = {'\xE2', '\x80', '\xAE', '\0'};
constexpr char kEndOfOverride[] = {'\xE2', '\x80', '\xAC', '\0'};

const char* Accented(char letter) {
    static constexpr std::array<const char*, 26> capitals = {
        "Å", "Ɓ", "Ç", "Ð", "É", "Ƒ", "Ĝ", "Ĥ", "Î", "Ĵ", "Ķ", "Ļ", "Ṁ",
        "Ñ", "Ö", "Þ", "Ǫ", "Ŕ", "Š", "Ţ", "Û", "Ṽ", "Ŵ", "Ẋ", "Ý", "Ž"};
    static constexpr std::array<const char*, 26> smalls = {
        "å", "ƀ", "ç", "ð", "é", "ƒ", "ĝ", "ĥ", "î", "ĵ", "ķ", "ļ", "ṁ",
        "ñ", "ö", "þ", "ǫ", "ŕ", "š", "ţ", "û", "ṽ", "ŵ", "ẋ", "ý", "ž"};
    if (letter >= 'A' && letter <= 'Z') {
        return capitals[static_cast<std::size_t>(letter - 'A')];
    }
    return letter >= 'a' && letter <= 'z' ? smalls[static_cast<std::size_t>(letter - 'a')]
                                          : nullptr;
}

/// How many bytes are an escape, or one byte.
std::size_t StepAt(std::string_view text, std::size_t at) {
    const bool isEscape = text[at] == '\\' && at + 1 < text.size() &&
                          (text[at + 1] == 'n' || text[at + 1] == '\\' || text[at + 1] == '\'');
    return isEscape ? 2 : 1;
}

bool IsBreak(std::string_view step) {
    return step == "\\n" || step == "\n" || step == "\r";
}

bool IsSpace(std::string_view step) {
    return IsBreak(step) || step == " " || step == "\t";
}

/// A string without its quotes: white space at its ends, and what is between.
struct Ends {
    std::size_t begin = 0;
    std::size_t end = 0;

    explicit Ends(std::string_view text) : begin(text.size()) {
        std::size_t step = 0;
        for (std::size_t at = 0; at < text.size(); at += step) {
            step = StepAt(text, at);
            if (!IsSpace(text.substr(at, step))) {
                begin = std::min(begin, at);
                end = at + step;
            }
        }
        end = std::max(begin, end);
    }
};

std::string AccentedText(std::string_view text) {
    std::string accented;
    std::size_t step = 0;
    for (std::size_t at = 0; at < text.size(); at += step) {
        step = StepAt(text, at);
        const char* const letter = step == 1 ? Accented(text[at]) : nullptr;
        if (letter != nullptr) {
            accented += letter;
        } else {
            accented += text.substr(at, step);
        }
    }
    return accented;
}

/// An override ends with its line.
std::string TurnedText(std::string_view text) {
    std::string turned;
    bool isOpen = false;
    const auto close = [&] {
        turned += isOpen ? std::string(kEndOfOverride) + kRightToLeftMark : "";
        isOpen = false;
    };
    const Ends ends(text);
    std::size_t step = 0;
    for (std::size_t at = 0; at < text.size(); at += step) {
        step = StepAt(text, at);
        const std::string_view part = text.substr(at, step);
        if (at == ends.end || IsBreak(part)) {
            close();
        } else if (!isOpen && at >= ends.begin && at < ends.end) {
            turned += std::string(kRightToLeftMark) + kOverride;
            isOpen = true;
        }
        turned += part;
    }
    close();
    return turned;
}

std::string_view Inside(const Document& document, const Operand& string) {
    return document.Bytes({string.range.begin + 1, string.range.end - 1});
}

/// How many characters a value shows at most, parameters and references aside.
std::size_t LengthOf(const Document& document, Value value) {
    std::size_t length = 0;
    for (const Operand& operand : value) {
        if (operand.kind == OperandKind::Text) {
            for (const char byte : Inside(document, operand)) {
                length += (static_cast<unsigned char>(byte) & 0xC0U) != 0x80 ? 1 : 0;
            }
        }
        std::size_t longest = 0;
        for (const Value form : FormsOf(operand)) {
            longest = std::max(longest, LengthOf(document, form));
        }
        length += longest;
    }
    return length;
}

/// Around a whole text, so that one that is put together of several, or cut, can be seen.
void AddBrackets(const Document& document, const Entry& entry, std::vector<Edit>& edits) {
    const Value value = document.ValueOf(entry);
    const std::size_t length = LengthOf(document, value);
    if (length == 0) {
        return;
    }
    const Operand* last = nullptr;
    for (const Operand& operand : value) {
        last = &operand;
    }
    const Operand& first = *value.begin();
    const std::string close = ' ' + std::string((length + 2) / 3, '~') + ']';
    if (first.kind == OperandKind::Text) {
        const auto begin =
            static_cast<std::uint32_t>(first.range.begin + 1 + Ends(Inside(document, first)).begin);
        edits.push_back({{begin, begin}, "["});
    } else {
        edits.push_back({{first.range.begin, first.range.begin}, "'[' + "});
    }
    if (last->kind == OperandKind::Text) {
        const auto end =
            static_cast<std::uint32_t>(last->range.begin + 1 + Ends(Inside(document, *last)).end);
        edits.push_back({{end, end}, close});
    } else {
        edits.push_back({{last->range.end, last->range.end}, " + '" + close + '\''});
    }
}

/// What the source's comments ask the tools about the file as a whole does not hold for this one.
void RemoveRequests(const Document& document, std::vector<Edit>& edits) {
    constexpr std::string_view kRequest = "; localize:";
    std::set<std::uint32_t> ofEntries;
    for (std::size_t entry = 0; entry < document.Entries().size(); ++entry) {
        ofEntries.insert(CommentAfter(document, entry).begin);
        for (const Range comment : CommentsAbove(document, entry)) {
            ofEntries.insert(comment.begin);
        }
    }
    for (const lm_source::Comment& comment : CommentsOf(document)) {
        if (document.Bytes(comment.range).substr(0, kRequest.size()) == kRequest &&
            ofEntries.count(comment.range.begin) == 0) {
            edits.push_back({comment.range, ""});
        }
    }
}

}  // namespace

std::string Pseudolocalized(const Document& document, PseudoStyle style) {
    const bool isAccented = style == PseudoStyle::Accented;
    std::vector<Edit> edits;
    RemoveRequests(document, edits);
    for (const Entry& entry : document.Entries()) {
        for (const Operand& operand : document.OperandsOf(entry)) {
            if (operand.kind == OperandKind::Text) {
                const std::string_view text = Inside(document, operand);
                edits.push_back({{operand.range.begin + 1, operand.range.end - 1},
                                 isAccented ? AccentedText(text) : TurnedText(text)});
            }
        }
    }
    std::string pseudo = Apply(document.Bytes(), std::move(edits));
    if (isAccented) {
        const Document accented(pseudo);
        std::vector<Edit> brackets;
        for (const Entry& entry : accented.Entries()) {
            AddBrackets(accented, entry, brackets);
        }
        pseudo = Apply(pseudo, std::move(brackets));
    }
    return pseudo;
}

}  // namespace lm_edit
