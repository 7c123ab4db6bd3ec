// The C runtime's multibyte encoding on POSIX, where a wide character is a whole code point.
#include <climits>
#include <cwchar>
#include <iterator>

#include "Platform.h"
#include "qor/utf16.h"

namespace Platform {

std::optional<std::u16string> WidenMultibyte(std::string_view text) {
    std::u16string wide;
    wide.reserve(text.size());
    const auto append = [&wide](wchar_t character) {
        qor::EncodeUtf16(static_cast<char32_t>(character), std::back_inserter(wide));
    };
    std::mbstate_t state = {};
    while (!text.empty()) {
        wchar_t character = 0;
        const std::size_t length = std::mbrtowc(&character, text.data(), text.size(), &state);
        if (length == static_cast<std::size_t>(-1) || length == static_cast<std::size_t>(-2)) {
            return std::nullopt;
        }
        append(character);
        // No length tells of a zero, or of the second character that the last bytes stood for.
        text.remove_prefix(character == 0 ? 1 : length);
    }
    for (wchar_t second = 0; std::mbrtowc(&second, "", 1, &state) == 0 && second != 0;) {
        append(second);
    }
    return wide;
}

std::optional<std::string> NarrowToMultibyte(std::u16string_view text) {
    std::string narrow;
    narrow.reserve(text.size());
    std::mbstate_t state = {};
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t codePoint = text[i];
        if (qor::IsHighSurrogate(codePoint) && i + 1 < text.size() &&
            qor::IsLowSurrogate(text[i + 1])) {
            codePoint = qor::JoinSurrogates(codePoint, text[++i]);
        }
        char bytes[MB_LEN_MAX];
        const std::size_t length = std::wcrtomb(bytes, static_cast<wchar_t>(codePoint), &state);
        if (length == static_cast<std::size_t>(-1)) {
            return std::nullopt;
        }
        narrow.append(bytes, length);
    }
    // The last character may be held back, as the next one might have joined it, until a zero ends
    // the text.
    char bytes[MB_LEN_MAX];
    narrow.append(bytes, std::wcrtomb(bytes, L'\0', &state) - 1);
    return narrow;
}

}  // namespace Platform
