#include <string>

#include "edit/plural_forms.h"
#include "lsp/Spot.h"
#include "lsp/actions/actions.h"

namespace lm_lsp {

using lm_source::Document;
using lm_source::Entry;
using lm_source::Operand;

namespace {

/// The operand of an entry without mistakes that begins at a place; null for none.
const Operand* OperandAt(const Document& document, std::uint32_t begin) {
    const Entry* const entry = SpotAt(document, begin).entry;
    if (entry != nullptr && !entry->isFaulty) {
        for (const Operand& operand : document.OperandsOf(*entry)) {
            if (operand.range.begin == begin) {
                return &operand;
            }
        }
    }
    return nullptr;
}

}  // namespace

void WriteForms(const Scene& scene, Offers& offers) {
    const auto count = scene.GetSnapshot().FormsOf(scene.GetTarget().File());
    if (!count || *count == 0) {
        return;
    }
    for (const lm_check::Finding* const finding : scene.Here(lm_check::Rule::FormCount)) {
        const Operand* const pluralForm =
            OperandAt(scene.Document(), finding->location.range.begin);
        if (pluralForm != nullptr) {
            offers.Add(
                "Write " + std::to_string(*count) + (*count == 1 ? " form" : " forms"),
                scene.DiagnosticOf(*finding),
                {{pluralForm->range, lm_edit::WithForms(scene.Document(), *pluralForm, *count)}});
        }
    }
}

}  // namespace lm_lsp
