// The C runtime's multibyte encoding on POSIX, where a wide character is a whole code point.
#include <climits>
#include <cwchar>

#include "Platform.h"

namespace Platform {

namespace {

bool IsHighSurrogate(char16_t unit) noexcept {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char16_t unit) noexcept {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

}  // namespace

std::optional<std::u16string> WidenMultibyte(std::string_view text) {
    std::u16string wide;
    wide.reserve(text.size());
    std::mbstate_t state = {};
    while (!text.empty()) {
        wchar_t character = 0;
        std::size_t length = std::mbrtowc(&character, text.data(), text.size(), &state);
        if (length == static_cast<std::size_t>(-1) || length == static_cast<std::size_t>(-2)) {
            return std::nullopt;
        }
        if (length == 0) {  // a zero character
            length = 1;
        }
        const auto codePoint = static_cast<std::uint32_t>(character);
        if (codePoint < 0x10000) {
            wide.push_back(static_cast<char16_t>(codePoint));
        } else {
            wide.push_back(static_cast<char16_t>(0xD7C0 + (codePoint >> 10U)));
            wide.push_back(static_cast<char16_t>(0xDC00 + (codePoint & 0x3FFU)));
        }
        text.remove_prefix(length);
    }
    return wide;
}

std::optional<std::string> NarrowToMultibyte(std::u16string_view text) {
    std::string narrow;
    narrow.reserve(text.size());
    std::mbstate_t state = {};
    for (std::size_t i = 0; i < text.size(); ++i) {
        std::uint32_t codePoint = text[i];
        if (IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            codePoint = 0x10000 + ((codePoint - 0xD800) << 10U) + (text[++i] - 0xDC00U);
        }
        char bytes[MB_LEN_MAX];
        const std::size_t length = std::wcrtomb(bytes, static_cast<wchar_t>(codePoint), &state);
        if (length == static_cast<std::size_t>(-1)) {
            return std::nullopt;
        }
        narrow.append(bytes, length);
    }
    return narrow;
}

}  // namespace Platform
