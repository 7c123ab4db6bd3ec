#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "edit/add_missing.h"
#include "lsp/actions/actions.h"
#include "lsp/findings.h"
#include "lsp/places.h"

namespace lm_lsp {

namespace {

constexpr std::size_t kMostKeys = 20;  // that are offered one by one

/// The changes of the file.
/// @param keys  empty for all.
/// @return null when there are none.
Json AddKeys(const Scene& scene, const std::vector<std::string>& keys) {
    const Target& target = scene.GetTarget();
    const lm_tree::Tree& tree = scene.GetSnapshot().GetTree();
    const auto culture = lm_tree::CultureOfDirectory(target.TreeFile().directory);
    if (!culture || !culture->culture) {
        return {};
    }
    try {
        const auto missing = lm_edit::AddMissing(tree, *culture, scene.GetSnapshot().Reference(),
                                                 {target.TreeFile().scope}, keys);
        for (const lm_edit::FileChange& change : missing.changes) {
            if (change.path == tree.FullPath(target.File())) {
                return EditsBetween(scene.Document().Bytes(), change.bytes);
            }
        }
    } catch (const std::runtime_error&) {
        // As long as a file has a mistake, nothing can be added.
    }
    return {};
}

}  // namespace

void AddMissingKeys(const Scene& scene, Offers& offers) {
    std::vector<const Scene::Problem*> missing;
    for (const Scene::Problem& problem : scene.Problems()) {
        if (problem.finding.rule == lm_check::Rule::MissingKey) {
            missing.push_back(&problem);
        }
    }
    const std::string& uri = scene.GetTarget().Uri();
    const std::size_t single = scene.IsAtStart() ? std::min(missing.size(), kMostKeys) : 0;
    for (std::size_t i = 0; i < single; ++i) {
        const std::string& key = missing[i]->finding.key;
        const Json edits = AddKeys(scene, {key});
        if (!edits.is_null()) {
            offers.AddIn(uri, "Add the missing key " + key, missing[i]->diagnostic, edits);
        }
    }
    const Json edits = missing.size() > 1 ? AddKeys(scene, {}) : Json();
    const std::size_t told = edits.is_null() ? 0 : std::min(missing.size(), kMostOfFile);
    for (std::size_t i = 0; i < told; ++i) {
        offers.AddIn(uri, "Add all " + std::to_string(missing.size()) + " missing keys",
                     missing[i]->diagnostic, edits);
    }
}

}  // namespace lm_lsp
