// The families of rules. Each stands in a file of its name and leaves what it finds in a collector.
#pragma once

#include <vector>

#include "check/Collector.h"
#include "check/Plan.h"
#include "check/Subject.h"
#include "check/TextFile.h"

namespace lm_check {

/// syntax, duplicate-key, encoding, and too-large for what nests too deep.
void CheckSyntax(const TextFile& file, const std::vector<Request>& requests, Collector& out);

/// escape, control-character, untranslated.
void CheckStrings(const TextFile& file, const std::vector<Request>& requests, Collector& out);

/// neutral-plural, for a file of the neutral texts.
void CheckNeutralForms(const Plan& plan, const TextFile& file, const std::vector<Request>& requests,
                       Collector& out);

/// unknown-reference, reference-cycle, too-large, reference-in-form.
void CheckReferences(const Subject& subject, Collector& out);

/// form-count, dead-form, hidden-number.
void CheckForms(const Subject& subject, Collector& out);

/// unknown-parameter, parameter-dropped, parameter-case, formatted-form.
void CheckParameters(const Subject& subject, Collector& out);

/// missing-key, extra-key, outer-space, unchanged, stale.
void CheckKeys(const Subject& subject, Collector& out);

/// missing-file, extra-file, answered-elsewhere, missing-resource, unreachable.
void CheckFiles(const Plan& plan, Collector& out);

/// rule-syntax, rule-gap, rule-unproven, dead-form of plural rule files.
/// @param plurals  the requests that texts with plural forms answer.
void CheckRuleFiles(const Plan& plan, std::vector<Request> plurals, Collector& out);

}  // namespace lm_check
