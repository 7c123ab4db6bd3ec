#include "CultureTable.h"

#include <algorithm>
#include <cstdint>
#include <locale>
#include <utility>

#include "CultureNames.h"

namespace localization_manager {

namespace {

std::string LowerCase(std::string_view name) {
    std::string lower(name);
    const std::locale global;
    std::use_facet<std::ctype<char>>(global).tolower(lower.data(), lower.data() + lower.size());
    return lower;
}

}  // namespace

CultureTable::CultureTable()
    : cultures_{
          {"anz", {Language::English, "au"}},
          {"br", {Language::Portuguese, "br"}},
          {"hch", {Language::ChineseTraditional, "hk"}},
          {"la", {Language::Spanish, "mx"}},
          {"sch", {Language::ChineseSimplified, ""}},
          {"sea", {Language::English, "my"}},
          {"tch", {Language::ChineseTraditional, ""}},
      } {
    for (std::uint32_t value = 0; value < kLanguageCount; ++value) {
        const auto language = static_cast<Language>(value);
        // The names are ASCII, so that the table is the same in every locale.
        std::string name = LanguageToIsoName(language);
        std::transform(name.begin(), name.end(), name.begin(), [](char letter) {
            return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
        });
        cultures_.emplace(std::move(name), KnownCulture{language, ""});
    }
}

std::optional<CultureTable::Parts> CultureTable::Find(std::string_view name) const {
    const std::string lower = LowerCase(name);
    const auto known =
        std::find_if(cultures_.begin(), cultures_.end(), [&lower](const auto& candidate) {
            return lower.compare(0, candidate.first.size(), candidate.first) == 0;
        });
    if (known == cultures_.end()) {
        return std::nullopt;
    }
    const auto& [language, region] = known->second;
    std::string_view rest = name.substr(known->first.size());
    if (rest.empty()) {
        return Parts{language, region, {}};
    }
    if (rest.front() != '-') {
        return std::nullopt;
    }
    rest.remove_prefix(1);
    const std::size_t dash = rest.find('-');
    const bool hasVariant = dash != std::string_view::npos;
    return Parts{language, std::string(rest.substr(0, dash)),
                 std::string(hasVariant ? rest.substr(dash + 1) : std::string_view())};
}

}  // namespace localization_manager
