#include "LowerCaseMapping.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace LocalizationManager::Text {

namespace {

constexpr char16_t kAsciiEnd = 0x80;

constexpr char16_t AsciiLowerCase(char16_t unit) noexcept {
    const bool isCapital = static_cast<char16_t>(unit - u'A') <= u'Z' - u'A';
    return static_cast<char16_t>(unit + (isCapital ? u'a' - u'A' : 0));
}

bool IsAscii(std::u16string_view text) noexcept {
    char16_t bits = 0;
    for (const char16_t unit : text) {
        bits = static_cast<char16_t>(bits | unit);
    }
    return bits < kAsciiEnd;
}

}  // namespace

LowerCaseMapping::LowerCaseMapping() : letters_(std::use_facet<std::ctype<wchar_t>>(locale_)) {
    std::array<wchar_t, kAsciiEnd> ascii{};
    std::iota(ascii.begin(), ascii.end(), L'\0');
    letters_.tolower(ascii.data(), ascii.data() + ascii.size());
    char16_t unit = 0;
    mapsAsciiAsUsual_ = std::all_of(ascii.begin(), ascii.end(), [&unit](wchar_t lower) {
        return static_cast<char32_t>(lower) == AsciiLowerCase(unit++);
    });
}

void LowerCaseMapping::Map(std::u16string_view key, char16_t* output) const {
    if (mapsAsciiAsUsual_ && IsAscii(key)) {
        std::transform(key.begin(), key.end(), output, &AsciiLowerCase);
    } else {
        std::transform(key.begin(), key.end(), output, [this](char16_t unit) { return Ask(unit); });
    }
}

char16_t LowerCaseMapping::Ask(char16_t unit) const {
    const auto lower = static_cast<char32_t>(letters_.tolower(static_cast<wchar_t>(unit)));
    return lower <= 0xFFFF ? static_cast<char16_t>(lower) : unit;  // a key keeps its length
}

}  // namespace LocalizationManager::Text
