// The C runtime's multibyte encoding on Windows, where a wide character is a unit of UTF-16.
#include <climits>
#include <cwchar>

#include "Platform.h"

namespace Platform {

std::optional<std::u16string> WidenMultibyte(std::string_view text) {
    std::u16string wide;
    wide.reserve(text.size());
    std::mbstate_t state = {};
    while (!text.empty()) {
        wchar_t unit = 0;
        const std::size_t length = std::mbrtowc(&unit, text.data(), text.size(), &state);
        if (length == static_cast<std::size_t>(-1) || length == static_cast<std::size_t>(-2)) {
            return std::nullopt;
        }
        wide.push_back(static_cast<char16_t>(unit));
        text.remove_prefix(length == 0 ? 1 : length);  // no length tells of a zero
    }
    return wide;
}

/// No encoding of the C runtime has the halves of a surrogate pair, and it takes one unit at a time: what is
/// outside of the basic plane has no form.
std::optional<std::string> NarrowToMultibyte(std::u16string_view text) {
    std::string narrow;
    narrow.reserve(text.size());
    std::mbstate_t state = {};
    for (const char16_t unit : text) {
        char bytes[MB_LEN_MAX];
        const std::size_t length = std::wcrtomb(bytes, static_cast<wchar_t>(unit), &state);
        if (length == static_cast<std::size_t>(-1)) {
            return std::nullopt;
        }
        narrow.append(bytes, length);
    }
    return narrow;
}

}  // namespace Platform
