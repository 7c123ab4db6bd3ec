#include "qor/rtl/error_handling/number_text.h"

#include <charconv>
#include <iterator>
#include <limits>
#include <string>

#include "qor/utf16.h"

namespace qor {

namespace {

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
    const auto* const end =
        std::to_chars(std::begin(digits), std::end(digits), value, static_cast<int>(format.base))
            .ptr;
    const std::u16string number(std::cbegin(digits), end);
    if (prefix.empty()) {
        prefix = DefaultPrefix(format);
    }
    const std::size_t used = prefix.size() + number.size();
    std::u16string padding;
    for (std::size_t i = used; i < format.width; ++i) {
        EncodeUtf16(format.fill, std::back_inserter(padding));
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
