// Where the parts of a localisation tree lie: what each directory and file is called, and which comes
// first. For the module, and for whoever looks into trees beside it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace localization_manager::tree_layout {

inline constexpr std::u16string_view kNeutralDirectory = u"neutral";
inline constexpr std::u16string_view kTextsDirectory = u"Locs";
inline constexpr std::u16string_view kTextsExtension = u".lt";
inline constexpr std::u16string_view kPluralRuleFile = u"Plural.rule";

/// The source that all scopes share.
inline constexpr const char16_t* kCommonScope = u"common";

/// The names of a culture's directories, most specific first, down to the neutral one.
/// @param language  ISO name, as `ICultureConverter::GetLanguageIsoName` gives it.
/// @param region    may be empty, and the variant does not count then.
inline std::vector<std::u16string> CultureDirectories(std::u16string_view language,
                                                      std::u16string_view region,
                                                      std::u16string_view variant) {
    std::vector<std::u16string> directories;
    if (!region.empty()) {
        const std::u16string regional = std::u16string(language).append(1, u'-').append(region);
        if (!variant.empty()) {
            directories.push_back(std::u16string(regional).append(1, u'-').append(variant));
        }
        directories.push_back(regional);
    }
    directories.emplace_back(language);
    directories.emplace_back(kNeutralDirectory);
    return directories;
}

/// The names of the directories, below each other, that may hold the plural rule of a language in a
/// region; most specific first. Rules are looked for in the root tree only.
/// @param language, region  as of `CultureDirectories`.
inline std::vector<std::vector<std::u16string>> PluralRuleDirectories(std::u16string_view language,
                                                                      std::u16string_view region) {
    std::vector<std::vector<std::u16string>> directories;
    if (!region.empty()) {
        directories.push_back({std::u16string(language), std::u16string(region)});
    }
    directories.push_back({std::u16string(language)});
    return directories;
}

}  // namespace localization_manager::tree_layout
