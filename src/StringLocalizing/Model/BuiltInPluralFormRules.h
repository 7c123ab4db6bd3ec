// The plural rules that are compiled in.
#pragma once

#include "PluralFormRules.h"

namespace LocalizationManager::StringLocalizing::Model {

/// Adds the rules of all languages, each still without the entry that always holds.
void AddBuiltInPluralFormRules(PluralFormRules& rules);

}  // namespace LocalizationManager::StringLocalizing::Model
