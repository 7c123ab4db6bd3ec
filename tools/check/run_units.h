// Judges files, several at a time.
#pragma once

#include <vector>

#include "check/Reference.h"
#include "check/TranslationLock.h"
#include "check/Unit.h"

namespace lm_check {

/// Files that are judged at the same time are together not larger than the largest culture's, so
/// that memory does not grow with the number of threads or cultures.
/// @return what all of them came to; the same whatever ran at the same time.
UnitResult RunUnits(const Plan& plan, const Reference& reference, const TranslationLock& lock,
                    const std::vector<Unit>& units);

}  // namespace lm_check
