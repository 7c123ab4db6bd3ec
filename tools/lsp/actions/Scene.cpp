#include "lsp/actions/Scene.h"

#include <stdexcept>

#include "lsp/findings.h"
#include "lsp/members.h"

namespace lm_lsp {

using lm_check::Finding;
using lm_source::Range;

Scene::Scene(const Target& target, Range range, const Json& told)
    : target_(target), range_(range), told_(told) {
    if (GetSnapshot().CulturesOf(target.File()).empty()) {
        return;
    }
    try {
        findings_ = JudgeFile(GetSnapshot(), target.File()).findings;
    } catch (const std::invalid_argument&) {
        // There is nothing to compare the file with; the diagnostics tell of it.
    }
}

bool Scene::IsHere(const Finding& finding) const {
    return finding.location.range.begin <= range_.end && range_.begin <= finding.location.range.end;
}

std::vector<const Finding*> Scene::Here(lm_check::Rule rule) const {
    std::vector<const Finding*> here;
    for (const Finding& finding : findings_) {
        if (here.size() == kMostToMend) {
            break;
        }
        if (finding.rule == rule && IsHere(finding)) {
            here.push_back(&finding);
        }
    }
    return here;
}

Json Scene::DiagnosticOf(const Finding& finding) const {
    return lm_lsp::DiagnosticOf(target_.GetWorkspace(), GetSnapshot(), finding);
}

std::vector<Json> Scene::Told(lm_check::Rule rule) const {
    std::vector<Json> told;
    for (const Json& diagnostic : told_) {
        if (told.size() == kMostToMend) {
            break;
        }
        if (Find(diagnostic, "code") == lm_check::InfoOf(rule).name) {
            told.push_back(diagnostic);
        }
    }
    return told;
}

}  // namespace lm_lsp
