// The texts of messages: UTF-16 as UTF-8 and back.
#pragma once

#include <string>
#include <string_view>

namespace LocalizationManager::Text {

/// Encodes every UTF-16 unit by itself, so that nothing in a message can fail to convert: a
/// surrogate pair becomes two sequences of three bytes.
std::string ToUtf8(std::u16string_view text);

/// Decodes UTF-8; every maximal ill-formed part becomes one U+FFFD.
std::u16string FromUtf8(std::string_view text);

}  // namespace LocalizationManager::Text
