#include "lsp/code_actions.h"

#include "lsp/actions/actions.h"

namespace lm_lsp {

Json CodeActionsFor(const Target& target, lm_source::Range range, const Json& diagnostics) {
    if (target.InTree() == nullptr) {
        return Json::array();
    }
    const Scene scene(target, range, diagnostics);
    Offers offers(target);
    // What mends is offered first.
    for (const Action action : {&WriteForms, &TakeOutReference, &EscapeQuote, &DoubleBackslash,
                                &AcceptText, &RemoveSuppression, &AddMissingKeys, &IgnoreFinding}) {
        action(scene, offers);
    }
    return offers.Take();
}

}  // namespace lm_lsp
