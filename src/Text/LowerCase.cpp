#include "LowerCase.h"

#include <locale>

namespace LocalizationManager::Text {

std::u16string LowerCase(std::u16string key) {
    const std::locale global;
    const auto& letters = std::use_facet<std::ctype<wchar_t>>(global);
    for (char16_t& unit : key) {
        const auto lower = static_cast<char32_t>(letters.tolower(static_cast<wchar_t>(unit)));
        if (lower <= 0xFFFF) {  // a key keeps its length
            unit = static_cast<char16_t>(lower);
        }
    }
    return key;
}

}  // namespace LocalizationManager::Text
