#include "check/check.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "check/Plan.h"
#include "check/Reference.h"
#include "check/Suppressions.h"
#include "check/Unit.h"
#include "check/families.h"
#include "check/run_units.h"

namespace lm_check {

namespace {

/// All files that are judged: those that answer somebody, and, when nothing is left out, the others.
std::vector<Unit> UnitsOf(const Plan& plan) {
    std::vector<Unit> units;
    for (lm_tree::FileId file = 0; file < plan.tree.Files().size(); ++file) {
        if (plan.tree.Files()[file].kind != lm_tree::FileKind::Texts) {
            continue;
        }
        Unit unit{file, plan.RequestsOf(file)};
        if (!unit.requests.empty() || plan.options.IsWhole()) {
            units.push_back(std::move(unit));
        }
    }
    return units;
}

}  // namespace

Report Check(const lm_tree::Tree& tree, const CheckOptions& options, const TranslationLock& lock) {
    const Plan plan(tree, options);
    const Reference reference(plan);
    const std::vector<Unit> units = UnitsOf(plan);
    UnitResult all = RunUnits(plan, reference, lock, units);
    CheckFiles(plan, all.findings);
    CheckRuleFiles(plan, std::move(all.plurals), all.findings);

    Report report;
    for (const lm_tree::CultureName& culture : plan.cultures) {
        report.cultures.push_back(culture.name);
    }
    report.scopes = plan.scopes;
    report.reference = plan.reference.name;
    report.files = units.size();
    report.findings = all.findings.Take();
    report.suppressed = all.suppressions.Apply(report.findings, all.findings, options);
    std::vector<Finding> unused = all.findings.Take();
    std::move(unused.begin(), unused.end(), std::back_inserter(report.findings));
    SortFindings(report.findings);
    return report;
}

}  // namespace lm_check
