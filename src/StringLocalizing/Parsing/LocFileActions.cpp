#include "LocFileActions.h"

#include "DuplicateKeyException.h"

namespace LocalizationManager::StringLocalizing::Parsing {

void AddEntry(Model::ResourceDictionary& dictionary, KeyValueEntry& entry,
              const Text::LowerCaseMapping& lowerCase) {
    lowerCase.Map(entry.first, entry.first.data());
    if (!dictionary.Add(entry.first, entry.second)) {
        throw DuplicateKeyException(entry.first);
    }
}

void AddOperand(Model::Value& value, Model::Operand& operand) {
    Model::Append(value, operand);
}

void SetKeyRef(Model::KeyRef& keyRef, std::u16string& name,
               const Text::LowerCaseMapping& lowerCase) {
    lowerCase.Map(name, name.data());
    keyRef.key = std::move(name);
}

void SetName(Model::Param& param, std::u16string& name) {
    param.name = std::move(name);
}

void SetName(Model::PluralForm& pluralForm, std::u16string& name) {
    pluralForm.paramName = std::move(name);
}

void AddForm(Model::PluralForm& pluralForm, Model::Value& value) {
    pluralForm.forms.push_back(std::move(value));
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
