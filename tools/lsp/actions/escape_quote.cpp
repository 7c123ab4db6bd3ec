#include <vector>

#include "lsp/actions/actions.h"

namespace lm_lsp {

using lm_source::Document;
using lm_source::Edit;
using lm_source::Mistake;

namespace {

void EscapeBefore(const Scene& scene, const lm_check::Finding& finding, std::uint32_t after,
                  Offers& offers) {
    const Document& document = scene.Document();
    if (after == 0 || document.Bytes()[after - 1] != '\'') {
        return;
    }
    const std::vector<Edit> edits = {{{after - 1, after - 1}, "\\"}};
    const Document mended(Apply(document.Bytes(), edits));
    if (mended.Mistakes().size() < document.Mistakes().size()) {
        offers.Add("Escape the quote", scene.DiagnosticOf(finding), edits);
    }
}

}  // namespace

void EscapeQuote(const Scene& scene, Offers& offers) {
    for (const lm_check::Finding* const finding : scene.Here(lm_check::Rule::Syntax)) {
        const lm_source::Range wrong = finding->location.range;
        for (const Mistake& mistake : scene.Document().Mistakes()) {
            if (mistake.range.begin <= wrong.end && wrong.begin <= mistake.range.end) {
                EscapeBefore(scene, *finding, mistake.range.begin, offers);
                if (mistake.entry != mistake.range.begin) {
                    EscapeBefore(scene, *finding, mistake.entry, offers);
                }
            }
        }
    }
}

}  // namespace lm_lsp
