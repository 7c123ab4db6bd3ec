#include "qor/rtl/error_handling/number_text.h"

#include <charconv>
#include <limits>
#include <string>

namespace qor {

namespace {

std::u16string Utf16(char32_t codePoint) {
    if (codePoint < 0x10000) {
        return {static_cast<char16_t>(codePoint)};
    }
    return {static_cast<char16_t>(0xD7C0 + (codePoint >> 10U)),
            static_cast<char16_t>(0xDC00 + (codePoint & 0x3FFU))};
}

std::u16string_view DefaultPrefix(const NumberFormat& format) {
    if (!format.alternateForm) {
        return u"";
    }
    return format.base == 16 ? u"0x" : format.base == 8 ? u"0" : u"";
}

}  // namespace

void AppendNumber(string16_t& text, std::uint32_t value, std::u16string_view prefix,
                  const NumberFormat& format) {
    char digits[std::numeric_limits<std::uint32_t>::digits];
    const auto end =
        std::to_chars(std::begin(digits), std::end(digits), value, static_cast<int>(format.base))
            .ptr;
    const std::u16string number(std::begin(digits), end);
    if (prefix.empty()) {
        prefix = DefaultPrefix(format);
    }
    const std::size_t used = prefix.size() + number.size();
    std::u16string padding;
    for (std::size_t i = used; i < format.width; ++i) {
        padding += Utf16(format.fill);
    }
    std::u16string result(prefix);
    result.insert(format.alignment > 0 ? 0 : prefix.size(),
                  format.alignment >= 0 ? padding : std::u16string());
    result += number;
    if (format.alignment < 0) {
        result += padding;
    }
    text.append(result);
}

}  // namespace qor
