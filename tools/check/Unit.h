// A file to be judged, and what came of it.
#pragma once

#include <vector>

#include "check/Collector.h"
#include "check/Plan.h"
#include "check/Suppressions.h"

namespace lm_check {

struct Unit {
    lm_tree::FileId file;
    std::vector<Request> requests;  // that it answers; none for a file that answers nobody
};

struct UnitResult {
    Collector findings;
    Suppressions suppressions;
    std::vector<Request> plurals;  // whose texts have plural forms, as far as known
};

}  // namespace lm_check
