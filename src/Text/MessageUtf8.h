// The UTF-8 of messages.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace LocalizationManager::Text {

/// Encodes every UTF-16 unit by itself, so that nothing in a message can fail to convert: a
/// surrogate pair becomes two sequences of three bytes.
std::string ToUtf8(std::u16string_view text);

/// The same, to the end of another text.
void AppendUtf8(std::string& output, std::u16string_view text);

/// The bytes that it takes.
std::size_t Utf8Size(std::u16string_view text) noexcept;

}  // namespace LocalizationManager::Text
