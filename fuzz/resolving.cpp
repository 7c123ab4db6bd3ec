// Fuzzes the compiler with the resolvers, against a slow model of the language.
#include <boost/lexical_cast/bad_lexical_cast.hpp>
#include <boost/lexical_cast/try_lexical_convert.hpp>
#include <boost/make_shared.hpp>
#include <map>
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
using Dictionary = std::map<std::u16string, Model::ValueView>;
using lm_fuzz::Require;
using Model::OperandKind;
using Operands = std::vector<Model::OperandView>;

/// Has the texts of the input; "!" is none.
struct Parameters : Resolving::IParamResolver {
    std::u16string texts;

    qor::string16_t Resolve(const qor::string16_t& name) override {
        const std::u16string_view text = lm_fuzz::ParameterText(texts, name.view());
        return text != u"!" ? qor::string16_t(text) : throw std::runtime_error("no text");
    }
};

/// Looks a key up and puts its value in place, whenever it meets it.
struct LanguageModel {
    /// Inputs are too short for a limit of expansion when no value has more.
    static constexpr std::size_t kMaxOperands = 50;

    std::vector<Dictionary> dictionaries;  // a value sees the keys of its own and of later ones
    Resolving::IParamResolver& parameters;
    Model::PluralFormRule rule;
    std::set<const char16_t*> path{};

    std::u16string Check() {
        for (const std::size_t level : {1U, 0U}) {
            for (const auto& entry : dictionaries[level]) {
                Inline(level, entry.first);
            }
        }
        return u"";
    }

    /// The value of a key without references.
    Operands Inline(std::size_t level, const std::u16string& key) {
        while (level < dictionaries.size() && dictionaries[level].count(key) == 0) {
            ++level;
        }
        if (level == dictionaries.size()) {
            throw Model::KeyNotFoundException(key);
        }
        const Model::ValueView value = dictionaries[level].at(key);
        if (!path.insert(value.code().data()).second) {
            throw Compiling::CyclicReferenceException(key);
        }
        Operands inlined;
        for (const Model::OperandView& operand : value) {
            const Operands parts = operand.kind == OperandKind::KeyRef
                                       ? Inline(level, std::u16string(operand.text))
                                       : Operands{operand};
            inlined.insert(inlined.end(), parts.begin(), parts.end());
            if (inlined.size() > kMaxOperands) {
                throw Compiling::ExpansionLimitException(key, kMaxOperands);
            }
        }
        path.erase(value.code().data());
        return inlined;
    }

    std::u16string Text(const Operands& operands) {
        std::u16string text;
        for (const Model::OperandView& operand : operands) {
            if (operand.kind == OperandKind::Text) {
                text += operand.text;
            } else if (operand.kind == OperandKind::Param) {
                text += parameters.Resolve(qor::string16_t(operand.text)).view();
            } else if (operand.kind == OperandKind::PluralForm) {
                text += Text(Form(operand));
            } else {
                throw std::logic_error("a reference in a form");
            }
        }
        return text;
    }

    Operands Form(const Model::OperandView& pluralForm) {
        std::vector<Model::ValueView> forms;
        ForEachForm(pluralForm, [&](Model::ValueView form) { forms.push_back(form); });
        const qor::string16_t text = parameters.Resolve(qor::string16_t(pluralForm.text));
        std::int64_t number = 0;
        if (!boost::conversion::try_lexical_convert(lm_test::ToUtf8(text.view()), number)) {
            throw boost::bad_lexical_cast();
        }
        std::size_t form = 0;
        while (form < rule.size() && !rule[form](number)) {
            ++form;
        }
        return rule.size() == forms.size() && form < rule.size()
                   ? Operands(forms[form].begin(), forms[form].end())
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

using DictionaryPointer = boost::shared_ptr<Model::ResourceDictionary>;

std::u16string Compile(const DictionaryPointer& scope, const DictionaryPointer& common) {
    const auto compiler = boost::make_shared<Compiling::ResourceCompiler>(
        boost::make_shared<Compiling::RootExpressionProvider>());
    compiler->Compile(common);
    Compiling::ResourceCompiler(compiler).Compile(scope);
    return u"";
}

void Compare(const std::array<std::u16string, 4>& input) {
    using Model::ResourceDictionary;
    const auto scope = boost::make_shared<ResourceDictionary>(lm_test::ParseDictionary(input[0]));
    const auto common = boost::make_shared<ResourceDictionary>(lm_test::ParseDictionary(input[1]));
    const auto parameters = boost::make_shared<Parameters>();
    parameters->texts = input[2];
    const Model::PluralFormRuleId id(
        static_cast<localization_manager::Language>((input[3] + u'.')[0] % 38), "");
    const auto rules = Model::CreatePluralFormRules();
    const auto scopeOfModel = lm_test::ParseDictionary(input[0]);
    const auto commonOfModel = lm_test::ParseDictionary(input[1]);
    LanguageModel model{{lm_test::EntriesOf(scopeOfModel), lm_test::EntriesOf(commonOfModel)},
                        *parameters,
                        rules->GetRule(id)};

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
    for (const Dictionary& keys : {model.dictionaries[0], model.dictionaries[1],
                                   Dictionary{{u"no.key", Model::ValueView({})}}}) {
        for (const auto& entry : keys) {
            const auto text = OutcomeOf(
                [&] { return std::u16string(provider.GetString(entry.first, nullptr).view()); });
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
