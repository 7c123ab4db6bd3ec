#include "exchange/languages.h"

#include <algorithm>
#include <iterator>

#include "CultureNames.h"
#include "tree/ascii_case.h"

namespace lm_exchange {

namespace {

bool IsBetweenParts(char unit) {
    return unit == '_' || unit == '@';
}

}  // namespace

std::string LanguageTag(const lm_tree::CultureName& culture) {
    if (!culture.culture) {
        return "und";
    }
    std::string tag = localization_manager::LanguageToIsoName(culture.culture->language);
    const std::string region(culture.culture->region.c_str());
    if (!region.empty()) {
        tag += '-';
        std::transform(region.begin(), region.end(), std::back_inserter(tag), [](char unit) {
            return unit >= 'a' && unit <= 'z' ? static_cast<char>(unit - 'a' + 'A') : unit;
        });
    }
    const std::string variant(culture.culture->variant.c_str());
    return tag + (variant.empty() ? "" : '-' + variant);
}

bool IsNameOf(std::string_view language, const lm_tree::CultureName& culture) {
    std::string tag(language);
    std::replace_if(tag.begin(), tag.end(), IsBetweenParts, '-');
    return lm_tree::SameIgnoringCase(tag, LanguageTag(culture));
}

}  // namespace lm_exchange
