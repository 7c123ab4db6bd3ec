#include "languages.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "exchange/languages.h"
#include "tree/ascii_case.h"

namespace localize_po {

namespace {

/// Names that differ in more than the signs between their parts.
constexpr std::array<std::pair<std::string_view, const char*>, 14> kKnown = {{
    {"zh", "zh-Hans"},
    {"zh-cn", "zh-Hans"},
    {"zh-sg", "zh-Hans-sg"},
    {"zh-tw", "zh-Hant"},
    {"zh-hk", "zh-Hant-hk"},
    {"zh-mo", "zh-Hant-mo"},
    {"sr", "sr-Cyrl"},
    {"sr-rs", "sr-Cyrl"},
    {"sr@cyrillic", "sr-Cyrl"},
    {"sr@latin", "sr-Latn"},
    {"sr-rs@latin", "sr-Latn"},
    {"no", "nb"},
    {"no-no", "nb"},
    {"nb-no", "nb"},
}};

}  // namespace

std::string LanguageOf(const lm_tree::CultureName& culture) {
    std::string language = lm_exchange::LanguageTag(culture);
    const std::string variant(culture.culture->variant.c_str());
    if (!variant.empty()) {
        language[language.size() - variant.size() - 1] = '@';
    }
    std::replace(language.begin(), language.end() - static_cast<std::ptrdiff_t>(variant.size()),
                 '-', '_');
    return language;
}

std::optional<lm_tree::CultureName> CultureOfLanguage(std::string_view language) {
    // "de_AT.UTF-8@variant": the charset says nothing of the language.
    const std::size_t charset = std::min(language.find('.'), language.size());
    const std::size_t modifier = std::min(language.find('@'), language.size());
    std::string name(language.substr(0, std::min(charset, modifier)));
    name += language.substr(modifier);
    std::replace(name.begin(), name.end(), '_', '-');
    const std::string lower = lm_tree::LowerAscii(name);
    for (const auto& [known, culture] : kKnown) {
        if (lower == known) {
            return lm_tree::CultureOfDirectory(culture);
        }
    }
    std::replace(name.begin(), name.end(), '@', '-');
    // Regions are written in capitals there, and in small letters in trees; scripts are in both alike.
    const bool hasScript = lower.compare(0, 3, "zh-") == 0 || lower.compare(0, 3, "sr-") == 0;
    std::size_t at = name.find('-');
    at = hasScript && at != std::string::npos ? name.find('-', at + 1) : at;
    if (at != std::string::npos) {
        name.replace(at, std::string::npos, lm_tree::LowerAscii(name.substr(at)));
    }
    return lm_tree::CultureOfDirectory(name);
}

}  // namespace localize_po
