// Letter case of keys.
#pragma once

#include <string>

namespace LocalizationManager::Text {

/// Lower-cases a key unit by unit, as the process's global locale maps wide characters. Keys are
/// stored and looked up in this form.
std::u16string LowerCase(std::u16string key);

}  // namespace LocalizationManager::Text
