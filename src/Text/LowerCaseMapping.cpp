#include "LowerCaseMapping.h"

#include <algorithm>
#include <functional>
#include <locale>

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

/// The global locale's mapping, as it is now.
class GlobalMapping {
public:
    char16_t operator()(char16_t unit) const {
        const auto lower = static_cast<char32_t>(letters_.tolower(static_cast<wchar_t>(unit)));
        return lower <= 0xFFFF ? static_cast<char16_t>(lower) : unit;  // a key keeps its length
    }

private:
    const std::locale locale_{};
    const std::ctype<wchar_t>& letters_ = std::use_facet<std::ctype<wchar_t>>(locale_);
};

bool LeavesAsciiAsUsual(const GlobalMapping& mapping) {
    char16_t unit = 0;
    while (unit < kAsciiEnd && mapping(unit) == AsciiLowerCase(unit)) {
        ++unit;
    }
    return unit == kAsciiEnd;
}

}  // namespace

LowerCaseMapping::LowerCaseMapping() : mapsAsciiAsUsual_(LeavesAsciiAsUsual(GlobalMapping())) {}

void LowerCaseMapping::Map(std::u16string_view key, char16_t* output) const {
    if (mapsAsciiAsUsual_ && IsAscii(key)) {
        std::transform(key.begin(), key.end(), output, &AsciiLowerCase);
    } else {
        const GlobalMapping mapping;
        std::transform(key.begin(), key.end(), output, std::cref(mapping));
    }
}

}  // namespace LocalizationManager::Text
