#include "tree/TreeReader.h"

#include <algorithm>
#include <stdexcept>
#include <system_error>
#include <tuple>
#include <utility>

#include "TreeLayout.h"
#include "tree/ascii_case.h"
#include "tree/path_text.h"

namespace lm_tree {

namespace fs = std::filesystem;
namespace layout = LocalizationManager::File;

namespace {

/// A path of the tree, which has one separator on every system.
std::string Below(const std::string& directory, const std::string& name) {
    return std::string(directory).append(1, '/').append(name);
}

const std::string& TextsDirectory() {
    static const std::string name = Utf8Of(layout::kTextsDirectory);
    return name;
}

const std::string& TextsExtension() {
    static const std::string name = Utf8Of(layout::kTextsExtension);
    return name;
}

const std::string& RuleFile() {
    static const std::string name = Utf8Of(layout::kPluralRuleFile);
    return name;
}

const std::string& Neutral() {
    static const std::string name = Utf8Of(layout::kNeutralDirectory);
    return name;
}

/// In the order of names, so that nothing depends on the file system's.
std::vector<fs::directory_entry> EntriesOf(const fs::path& directory) {
    std::error_code error;
    std::vector<fs::directory_entry> entries;
    for (auto entry = fs::directory_iterator(directory, error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
        entries.push_back(*entry);
    }
    if (error) {
        throw std::runtime_error("cannot read directory '" + Utf8Of(directory) +
                                 "': " + error.message());
    }
    std::sort(entries.begin(), entries.end());
    return entries;
}

bool IsDirectory(const fs::directory_entry& entry) {
    std::error_code error;
    return entry.is_directory(error);
}

std::uintmax_t SizeOf(const fs::directory_entry& entry) {
    std::error_code error;
    const std::uintmax_t size = entry.file_size(error);
    return error ? 0 : size;
}

bool EndsWith(std::string_view text, std::string_view end) {
    return text.size() > end.size() && text.substr(text.size() - end.size()) == end;
}

/// Where the plural rule of a culture belongs.
std::string RuleDirectoryOf(const CultureName& culture) {
    const LocalizationManager::StringLocalizing::Model::PluralFormRuleId id(*culture.culture);
    std::string path;
    const auto directories = layout::PluralRuleDirectories(id);
    for (const std::u16string& part : directories.front()) {
        path += Utf8Of(part) + '/';
    }
    return path;
}

}  // namespace

void TreeReader::Read() {
    ReadSide(Side::Root);
    if (tree_.HasAlternative()) {
        ReadSide(Side::Alternative);
    }
    AddOverlay();
    CompareCase();
    Sort();
}

void TreeReader::ReadSide(Side side) {
    const fs::path& base = side == Side::Root ? tree_.root_ : tree_.alternative_;
    for (const fs::directory_entry& entry : EntriesOf(base)) {
        const std::string name = Utf8Of(entry.path().filename());
        if (IsDirectory(entry)) {
            ReadDirectory(side, entry.path());
        } else if (SameIgnoringCase(name, RuleFile())) {
            AddStray(side, name, "a plural rule stands in the directory of its language");
        }
    }
}

void TreeReader::ReadDirectory(Side side, const fs::path& directory) {
    const std::string name = Utf8Of(directory.filename());
    for (const fs::directory_entry& entry : EntriesOf(directory)) {
        const std::string inner = Utf8Of(entry.path().filename());
        const std::string path = Below(name, inner);
        if (!IsDirectory(entry)) {
            if (inner == RuleFile()) {
                AddRule(side, path, SizeOf(entry));
            } else if (SameIgnoringCase(inner, RuleFile())) {
                AddStray(side, path, "nobody looks for it: rename it to " + RuleFile());
            }
        } else if (inner == TextsDirectory()) {
            ReadTexts(side, name, entry.path());
        } else if (SameIgnoringCase(inner, TextsDirectory())) {
            AddStray(side, path, "nobody looks into it: rename it to " + TextsDirectory());
        } else {
            ReadRegion(side, name, entry.path());
        }
    }
}

/// Texts may stand in directories of their own below; a scope's name then has their names before it.
void TreeReader::ReadTexts(Side side, const std::string& directory, const fs::path& texts) {
    tree_.directories_.insert(directory);
    if (directory != Neutral()) {
        if (auto culture = CultureOfDirectory(directory)) {
            AddCulture(*culture, side, directory);
        } else {
            AddStray(side, directory,
                     "no culture is called so: rename it to language[-region[-variant]], with the "
                     "language as in the documents, letter case included");
        }
    }
    std::error_code error;
    auto entry = fs::recursive_directory_iterator(texts, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        const std::string name = Utf8Of(entry->path().lexically_relative(texts));
        if (EndsWith(name, TextsExtension())) {
            AddTexts(side, directory, name, SizeOf(*entry));
            entry.disable_recursion_pending();  // a directory of such a name is no place for texts
        } else if (!IsDirectory(*entry) && EndsWith(LowerAscii(name), TextsExtension())) {
            AddStray(side, Below(Below(directory, TextsDirectory()), name),
                     "nobody looks for it: write its ending " + TextsExtension());
        }
    }
    if (error) {
        throw std::runtime_error("cannot read directory '" + Utf8Of(texts) +
                                 "': " + error.message());
    }
}

void TreeReader::AddTexts(Side side, const std::string& directory, const std::string& name,
                          std::uintmax_t size) {
    tree_.files_.push_back({side, FileKind::Texts, Below(Below(directory, TextsDirectory()), name),
                            directory, name.substr(0, name.size() - TextsExtension().size()),
                            size});
}

/// A directory below that of a language is read for a plural rule only.
void TreeReader::ReadRegion(Side side, const std::string& directory, const fs::path& region) {
    std::error_code error;
    for (auto entry = fs::directory_iterator(region, error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = Utf8Of(entry->path().filename());
        const std::string path = Below(Below(directory, Utf8Of(region.filename())), name);
        if (IsDirectory(*entry) || !SameIgnoringCase(name, RuleFile())) {
            continue;
        }
        if (name == RuleFile()) {
            AddRule(side, path, SizeOf(*entry));
        } else if (LanguageOfDirectory(directory)) {
            AddStray(side, path, "nobody looks for it: rename it to " + RuleFile());
        }
    }
}

/// @param path  of the rule: of a language, or of a language and a region.
void TreeReader::AddRule(Side side, const std::string& path, std::uintmax_t size) {
    const std::string directory = path.substr(0, path.find('/'));
    const auto language = LanguageOfDirectory(directory);
    if (side == Side::Alternative) {
        AddStray(side, path, "plural rules are read from the root tree only: move it there");
    } else if (!language) {
        const auto culture = CultureOfDirectory(directory);
        const std::string better = culture ? RuleDirectoryOf(*culture) : "LANGUAGE/REGION/";
        AddStray(side, path, "no plural rule is read here: move it to " + better + RuleFile());
    } else {
        tree_.files_.push_back({side, FileKind::Rule, path, directory, {}, size});
        const std::size_t begin = directory.size() + 1;
        const std::size_t end = path.rfind('/');
        AddCulture(CultureOf(*language, end < begin ? "" : path.substr(begin, end - begin)), side,
                   path.substr(0, end));
    }
}

void TreeReader::AddStray(Side side, const std::string& path, const std::string& why) {
    tree_.strays_.push_back({side, path, why});
}

void TreeReader::AddCulture(const CultureName& culture, Side side, const std::string& path) {
    origins_.try_emplace(culture.name, side, path);
    cultures_.try_emplace(culture.name, culture);
}

/// Files of the overlay that are not on the disk.
void TreeReader::AddOverlay() {
    for (const auto& [path, bytes] : tree_.overlay_) {
        for (const Side side : tree_.Sides()) {
            const fs::path base = fs::absolute(tree_.FullPath(side, "")).lexically_normal();
            const std::string below = Utf8Of(path.lexically_relative(base));
            const std::string marker = '/' + TextsDirectory() + '/';
            const std::size_t at = below.find('/');
            std::error_code error;
            if (below.empty() || below.compare(0, 2, "..") == 0 || at == std::string::npos ||
                fs::exists(path, error)) {
                continue;
            }
            if (below.compare(at, marker.size(), marker) == 0 &&
                EndsWith(below, TextsExtension())) {
                tree_.directories_.insert(below.substr(0, at));
                AddTexts(side, below.substr(0, at), below.substr(at + marker.size()), bytes.size());
                if (auto culture = CultureOfDirectory(below.substr(0, at))) {
                    AddCulture(*culture, side, below.substr(0, at));
                }
            } else if (path.filename() == PathOf(RuleFile()) &&
                       std::count(below.begin(), below.end(), '/') <= 2) {
                AddRule(side, below, bytes.size());
            }
        }
    }
}

/// Where a file system distinguishes letter case, a program that asks for one of two names gets only
/// that one's texts.
void TreeReader::CompareCase() {
    std::map<std::string, std::string> spellings;
    for (auto culture = cultures_.rbegin(); culture != cultures_.rend(); ++culture) {
        const auto& [name, record] = *culture;
        const auto [other, isNew] = spellings.try_emplace(LowerAscii(name), name);
        if (!isNew) {
            const auto& [side, path] = origins_.at(name);
            AddStray(side, path,
                     "differs from '" + other->second +
                         "' only in letter case: a program finds one of them, so choose one "
                         "spelling");
        }
    }
}

void TreeReader::Sort() {
    std::sort(tree_.files_.begin(), tree_.files_.end(), [](const auto& left, const auto& right) {
        return std::tie(left.side, left.path) < std::tie(right.side, right.path);
    });
    std::sort(tree_.strays_.begin(), tree_.strays_.end(), [](const auto& left, const auto& right) {
        return std::tie(left.side, left.path) < std::tie(right.side, right.path);
    });
    for (FileId file = 0; file < tree_.files_.size(); ++file) {
        tree_.byPath_.emplace(std::pair(tree_.files_[file].side, tree_.files_[file].path), file);
    }
    for (auto& [name, culture] : cultures_) {
        tree_.cultures_.push_back(std::move(culture));
    }
}

}  // namespace lm_tree
