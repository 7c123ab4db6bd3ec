#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "edit/add_missing.h"
#include "lsp/actions/actions.h"
#include "lsp/findings.h"
#include "lsp/places.h"

namespace lm_lsp {

namespace {

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
    std::vector<const lm_check::Finding*> missing;
    for (const lm_check::Finding& finding : scene.Findings()) {
        if (finding.rule == lm_check::Rule::MissingKey) {
            missing.push_back(&finding);
        }
    }
    const auto offer = [&](const std::string& title, const std::vector<std::string>& keys,
                           std::size_t first, std::size_t last) {
        Json edits = AddKeys(scene, keys);
        if (edits.is_null()) {
            return;
        }
        Json diagnostics = Json::array();
        for (std::size_t i = first; i < last; ++i) {
            diagnostics.push_back(scene.DiagnosticOf(*missing[i]));
        }
        offers.AddIn(scene.GetTarget().Uri(), title, std::move(diagnostics), std::move(edits));
    };
    const std::size_t single = scene.IsAtStart() ? std::min(missing.size(), kMostToMend) : 0;
    for (std::size_t i = 0; i < single; ++i) {
        offer("Add the missing key " + missing[i]->key, {missing[i]->key}, i, i + 1);
    }
    if (missing.size() > 1) {
        offer("Add all " + std::to_string(missing.size()) + " missing keys", {}, 0,
              std::min(missing.size(), kMostOfFile));
    }
}

}  // namespace lm_lsp
