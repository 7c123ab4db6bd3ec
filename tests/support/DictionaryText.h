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

inline model::ResourceDictionary ParseDictionary(std::u16string_view source) {
    using namespace LocalizationManager::StringLocalizing::Parsing;
    model::ResourceDictionary dictionary;
    const SourceRange range = MakeSourceRange(source, u"app.lt");
    ParseResourceDictionary(range.first, range.last, dictionary);
    return dictionary;
}

inline std::string PrintValue(const model::Value& value);

struct OperandPrinter : boost::static_visitor<std::string> {
    std::string operator()(const std::u16string& text) const { return '"' + Utf8(text) + '"'; }
    std::string operator()(const model::KeyRef& ref) const { return Utf8(ref.key); }
    std::string operator()(const model::Param& param) const { return '$' + Utf8(param.name); }
    std::string operator()(const model::PluralForm& pluralForm) const {
        std::string text = "{$" + Utf8(pluralForm.paramName);
        for (const model::Value& form : pluralForm.forms) {
            text += (&form == &pluralForm.forms.front() ? ": " : ", ") + PrintValue(form);
        }
        return text + '}';
    }

private:
    static std::string Utf8(std::u16string_view text) {
        return LocalizationManager::Text::ToUtf8(text);
    }
};

/// "text" + key + $param + {$param: value, value}
inline std::string PrintValue(const model::Value& value) {
    std::string text;
    for (const model::Operand& operand : value.operands) {
        text += (text.empty() ? "" : " + ") + boost::apply_visitor(OperandPrinter(), operand);
    }
    return text;
}

/// key = value;key = value;
inline std::string PrintDictionary(const model::ResourceDictionary& dictionary) {
    std::string text;
    for (const auto& [key, value] : dictionary) {
        text += LocalizationManager::Text::ToUtf8(key) + " = " + PrintValue(value) + ";";
    }
    return text;
}

}  // namespace lm_test
