// What the fuzz targets share: how bytes become texts, and what becomes of a broken promise.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "Utf8.h"

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

/// What "%%" separates: texts of the scope, common texts, parameters, culture.
inline std::array<std::u16string, 4> Parts(std::u16string_view text) {
    std::array<std::u16string, 4> parts;
    for (std::u16string& part : parts) {
        part = text.substr(0, text.find(u"%%"));
        text.remove_prefix(std::min(part.size() + 2, text.size()));
    }
    return parts;
}

/// One of the texts that "|" separates, told by the last letter of the parameter's name.
inline std::u16string_view ParameterText(std::u16string_view texts, std::u16string_view name) {
    auto before = name.back() % (1 + std::count(texts.begin(), texts.end(), u'|'));
    for (; before > 0; --before) {
        texts.remove_prefix(texts.find(u'|') + 1);
    }
    return texts.substr(0, texts.find(u'|'));
}

}  // namespace lm_fuzz
