#include "lsp/actions/actions.h"

namespace lm_lsp {

void DoubleBackslash(const Scene& scene, Offers& offers) {
    for (const Scene::Problem* const problem : scene.Here(lm_check::Rule::Escape)) {
        const std::uint32_t begin = problem->finding.location.range.begin;
        offers.Add("Write the backslash twice", problem->diagnostic, {{{begin, begin}, "\\"}});
    }
}

}  // namespace lm_lsp
