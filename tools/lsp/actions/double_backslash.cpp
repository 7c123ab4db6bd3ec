#include "lsp/actions/actions.h"

namespace lm_lsp {

void DoubleBackslash(const Scene& scene, Offers& offers) {
    for (const lm_check::Finding* const finding : scene.Here(lm_check::Rule::Escape)) {
        const std::uint32_t begin = finding->location.range.begin;
        offers.Add("Write the backslash twice", scene.DiagnosticOf(*finding),
                   {{{begin, begin}, "\\"}});
    }
}

}  // namespace lm_lsp
