#include "check/accept.h"
#include "lsp/actions/actions.h"
#include "lsp/findings.h"
#include "lsp/places.h"

namespace lm_lsp {

void AcceptText(const Scene& scene, Offers& offers) {
    const Snapshot& snapshot = scene.GetSnapshot();
    for (const lm_check::Finding* const finding : scene.Here(lm_check::Rule::Stale)) {
        const std::string& key = finding->key;
        lm_check::TranslationLock lock = LockOf(snapshot);
        Accept(snapshot.GetTree(), OptionsFor(snapshot, scene.GetTarget().File()), {key}, lock);
        offers.AddIn(scene.GetTarget().GetWorkspace().UriOf(snapshot.LockPath()),
                     "Accept the text of " + key, scene.DiagnosticOf(*finding),
                     EditsBetween(snapshot.LockText(), lock.Text()));
    }
}

}  // namespace lm_lsp
