// Where the parts of a localisation tree lie, in the engine's types. The names themselves are the hosts'
// as well, and stand where they see them.
#pragma once

#include <string>
#include <vector>

#include "PluralFormRuleId.h"
#include "localization_manager/Culture.h"
#include "localization_manager/tree_layout.h"

namespace LocalizationManager::File {

using localization_manager::tree_layout::kNeutralDirectory;
using localization_manager::tree_layout::kPluralRuleFile;
using localization_manager::tree_layout::kTextsDirectory;
using localization_manager::tree_layout::kTextsExtension;

/// The names of a culture's directories, most specific first, down to the neutral one.
/// @throws std::range_error for an unsupported language.
std::vector<std::u16string> CultureDirectories(const localization_manager::Culture& culture);

/// The names of the directories, below each other, that may hold the plural rule of an id; most
/// specific first.
/// @throws std::range_error for an unsupported language.
std::vector<std::vector<std::u16string>> PluralRuleDirectories(
    const StringLocalizing::Model::PluralFormRuleId& id);

}  // namespace LocalizationManager::File
