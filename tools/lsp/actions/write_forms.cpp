#include <string>

#include "edit/plural_forms.h"
#include "lsp/actions/actions.h"

namespace lm_lsp {

using lm_source::Document;
using lm_source::Entry;
using lm_source::Operand;

namespace {

/// The operand that begins at a place; null for none.
const Operand* OperandAt(const Document& document, std::uint32_t begin) {
    for (const Entry& entry : document.Entries()) {
        if (entry.isFaulty || begin < entry.key.begin || begin >= entry.end) {
            continue;
        }
        for (const Operand& operand : document.OperandsOf(entry)) {
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
    for (const Scene::Problem* const problem : scene.Here(lm_check::Rule::FormCount)) {
        const Operand* const pluralForm =
            OperandAt(scene.Document(), problem->finding.location.range.begin);
        if (pluralForm != nullptr) {
            offers.Add(
                "Write " + std::to_string(*count) + (*count == 1 ? " form" : " forms"),
                problem->diagnostic,
                {{pluralForm->range, lm_edit::WithForms(scene.Document(), *pluralForm, *count)}});
        }
    }
}

}  // namespace lm_lsp
