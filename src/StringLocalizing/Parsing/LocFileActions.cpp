#include "LocFileActions.h"

#include <memory>

#include "DuplicateKeyException.h"
#include "LowerCase.h"

namespace LocalizationManager::StringLocalizing::Parsing {

void AddEntry(Model::ResourceDictionary& dictionary, KeyValueEntry& entry) {
    const auto [position, isNew] =
        dictionary.try_emplace(Text::LowerCase(std::move(entry.first)), std::move(entry.second));
    if (!isNew) {
        throw DuplicateKeyException(position->first);
    }
}

void AddOperand(Model::Value& value, Model::Operand& operand) {
    value.operands.push_back(std::move(operand));
}

void SetKeyRef(Model::KeyRef& keyRef, std::u16string& name) {
    keyRef.key = Text::LowerCase(std::move(name));
}

void SetName(Model::Param& param, std::u16string& name) {
    param.name = std::move(name);
}

void SetName(Model::PluralForm& pluralForm, std::u16string& name) {
    pluralForm.paramName = std::move(name);
}

void AddForm(Model::PluralForm& pluralForm, Model::Value& value) {
    pluralForm.forms.push_back(std::make_unique<Model::Value>(std::move(value)));
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
