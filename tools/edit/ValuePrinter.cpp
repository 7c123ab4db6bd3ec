#include "edit/ValuePrinter.h"

#include <algorithm>

namespace lm_edit {

using lm_source::Operand;
using lm_source::OperandKind;
using lm_source::Value;

namespace {

constexpr std::size_t kWidth = 110;

/// Deeper lines would be blanks for the most part.
constexpr std::size_t kDeepest = 72;

/// Where a text ends.
/// @param widest  becomes the last column that it reaches, if that is more.
std::size_t ColumnAfter(std::string_view text, std::size_t column, std::size_t& widest) {
    for (const char byte : text) {
        if (byte == '\n' || byte == '\r') {
            column = 0;
        } else if ((static_cast<unsigned char>(byte) & 0xC0U) != 0x80) {
            widest = std::max(widest, ++column);
        }
    }
    return column;
}

std::size_t ColumnAfter(std::string_view text, std::size_t column) {
    std::size_t widest = 0;
    return ColumnAfter(text, column, widest);
}

/// @param further  what has to follow it on the line.
bool Fits(std::string_view text, std::size_t column, std::size_t further) {
    std::size_t widest = 0;
    const std::size_t end = ColumnAfter(text, column, widest) + further;
    return std::max(widest, end) <= kWidth;
}

/// A line of the text ends one of the file.
bool EndsLine(const Operand& operand, std::string_view string) {
    constexpr std::string_view kEnd = "\\n'";
    return operand.kind == OperandKind::Text && string.size() > kEnd.size() &&
           string.substr(string.size() - kEnd.size()) == kEnd;
}

}  // namespace

std::string ValuePrinter::Flat(Value value) const {
    std::string flat;
    for (const Operand& operand : value) {
        flat += (flat.empty() ? "" : " + ") + Flat(operand);
    }
    return flat;
}

std::string ValuePrinter::Head(const Operand& pluralForm) const {
    return "{$" + std::string(document_.Name(pluralForm)) + ": ";
}

std::string ValuePrinter::Flat(const Operand& operand) const {
    if (operand.kind != OperandKind::PluralForm) {
        return std::string(document_.Bytes(operand.range));
    }
    std::string flat = Head(operand);
    const char* separator = "";
    for (const Value form : FormsOf(operand)) {
        flat += separator + Flat(form);
        separator = ", ";
    }
    return flat + '}';
}

std::string ValuePrinter::Forms(const Operand& pluralForm, std::size_t column) const {
    std::string text = Head(pluralForm);
    const std::size_t formColumn = std::min(ColumnAfter(text, column), kDeepest);
    bool isFirst = true;
    for (const Value form : FormsOf(pluralForm)) {
        if (!isFirst) {
            text.append(",").append(lineBreak_).append(formColumn, ' ');
        }
        text += Print(form, formColumn, formColumn);
        isFirst = false;
    }
    return text + '}';
}

/// A line is filled as far as operands fit; forms that need several lines begin one and end one.
std::string ValuePrinter::Print(Value value, std::size_t column, std::size_t plusColumn) const {
    std::string text;
    bool mustBreak = false;
    for (const Operand& operand : value) {
        const std::string flat = Flat(operand);
        const std::size_t before = text.empty() ? 0 : 3;
        const bool isFirst = before == 0;
        const bool isPlural = operand.kind == OperandKind::PluralForm;
        if (!mustBreak && Fits(flat, column + before, 1)) {
            text.append(isFirst ? "" : " + ").append(flat);
            column = ColumnAfter(flat, column + before);
            mustBreak = EndsLine(operand, flat);
            continue;
        }
        if (!isFirst) {
            text.append(lineBreak_).append(plusColumn, ' ').append("+ ");
            column = plusColumn + 2;
        }
        const bool isBroken = isPlural && !Fits(flat, column, 1);
        mustBreak = isBroken || EndsLine(operand, flat);
        const std::string shown = isBroken ? Forms(operand, column) : flat;
        text += shown;
        column = ColumnAfter(shown, column);
    }
    return text;
}

}  // namespace lm_edit
