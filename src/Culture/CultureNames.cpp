#include "CultureNames.h"

#include <boost/format.hpp>
#include <locale>
#include <stdexcept>

namespace localization_manager {

namespace {

// Indexed by the values of `Language`.
constexpr const char* kIsoNames[kLanguageCount] = {
    "ar", "sq", "bg", "zh-Hant", "zh-Hans", "cs", "da", "nl", "en", "et", "fa", "fi", "fr", "de",
    "el", "hu", "id", "ga",      "it",      "ja", "kk", "ko", "lt", "lv", "mk", "nb", "pt", "pl",
    "ru", "ro", "es", "sr-Cyrl", "sr-Latn", "sl", "sv", "tr", "uk", "vi",
};

}  // namespace

std::string LanguageToIsoName(Language language) {
    const auto value = static_cast<std::uint32_t>(language);
    if (value >= kLanguageCount) {
        // The classic locale: no other may put separators into the number.
        throw std::range_error(
            (boost::format("Unsupported language %1%", std::locale::classic()) % value).str());
    }
    return kIsoNames[value];
}

std::string CultureToName(Language language, std::string_view region) {
    std::string name = LanguageToIsoName(language);
    if (!region.empty()) {
        name.append("-").append(region);
    }
    return name;
}

std::string CultureText(const Culture& culture) {
    std::string text;
    try {
        text = LanguageToIsoName(culture.language);
    } catch (const std::range_error& unsupported) {
        text = unsupported.what();
    }
    text.append("-").append(culture.region.view());
    if (!culture.variant.empty()) {
        text.append("-").append(culture.variant.view());
    }
    return text;
}

bool SameCulture(const Culture& left, const Culture& right) noexcept {
    return left.language == right.language && left.region == right.region &&
           left.variant == right.variant;
}

}  // namespace localization_manager
