// Documents as readable text, in the form that `DictionaryText.h` gives dictionaries.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "DictionaryText.h"
#include "source/Document.h"

namespace lm_test {

inline std::string PrintValue(const lm_source::Document& document, lm_source::Value value);

inline std::string PrintOperand(const lm_source::Document& document,
                                const lm_source::Operand& operand) {
    switch (operand.kind) {
        case lm_source::OperandKind::Text:
            return Quote(localization_manager::host::ToUtf16(document.Text(operand)));
        case lm_source::OperandKind::KeyRef:
            return document.LowerKey(document.Name(operand));
        case lm_source::OperandKind::Param:
            return '$' + std::string(document.Name(operand));
        case lm_source::OperandKind::PluralForm:
            break;
    }
    std::string text = "{$" + std::string(document.Name(operand));
    std::string separator = ": ";
    for (const lm_source::Value& form : FormsOf(operand)) {
        text += std::exchange(separator, ", ") + PrintValue(document, form);
    }
    return text + '}';
}

inline std::string PrintValue(const lm_source::Document& document, lm_source::Value value) {
    std::string text;
    for (const lm_source::Operand& operand : value) {
        text += (text.empty() ? "" : " + ") + PrintOperand(document, operand);
    }
    return text;
}

/// The entries in the order of the keys.
inline std::string PrintDocument(const lm_source::Document& document) {
    std::map<std::u16string, std::string> entries;
    for (const lm_source::Entry& entry : document.Entries()) {
        entries.emplace(localization_manager::host::ToUtf16(document.LowerKey(entry)),
                        PrintValue(document, document.ValueOf(entry)));
    }
    std::string text;
    for (const auto& [key, value] : entries) {
        text += (text.empty() ? "" : " ") + ToUtf8(key) + " = " + value;
    }
    return text;
}

}  // namespace lm_test
