#include "lsp/Snapshot.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "plural/culture_rule.h"
#include "tree/choose_cultures.h"

namespace lm_lsp {

namespace fs = std::filesystem;
using lm_tree::CultureName;
using lm_tree::FileId;

Snapshot::Snapshot(TreePlace place, const Settings& settings, lm_tree::Overlay overlay,
                   Checkpoint checkpoint)
    : place_(std::move(place)),
      settings_(settings),
      overlay_(std::move(overlay)),
      checkpoint_(std::move(checkpoint)),
      tree_(place_.root, place_.alternative, overlay_),
      reference_(lm_tree::ChooseReference(tree_, settings.check.reference)) {
    for (const CultureName& culture : tree_.Cultures()) {
        if (culture.culture) {
            cultures_.push_back(culture);
        }
    }
}

std::vector<CultureName> Snapshot::CulturesOf(FileId file) const {
    std::vector<CultureName> cultures;
    for (const CultureName& culture : cultures_) {
        if (tree_.Answer(culture, tree_.Files()[file].scope) == file) {
            cultures.push_back(culture);
        }
    }
    return cultures;
}

std::optional<std::size_t> Snapshot::FormsOf(FileId file) const {
    const auto culture = lm_tree::CultureOfDirectory(tree_.Files()[file].directory);
    if (!culture || !culture->culture) {
        return std::nullopt;
    }
    try {
        return lm_plural::RuleOf(&tree_, *culture).rule.FormCount();
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

std::optional<FileId> Snapshot::FileAt(const fs::path& path) const {
    for (FileId file = 0; file < tree_.Files().size(); ++file) {
        if (tree_.FullPath(file) == path) {
            return file;
        }
    }
    return std::nullopt;
}

std::vector<FileId> Snapshot::Texts() const {
    std::vector<FileId> texts;
    for (FileId file = 0; file < tree_.Files().size(); ++file) {
        if (tree_.Files()[file].kind == lm_tree::FileKind::Texts) {
            texts.push_back(file);
        }
    }
    return texts;
}

std::vector<FileId> Snapshot::CommonOf(FileId file) const {
    std::vector<CultureName> cultures = CulturesOf(file);
    if (auto own = lm_tree::CultureOfDirectory(tree_.Files()[file].directory)) {
        cultures.push_back(std::move(*own));
    }
    std::vector<FileId> common;
    for (const CultureName& culture : cultures) {
        const auto answer = tree_.Answer(culture, lm_tree::CommonScope());
        if (answer && std::count(common.begin(), common.end(), *answer) == 0) {
            common.push_back(*answer);
        }
    }
    return common;
}

const lm_source::Document* Snapshot::Get(std::optional<FileId> file) const {
    if (!file) {
        return nullptr;
    }
    const auto [known, isNew] = documents_.try_emplace(*file);
    if (isNew) {
        Pass();
        try {
            known->second = std::make_unique<lm_source::Document>(tree_.Read(*file));
        } catch (const std::exception&) {
            known->second = nullptr;  // the diagnostics tell of it
        }
    }
    return known->second.get();
}

fs::path Snapshot::LockPath() const {
    return place_.root / lm_check::TranslationLock::kFileName;
}

std::string Snapshot::LockText() const {
    const auto open = overlay_.find(LockPath());
    if (open != overlay_.end()) {
        return open->second;
    }
    std::ifstream stream(LockPath(), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace lm_lsp
