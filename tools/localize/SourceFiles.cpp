#include "SourceFiles.h"

#include "tree/path_text.h"

namespace localize {

SourceFiles::SourceFiles(const RequestSettings& settings, const ModuleReports& reports)
    : reports_(reports) {
    if (settings.commonBuffer.empty()) {
        tree_.emplace(lm_tree::PathOf(settings.root), lm_tree::PathOf(settings.alternative));
        culture_ = lm_tree::CultureOfName(settings.culture).value_or(lm_tree::CultureName());
    }
}

std::string SourceFiles::Describe(const std::string& source) const {
    const auto file = tree_ ? tree_->Answer(culture_, source) : std::nullopt;
    if (!file) {
        return reports_.SourceName(source);
    }
    std::string described = source + " (" + lm_tree::Utf8Of(tree_->FullPath(*file));
    const std::string& directory = tree_->Files()[*file].directory;
    if (directory != culture_.directories.front()) {
        described += ": " + directory + " answers for " + culture_.name;
    }
    return described + ')';
}

}  // namespace localize
