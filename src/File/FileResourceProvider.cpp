#include "FileResourceProvider.h"

#include <boost/current_function.hpp>
#include <stdexcept>
#include <vector>

#include "CultureNames.h"
#include "FileContent.h"
#include "Platform.h"
#include "Utf8.h"
#include "qor/rtl/contracts/checks.h"
#include "qor/rtl/filesystem/File.h"
#include "qor/rtl/text/Cast.h"

namespace LocalizationManager::File {

using localization_manager::Culture;
using localization_manager::Language;
using localization_manager::LanguageToIsoName;

namespace {

// The places that messages print.
constexpr const char* kSource = "src\\File/FileResourceProvider";
constexpr std::int32_t kRootLine = 112;
constexpr std::int32_t kAlternativeLine = 116;

constexpr const char16_t* kNeutralDirectory = u"neutral";
constexpr const char16_t* kTextsDirectory = u"Locs";
constexpr const char16_t* kTextsExtension = u".lt";
constexpr const char16_t* kPluralRuleFile = u"Plural.rule";

/// Joins two parts of a path. The right part may hold separators itself, written in either way.
std::u16string AppendPathComponent(std::u16string left, std::u16string_view right) {
    if (right.empty()) {
        return left;
    }
    if (!left.empty() && left.back() != u'\\' && left.back() != u'/') {
        left += Platform::kPathSeparator;
    }
    return left += Platform::NativePath(right);
}

/// The names of a culture's directories, most specific first.
std::vector<std::u16string> CultureDirectories(const Culture& culture) {
    const auto iso = qor::text::Cast<std::u16string>(LanguageToIsoName(culture.language));
    std::vector<std::u16string> directories;
    if (!culture.region.empty()) {
        const std::u16string regional = iso + u"-" + Text::FromUtf8(culture.region.view());
        if (!culture.variant.empty()) {
            directories.push_back(regional + u"-" + Text::FromUtf8(culture.variant.view()));
        }
        directories.push_back(regional);
    }
    directories.push_back(iso);
    directories.emplace_back(kNeutralDirectory);
    return directories;
}

std::u16string FindResourceFile(const std::u16string& base, const Culture& culture,
                                const std::u16string& relativePath) {
    for (const std::u16string& directory : CultureDirectories(culture)) {
        std::u16string path =
            AppendPathComponent(AppendPathComponent(base, directory), relativePath);
        if (qor::filesystem::Exists(path)) {
            return path;
        }
    }
    return {};
}

}  // namespace

FileResourceProvider::FileResourceProvider(const std::u16string& rootLocalizationUri,
                                           const std::u16string& alternativeLocalizationUri)
    : rootLocalizationUri_(Platform::NativePath(rootLocalizationUri)),
      alternativeLocalizationUri_(Platform::NativePath(alternativeLocalizationUri)) {
    CheckCall(qor::filesystem::IsDirectory(rootLocalizationUri_),
              "root localization URI has to be directory",
              {"qor::filesystem::IsDirectory(rootLocalizationUri)", BOOST_CURRENT_FUNCTION, kSource,
               kRootLine});
    if (!alternativeLocalizationUri_.empty()) {
        CheckCall(qor::filesystem::IsDirectory(alternativeLocalizationUri_),
                  "alternative localization URI has to be directory or empty",
                  {"qor::filesystem::IsDirectory(alternativeLocalizationUri)",
                   BOOST_CURRENT_FUNCTION, kSource, kAlternativeLine});
    }
}

ResourceContent FileResourceProvider::GetResource(const std::u16string& name,
                                                  const Culture& culture) {
    const std::u16string fileName = name + kTextsExtension;
    const std::u16string path = Find(culture, AppendPathComponent(kTextsDirectory, fileName));
    if (path.empty()) {
        throw std::runtime_error("cannot find localization file '" + Text::ToUtf8(fileName) + "'");
    }
    return {GetFileContent(path), path};
}

bool FileResourceProvider::HasPluralFormRules(const PluralFormRuleId& id) {
    return !FindPluralFormRulesPath(id).empty();
}

ResourceContent FileResourceProvider::GetPluralFormRules(const PluralFormRuleId& id) {
    const auto path = qor::text::Cast<std::u16string>(FindPluralFormRulesPath(id).view());
    if (path.empty()) {
        throw std::runtime_error("cannot find plural form file for id '" + ToText(id) + "'");
    }
    return {GetFileContent(path), path};
}

std::u16string FileResourceProvider::GetResourcePath(const std::u16string& scope,
                                                     const Culture& culture,
                                                     const std::u16string& fileName) {
    return Find(culture, AppendPathComponent(scope, fileName));
}

qor::string16_t FileResourceProvider::FindPluralFormRulesPath(const PluralFormRuleId& id) {
    const std::string iso = LanguageToIsoName(static_cast<Language>(id.language));
    const std::u16string languageDirectory =
        AppendPathComponent(rootLocalizationUri_, qor::text::Cast<std::u16string>(iso));
    if (!id.region.empty()) {
        const std::u16string path = AppendPathComponent(
            AppendPathComponent(languageDirectory, Text::FromUtf8(id.region)), kPluralRuleFile);
        if (qor::filesystem::Exists(path)) {
            return qor::text::Cast<qor::string16_t>(path);
        }
    }
    const std::u16string path = AppendPathComponent(languageDirectory, kPluralRuleFile);
    return qor::filesystem::Exists(path) ? qor::text::Cast<qor::string16_t>(path)
                                         : qor::string16_t();
}

/// Searches the alternative tree, when there is one, then the root tree.
std::u16string FileResourceProvider::Find(const Culture& culture,
                                          const std::u16string& relativePath) const {
    std::u16string path;
    if (!alternativeLocalizationUri_.empty()) {
        path = FindResourceFile(alternativeLocalizationUri_, culture, relativePath);
    }
    if (path.empty()) {
        path = FindResourceFile(rootLocalizationUri_, culture, relativePath);
    }
    return path;
}

}  // namespace LocalizationManager::File
