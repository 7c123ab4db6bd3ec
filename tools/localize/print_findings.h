// The forms in which findings are printed.
#pragma once

#include <ostream>

#include "FindingPaths.h"
#include "check/Report.h"

namespace localize {

/// For people: one paragraph for each finding, and a last line that counts them.
void PrintText(std::ostream& output, const lm_check::Report& report, const FindingPaths& paths);

/// What GitHub shows beside the lines of a change.
void PrintGitHub(std::ostream& output, const lm_check::Report& report, const FindingPaths& paths);

/// For programs; docs/checking.md describes it.
void PrintJson(std::ostream& output, const lm_check::Report& report, const FindingPaths& paths);

/// SARIF 2.1.0, with so many results at most.
inline constexpr std::size_t kMaxSarifResults = 5000;
void PrintSarif(std::ostream& output, const lm_check::Report& report, const FindingPaths& paths);

}  // namespace localize
