// Short texts out of UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace LocalizationManager::Text {

/// Decodes UTF-8; every maximal ill-formed part becomes one U+FFFD.
std::u16string FromUtf8(std::string_view text);

}  // namespace LocalizationManager::Text
