// What the grammar of localisation files does with what it has read. The arguments after the first
// are left moved from.
#pragma once

#include <string>
#include <utility>

#include "LowerCaseMapping.h"
#include "Operand.h"
#include "ResourceDictionary.h"

namespace LocalizationManager::StringLocalizing::Parsing {

/// A key as written, and its value.
using KeyValueEntry = std::pair<std::u16string, Model::Value>;

/// @throws DuplicateKeyException when the dictionary holds the key in any letter case.
void AddEntry(Model::ResourceDictionary& dictionary, KeyValueEntry& entry,
              const Text::LowerCaseMapping& lowerCase);

void AddOperand(Model::Value& value, Model::Operand& operand);

void SetKeyRef(Model::KeyRef& keyRef, std::u16string& name,
               const Text::LowerCaseMapping& lowerCase);

void SetName(Model::Param& param, std::u16string& name);
void SetName(Model::PluralForm& pluralForm, std::u16string& name);

void AddForm(Model::PluralForm& pluralForm, Model::Value& value);

}  // namespace LocalizationManager::StringLocalizing::Parsing
