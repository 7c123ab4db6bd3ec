#include "source/Parser.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "NestingGuard.h"
#include "max_forms.h"
#include "source/Encoding.h"

namespace lm_source {

using LocalizationManager::StringLocalizing::Model::kMaxForms;
using LocalizationManager::StringLocalizing::Parsing::kMaxNesting;

Parser::Parser(std::string_view bytes, Range content)
    : bytes_(bytes),
      scanner_(bytes, content),
      recovery_(bytes, scanner_, content.begin),
      at_(content.begin),
      entryBegin_(content.begin) {}

Syntax Parser::Parse() {
    while ((at_ = scanner_.SkipSpaceAndComments(at_)) < scanner_.End()) {
        if (!ParseEntry()) {
            at_ = recovery_.Resume(syntax_);
        }
    }
    syntax_.entries.shrink_to_fit();
    syntax_.operands.shrink_to_fit();
    return std::move(syntax_);
}

bool Parser::ParseEntry() {
    entryBegin_ = at_;
    Entry entry;
    entry.key = {at_, scanner_.SkipName(at_)};
    if (entry.key.empty()) {
        return Fail(MistakeKind::NoEntry, at_);
    }
    at_ = scanner_.SkipSpace(entry.key.end);
    if (scanner_.At(at_) != '=') {
        return Fail(MistakeKind::MissingEquals, at_);
    }
    entry.firstOperand = static_cast<std::uint32_t>(syntax_.operands.size());
    syntax_.entries.push_back(entry);
    at_ = scanner_.SkipSpace(at_ + 1);
    if (!ParseValue(false)) {
        return false;
    }
    syntax_.entries.back().end = at_;
    syntax_.entries.back().operandsEnd = static_cast<std::uint32_t>(syntax_.operands.size());
    AddLastKey(syntax_, bytes_);
    return true;
}

bool Parser::ParseValue(bool isForm) {
    Found found = ParseOperand(isForm);
    if (found == Found::Nothing) {
        return Fail(MistakeKind::MissingValue, at_);
    }
    while (found == Found::Operand) {
        const std::uint32_t end = at_;
        const std::uint32_t plus = scanner_.SkipSpace(end);
        if (scanner_.At(plus) != '+') {
            return true;
        }
        at_ = scanner_.SkipSpace(plus + 1);
        found = ParseOperand(false);
        if (found == Found::Nothing) {
            at_ = end;  // the "+" is not part of the value
            return true;
        }
    }
    return false;
}

Parser::Found Parser::ParseOperand(bool beginsForm) {
    switch (scanner_.At(at_)) {
        case '\'':
            return ParseString(beginsForm);
        case '$':
            return ParseParameter(beginsForm);
        case '{':
            return ParsePluralForm(beginsForm);
        default:
            return scanner_.BeginsName(at_)
                       ? AddOperand(OperandKind::KeyRef, scanner_.SkipName(at_), beginsForm)
                       : Found::Nothing;
    }
}

Parser::Found Parser::ParseString(bool beginsForm) {
    const std::uint32_t quote = scanner_.FindQuote(at_ + 1);
    if (quote == scanner_.End()) {
        Fail(MistakeKind::UnclosedString, quote, {at_, at_ + 1});
        return Found::Mistake;
    }
    return AddOperand(OperandKind::Text, quote + 1, beginsForm);
}

Parser::Found Parser::ParseParameter(bool beginsForm) {
    const std::uint32_t end = scanner_.SkipName(at_ + 1);
    if (end == at_ + 1) {
        Fail(MistakeKind::MissingName, end);
        return Found::Mistake;
    }
    // One before a ":" chooses a form, and is no operand.
    return scanner_.At(scanner_.SkipSpace(end)) == ':'
               ? Found::Nothing
               : AddOperand(OperandKind::Param, end, beginsForm);
}

Parser::Found Parser::ParsePluralForm(bool beginsForm) {
    if (depth_ == kMaxNesting) {
        Fail(MistakeKind::NestedTooDeep, at_);
        return Found::Mistake;
    }
    const std::size_t number = syntax_.operands.size();
    AddOperand(OperandKind::PluralForm, at_ + 1, beginsForm);
    ++depth_;
    const bool isComplete = ParsePluralHead() && ParseForms();
    --depth_;
    Operand& operand = syntax_.operands[number];
    operand.range.end = at_;
    operand.extent = static_cast<std::uint32_t>(syntax_.operands.size() - number);
    return isComplete ? Found::Operand : Found::Mistake;
}

bool Parser::ParsePluralHead() {
    at_ = scanner_.SkipSpace(at_);
    if (scanner_.At(at_) != '$') {
        return Fail(MistakeKind::MissingParameter, at_);
    }
    const std::uint32_t end = scanner_.SkipName(at_ + 1);
    if (end == at_ + 1) {
        return Fail(MistakeKind::MissingName, end);
    }
    at_ = scanner_.SkipSpace(end);
    if (scanner_.At(at_) != ':') {
        return Fail(MistakeKind::MissingColon, at_);
    }
    ++at_;
    return true;
}

bool Parser::ParseForms() {
    for (int forms = 0; forms == 0 || scanner_.At(at_) == ','; ++forms) {
        if (forms == kMaxForms) {
            return Fail(MistakeKind::TooManyForms, at_);
        }
        at_ = scanner_.SkipSpace(forms == 0 ? at_ : at_ + 1);
        if (!ParseValue(true)) {
            return false;
        }
        at_ = scanner_.SkipSpace(at_);
    }
    if (scanner_.At(at_) != '}') {
        return Fail(MistakeKind::MissingBrace, at_);
    }
    ++at_;
    return true;
}

Parser::Found Parser::AddOperand(OperandKind kind, std::uint32_t end, bool beginsForm) {
    Operand operand;
    operand.range = {at_, end};
    operand.kind = kind;
    operand.beginsForm = beginsForm;
    syntax_.operands.push_back(operand);
    at_ = end;
    return Found::Operand;
}

bool Parser::Fail(MistakeKind kind, std::uint32_t at, Range other) {
    at_ = at;
    syntax_.mistakes.push_back({kind, ShownAt(at), other, entryBegin_});
    return false;
}

Range Parser::ShownAt(std::uint32_t at) const {
    std::uint32_t end = scanner_.LineEnd(at);
    if (end == at) {
        return {at, at};
    }
    switch (scanner_.At(at)) {
        case ';':
            break;
        case '\'':
            end = std::min(end, scanner_.FindQuote(at + 1) + 1);
            break;
        case '$':
            end = std::max(at + 1, scanner_.SkipName(at + 1));
            break;
        default:
            end = scanner_.BeginsName(at) ? scanner_.SkipName(at)
                                          : at + FirstCharacter(bytes_.substr(at, end - at)).bytes;
    }
    return {at, end};
}

}  // namespace lm_source
