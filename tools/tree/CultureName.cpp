#include "tree/CultureName.h"

#include "CultureNames.h"
#include "CultureTable.h"
#include "TreeLayout.h"
#include "tree/path_text.h"

namespace lm_tree {

namespace lm = localization_manager;

namespace {

CultureName Named(lm::Language language, std::string_view region, std::string_view variant) {
    CultureName named;
    named.culture.emplace();
    named.culture->language = language;
    named.culture->region = qor::string8_t(region);
    named.culture->variant = qor::string8_t(region.empty() ? std::string_view() : variant);
    for (const auto& directory : LocalizationManager::File::CultureDirectories(*named.culture)) {
        named.directories.push_back(Utf8Of(directory));
    }
    named.name = named.directories.front();
    return named;
}

}  // namespace

std::optional<lm::Language> LanguageOfDirectory(std::string_view directory) {
    for (std::uint32_t value = 0; value < lm::kLanguageCount; ++value) {
        const auto language = static_cast<lm::Language>(value);
        if (lm::LanguageToIsoName(language) == directory) {
            return language;
        }
    }
    return std::nullopt;
}

std::optional<CultureName> CultureOfDirectory(std::string_view directory) {
    for (std::uint32_t value = 0; value < lm::kLanguageCount; ++value) {
        const auto language = static_cast<lm::Language>(value);
        const std::string iso = lm::LanguageToIsoName(language);
        if (directory.substr(0, iso.size()) != iso) {
            continue;
        }
        const std::string_view rest = directory.substr(iso.size());
        const std::size_t dash = rest.find('-', 1);
        CultureName named = Named(
            language,
            rest.substr(rest.empty() ? 0 : 1, dash == std::string_view::npos ? dash : dash - 1),
            dash == std::string_view::npos ? std::string_view() : rest.substr(dash + 1));
        if (named.name == directory) {
            return named;
        }
    }
    return std::nullopt;
}

std::optional<CultureName> CultureOfName(std::string_view name) {
    const std::string neutral = Utf8Of(LocalizationManager::File::kNeutralDirectory);
    if (name == neutral) {
        return CultureName{neutral, std::nullopt, {neutral}};
    }
    const auto parts = lm::CultureTable().Find(name);
    if (!parts) {
        return std::nullopt;
    }
    return Named(parts->language, parts->region, parts->variant);
}

CultureName CultureOf(lm::Language language, std::string_view region) {
    return Named(language, region, {});
}

}  // namespace lm_tree
