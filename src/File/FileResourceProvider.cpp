#include "FileResourceProvider.h"

#include <boost/current_function.hpp>
#include <stdexcept>

#include "FileContent.h"
#include "FromUtf8.h"
#include "MessageUtf8.h"
#include "Platform.h"
#include "TreeLayout.h"
#include "qor/rtl/contracts/checks.h"
#include "qor/rtl/filesystem/path_attributes.h"
#include "qor/rtl/text/Cast.h"

namespace LocalizationManager::File {

using localization_manager::Culture;

namespace {

// The places that messages print.
constexpr const char* kSource = "src\\File/FileResourceProvider";
constexpr std::int32_t kRootLine = 112;
constexpr std::int32_t kAlternativeLine = 116;

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
                                                  const Culture& culture) const {
    const std::u16string fileName = name + std::u16string(kTextsExtension);
    const std::u16string path =
        Find(culture, AppendPathComponent(std::u16string(kTextsDirectory), fileName));
    if (path.empty()) {
        throw std::runtime_error("cannot find localization file '" + Text::ToUtf8(fileName) + "'");
    }
    return {GetFileContent(path), path};
}

bool FileResourceProvider::HasPluralFormRules(const PluralFormRuleId& id) const {
    return !FindPluralFormRulesPath(id).empty();
}

ResourceContent FileResourceProvider::GetPluralFormRules(const PluralFormRuleId& id) const {
    const auto path = qor::text::Cast<std::u16string>(FindPluralFormRulesPath(id).view());
    if (path.empty()) {
        throw std::runtime_error("cannot find plural form file for id '" + ToText(id) + "'");
    }
    return {GetFileContent(path), path};
}

std::u16string FileResourceProvider::GetResourcePath(const std::u16string& scope,
                                                     const Culture& culture,
                                                     const std::u16string& fileName) const {
    return Find(culture, AppendPathComponent(scope, fileName));
}

qor::string16_t FileResourceProvider::FindPluralFormRulesPath(const PluralFormRuleId& id) const {
    for (const auto& directories : PluralRuleDirectories(id)) {
        std::u16string path = rootLocalizationUri_;
        for (const std::u16string& directory : directories) {
            path = AppendPathComponent(path, directory);
        }
        path = AppendPathComponent(path, kPluralRuleFile);
        if (qor::filesystem::Exists(path)) {
            return qor::text::Cast<qor::string16_t>(path);
        }
    }
    return {};
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
