#include "lsp/actions/Scene.h"

#include <stdexcept>

#include "lsp/findings.h"
#include "lsp/members.h"

namespace lm_lsp {

using lm_check::Finding;
using lm_source::Range;

namespace {

bool Touches(Range left, Range right) {
    return left.begin <= right.end && right.begin <= left.end;
}

}  // namespace

Scene::Scene(const Target& target, Range range, const Json& told)
    : target_(target), range_(range), told_(told) {
    const Snapshot& snapshot = GetSnapshot();
    if (snapshot.CulturesOf(target.File()).empty()) {
        return;
    }
    try {
        for (Finding& finding : JudgeFile(snapshot, target.File()).findings) {
            Json diagnostic = DiagnosticOf(target.GetWorkspace(), snapshot, finding);
            const bool isHere = Touches(finding.location.range, range);
            problems_.push_back({std::move(finding), std::move(diagnostic), isHere});
        }
    } catch (const std::invalid_argument&) {
        // There is nothing to compare the file with; the diagnostics tell of it.
    }
}

std::vector<const Scene::Problem*> Scene::Here(lm_check::Rule rule) const {
    std::vector<const Problem*> here;
    for (const Problem& problem : problems_) {
        if (problem.isHere && problem.finding.rule == rule) {
            here.push_back(&problem);
        }
    }
    return here;
}

std::vector<Json> Scene::Told(lm_check::Rule rule) const {
    std::vector<Json> told;
    for (const Json& diagnostic : told_) {
        if (Find(diagnostic, "code") == lm_check::InfoOf(rule).name) {
            told.push_back(diagnostic);
        }
    }
    return told;
}

}  // namespace lm_lsp
