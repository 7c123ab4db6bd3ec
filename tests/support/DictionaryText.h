// Dictionaries from and to readable text.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "LocFileParser.h"
#include "ResourceDictionary.h"
#include "localization_manager/host/text.h"

namespace lm_test {

namespace model = LocalizationManager::StringLocalizing::Model;
using localization_manager::host::ToUtf8;

/// Adds the entries of a source to a dictionary.
inline void ParseInto(model::ResourceDictionary& dictionary, std::u16string_view source) {
    using namespace LocalizationManager::StringLocalizing::Parsing;
    const SourceRange range = MakeSourceRange(source, u"app.lt");
    ParseResourceDictionary(range.first, range.last, dictionary);
}

inline model::ResourceDictionary ParseDictionary(const std::u16string& source) {
    model::ResourceDictionary dictionary;
    ParseInto(dictionary, source);
    return dictionary;
}

inline std::string Quote(std::u16string_view text) {
    std::string quoted = "'";
    for (const char character : ToUtf8(text)) {
        quoted += character == '\'' || character == '\\' || character == '\n' ? "\\" : "";
        quoted += character == '\n' ? 'n' : character;
    }
    return quoted + '\'';
}

/// 'text' + key + $param + {$param: value, value}
inline std::string PrintValue(model::ValueView value) {
    const auto print = [&](const model::OperandView& operand) {
        switch (operand.kind) {
            case model::OperandKind::Text:
                return Quote(operand.text);
            case model::OperandKind::KeyRef:
                return ToUtf8(operand.text);
            case model::OperandKind::Param:
                return '$' + ToUtf8(operand.text);
            case model::OperandKind::PluralForm:
                break;
        }
        std::string text = "{$" + ToUtf8(operand.text);
        std::string separator = ": ";
        ForEachForm(operand, [&](model::ValueView form) {
            text += std::exchange(separator, ", ") + PrintValue(form);
        });
        return text + '}';
    };
    std::string text;
    for (const model::OperandView& operand : value) {
        text += (text.empty() ? "" : " + ") + print(operand);
    }
    return text;
}

/// The entries in the order of the keys.
inline std::map<std::u16string, model::ValueView> EntriesOf(
    const model::ResourceDictionary& dictionary) {
    std::map<std::u16string, model::ValueView> entries;
    dictionary.ForEach([&](auto position) {
        const auto [key, value] = dictionary.At(position);
        entries.emplace(key, value);
    });
    return entries;
}

/// The entries as a source: key = value key = value
inline std::string PrintDictionary(const model::ResourceDictionary& dictionary) {
    std::string text;
    for (const auto& [key, value] : EntriesOf(dictionary)) {
        text += (text.empty() ? "" : " ") + ToUtf8(key) + " = " + PrintValue(value);
    }
    return text;
}

}  // namespace lm_test
