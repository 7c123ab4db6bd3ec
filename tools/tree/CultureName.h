// A culture and how it is written.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "localization_manager/Culture.h"

namespace lm_tree {

// NOLINTNEXTLINE(bugprone-exception-escape): there is one allocator, so that nothing is copied
struct CultureName {
    std::string name;  // "pt-br"; of the neutral texts, taken for themselves, "neutral"
    std::optional<localization_manager::Culture> culture;  // empty for the neutral texts
    std::vector<std::string> directories;                  // most specific first, UTF-8
};

/// The culture that a directory holds the texts of; letter case counts.
/// @return empty when nobody asks for a directory of that name.
std::optional<CultureName> CultureOfDirectory(std::string_view directory);

/// The culture that the module takes a name for, shorthands included, or the neutral texts.
/// @return empty when there is none.
std::optional<CultureName> CultureOfName(std::string_view name);

/// A region of a language.
CultureName CultureOf(localization_manager::Language language, std::string_view region);

/// The language that a directory is named for; empty when there is none.
std::optional<localization_manager::Language> LanguageOfDirectory(std::string_view directory);

}  // namespace lm_tree
