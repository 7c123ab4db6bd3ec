// Dictionaries from and to readable text.
#pragma once

#include <boost/variant/apply_visitor.hpp>
#include <boost/variant/static_visitor.hpp>
#include <string>
#include <string_view>

#include "LocFileParser.h"
#include "ResourceDictionary.h"
#include "Utf8.h"

namespace lm_test {

namespace model = LocalizationManager::StringLocalizing::Model;
using LocalizationManager::Text::ToUtf8;

/// Adds the entries of a source to a dictionary.
inline void ParseInto(model::ResourceDictionary& dictionary, std::u16string_view source) {
    using namespace LocalizationManager::StringLocalizing::Parsing;
    const SourceRange range = MakeSourceRange(source, u"app.lt");
    ParseResourceDictionary(range.first, range.last, dictionary);
}

inline model::ResourceDictionary ParseDictionary(std::u16string_view source) {
    model::ResourceDictionary dictionary;
    ParseInto(dictionary, source);
    return dictionary;
}

inline std::string Quote(const std::u16string& text) {
    return '"' + ToUtf8(text) + '"';
}

/// @param printText  how texts are written.
inline std::string PrintValue(const model::Value& value,
                              std::string (*printText)(const std::u16string&) = Quote);

struct OperandPrinter : boost::static_visitor<std::string> {
    std::string (*printText)(const std::u16string&);

    std::string operator()(const std::u16string& text) const { return printText(text); }
    std::string operator()(const model::KeyRef& ref) const { return ToUtf8(ref.key); }
    std::string operator()(const model::Param& param) const { return '$' + ToUtf8(param.name); }
    std::string operator()(const model::PluralForm& pluralForm) const {
        std::string text = "{$" + ToUtf8(pluralForm.paramName);
        for (const model::Value& form : pluralForm.forms) {
            text +=
                (&form == &pluralForm.forms.front() ? ": " : ", ") + PrintValue(form, printText);
        }
        return text + '}';
    }
};

/// "text" + key + $param + {$param: value, value}
inline std::string PrintValue(const model::Value& value,
                              std::string (*printText)(const std::u16string&)) {
    const OperandPrinter printer{{}, printText};
    std::string text;
    for (const model::Operand& operand : value.operands) {
        text += (text.empty() ? "" : " + ") + boost::apply_visitor(printer, operand);
    }
    return text;
}

/// key = value;key = value;
inline std::string PrintDictionary(const model::ResourceDictionary& dictionary) {
    std::string text;
    for (const auto& [key, value] : dictionary) {
        text += ToUtf8(key) + " = " + PrintValue(value) + ";";
    }
    return text;
}

}  // namespace lm_test
