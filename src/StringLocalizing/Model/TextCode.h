// Texts one after the other in one text: each follows its length. Values and dictionaries keep theirs
// so, because memory that is read in turn is read fast.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace LocalizationManager::StringLocalizing::Model {

/// A length takes so many units, which together are one number of 32 bits.
inline constexpr std::size_t kLengthUnits = 2;

/// @throws boost::numeric::positive_overflow for a length beyond 32 bits.
void AppendText(std::u16string& code, std::u16string_view text);

/// Adds to the text at a position, which is the last one.
void ExtendText(std::u16string& code, std::size_t position, std::u16string_view text);

/// Takes a text off the front.
inline std::u16string_view TakeText(std::u16string_view& code) noexcept {
    std::uint32_t length = 0;
    std::memcpy(&length, code.data(), sizeof length);
    const std::u16string_view text(code.data() + kLengthUnits, length);
    code.remove_prefix(kLengthUnits + length);
    return text;
}

}  // namespace LocalizationManager::StringLocalizing::Model
