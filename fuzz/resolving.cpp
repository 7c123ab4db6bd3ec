// Fuzzes the compiler with the resolvers, against a slow model of the language.
#include <boost/lexical_cast/bad_lexical_cast.hpp>
#include <boost/lexical_cast/try_lexical_convert.hpp>
#include <boost/make_shared.hpp>
#include <boost/variant/get.hpp>
#include <set>
#include <typeinfo>

#include "CyclicReferenceException.h"
#include "DictionaryText.h"
#include "ExpansionLimitException.h"
#include "Input.h"
#include "KeyNotFoundException.h"
#include "KeyResolver.h"
#include "ParsingException.h"
#include "PluralFormRules.h"
#include "PluralResolver.h"
#include "ResourceCompiler.h"
#include "RootExpressionProvider.h"
#include "RootStringProvider.h"
#include "StringProvider.h"

namespace {

using namespace LocalizationManager::StringLocalizing;
using Dictionary = Model::ResourceDictionary;
using Operands = std::vector<Model::Operand>;
using lm_fuzz::Require;

/// Has the texts of the input; "!" is none.
struct Parameters : Resolving::IParamResolver {
    std::u16string texts;

    std::u16string Resolve(const std::u16string& name) override {
        const std::u16string_view text = lm_fuzz::ParameterText(texts, name);
        return text != u"!" ? std::u16string(text) : throw std::runtime_error("no text");
    }
};

/// Looks a key up and puts its value in place, whenever it meets it.
struct LanguageModel {
    /// Inputs are too short for a limit of expansion when no value has more.
    static constexpr std::size_t kMaxOperands = 50;

    std::vector<Dictionary> dictionaries;  // a value sees the keys of its own and of later ones
    Resolving::IParamResolver& parameters;
    Model::PluralFormRule rule;
    std::set<const Model::Value*> path{};

    std::u16string Check() {
        for (const std::size_t level : {1U, 0U}) {
            for (const auto& entry : dictionaries[level]) {
                Inline(level, entry.first);
            }
        }
        return u"";
    }

    /// The value of a key without references.
    Model::Value Inline(std::size_t level, const std::u16string& key) {
        while (level < dictionaries.size() && dictionaries[level].count(key) == 0) {
            ++level;
        }
        if (level == dictionaries.size()) {
            throw Model::KeyNotFoundException(key);
        }
        const Model::Value& value = dictionaries[level].at(key);
        if (!path.insert(&value).second) {
            throw Compiling::CyclicReferenceException(key);
        }
        Operands inlined;
        for (const Model::Operand& operand : value.operands) {
            const auto* const ref = boost::get<Model::KeyRef>(&operand);
            const Operands parts =
                ref != nullptr ? Inline(level, ref->key).operands : Operands{operand};
            inlined.insert(inlined.end(), parts.begin(), parts.end());
            if (inlined.size() > kMaxOperands) {
                throw Compiling::ExpansionLimitException(key, kMaxOperands);
            }
        }
        path.erase(&value);
        return {inlined};
    }

    std::u16string Text(const Model::Value& value) {
        std::u16string text;
        for (const Model::Operand& operand : value.operands) {
            if (const auto* const literal = boost::get<std::u16string>(&operand)) {
                text += *literal;
            } else if (const auto* const param = boost::get<Model::Param>(&operand)) {
                text += parameters.Resolve(param->name);
            } else if (const auto* const pluralForm = boost::get<Model::PluralForm>(&operand)) {
                text += Text(Form(*pluralForm));
            } else {
                throw std::logic_error("a reference in a form");
            }
        }
        return text;
    }

    const Model::Value& Form(const Model::PluralForm& pluralForm) {
        std::string digits;
        for (const char16_t unit : parameters.Resolve(pluralForm.paramName)) {
            digits += unit < 0x80 ? static_cast<char>(unit) : '?';
        }
        std::int64_t number = 0;
        if (!boost::conversion::try_lexical_convert(digits, number)) {
            throw boost::bad_lexical_cast();
        }
        std::size_t form = 0;
        while (form < rule.size() && !rule[form](number)) {
            ++form;
        }
        return rule.size() == pluralForm.forms.size() && form < rule.size()
                   ? pluralForm.forms[form]
                   : throw std::logic_error("no form");
    }
};

/// The text that a call gives, or the kind of its failure.
template <class Call>
std::pair<std::u16string, std::string> OutcomeOf(Call call) {
    try {
        return {call(), ""};
    } catch (const std::exception& failure) {
        return {u"", typeid(failure).name()};
    }
}

std::u16string Compile(const boost::shared_ptr<Dictionary>& scope,
                       const boost::shared_ptr<Dictionary>& common) {
    const auto compiler = boost::make_shared<Compiling::ResourceCompiler>(
        boost::make_shared<Compiling::RootExpressionProvider>());
    compiler->Compile(common);
    Compiling::ResourceCompiler(compiler).Compile(scope);
    return u"";
}

void Compare(const std::array<std::u16string, 4>& input) {
    const auto scope = boost::make_shared<Dictionary>(lm_test::ParseDictionary(input[0]));
    const auto common = boost::make_shared<Dictionary>(lm_test::ParseDictionary(input[1]));
    const auto parameters = boost::make_shared<Parameters>();
    parameters->texts = input[2];
    const Model::PluralFormRuleId id(
        static_cast<localization_manager::Language>((input[3] + u'.')[0] % 38), "");
    const auto rules = Model::CreatePluralFormRules();
    LanguageModel model{{*scope, *common}, *parameters, rules->GetRule(id)};

    const std::string expected = OutcomeOf([&] { return model.Check(); }).second;
    const std::string compiled = OutcomeOf([&] { return Compile(scope, common); }).second;
    Require(compiled == expected || expected == typeid(Compiling::ExpansionLimitException).name(),
            "the compiler agrees with the model");
    if (!expected.empty()) {
        return;
    }
    const auto keyResolver = boost::make_shared<Resolving::KeyResolver>(
        parameters, boost::make_shared<Resolving::PluralResolver>(parameters, id, rules));
    const auto root = boost::make_shared<Resolving::RootStringProvider>(keyResolver, common, u"");
    Resolving::StringProvider provider(keyResolver, scope, root, u"");
    for (const Dictionary& keys : {*scope, *common, Dictionary{{u"no.key", {}}}}) {
        for (const auto& entry : keys) {
            const auto text = OutcomeOf([&] { return provider.GetString(entry.first, nullptr); });
            Require(text == OutcomeOf([&] { return model.Text(model.Inline(0, entry.first)); }),
                    "the resolvers agree with the model");
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        Compare(lm_fuzz::Parts(lm_fuzz::Decode(data, size)));
    } catch (const Parsing::ParsingException&) {
        // Nothing to compare.
    }
    return 0;
}
