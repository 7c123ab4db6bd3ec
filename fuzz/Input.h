// What the fuzz targets share: how bytes become texts, and what becomes of a broken promise.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "FromUtf8.h"

namespace lm_fuzz {

/// Ends the process, which fuzzer and replay take for a finding.
inline void Require(bool holds, const char* promise) {
    if (!holds) {
        static_cast<void>(std::fputs(promise, stderr));
        std::abort();
    }
}

/// U+E000 to U+E7FF stand for lone surrogates, which hosts may send and UTF-8 cannot express.
inline std::u16string Decode(const std::uint8_t* data, std::size_t size) {
    std::u16string text = LocalizationManager::Text::FromUtf8(
        std::string_view(reinterpret_cast<const char*>(data), size));
    for (char16_t& unit : text) {
        unit = static_cast<char16_t>((unit & 0xF800U) == 0xE000 ? unit - 0x800 : unit);
    }
    return text;
}

}  // namespace lm_fuzz
