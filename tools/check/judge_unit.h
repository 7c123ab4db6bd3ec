// Judges one file by all rules.
#pragma once

#include "check/CommonFiles.h"
#include "check/Reference.h"
#include "check/TranslationLock.h"
#include "check/Unit.h"

namespace lm_check {

/// Once for the cultures that share common texts and plural rule.
UnitResult JudgeUnit(const Plan& plan, const Reference& reference, const TranslationLock& lock,
                     CommonFiles& commonFiles, const Unit& unit);

}  // namespace lm_check
