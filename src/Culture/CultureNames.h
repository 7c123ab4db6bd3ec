// The names of languages and cultures.
#pragma once

#include <string>
#include <string_view>

#include "localization_manager/Culture.h"
#include "localization_manager/Language.h"

namespace localization_manager {

inline constexpr std::uint32_t kLanguageCount = 38;

/// @throws std::range_error for a value that is no `Language`.
std::string LanguageToIsoName(Language language);

/// The ISO name of the language, and "-" and the region if there is one.
/// @throws std::range_error for a value that is no `Language`.
std::string CultureToName(Language language, std::string_view region);

/// A culture as messages print it: language, "-", region, and "-" and the variant if there is one.
/// For an unsupported language the text says so, so that a message can always be made.
std::string CultureText(const Culture& culture);

/// Whether two records name the same culture, byte for byte.
bool SameCulture(const Culture& left, const Culture& right) noexcept;

}  // namespace localization_manager
