// All scopes of the reference.
#pragma once

#include <vector>

#include "check/Plan.h"
#include "check/ReferenceTexts.h"
#include "check/Subject.h"

namespace lm_check {

/// Does not change once it is made.
class Reference {
public:
    /// Reads the files of the reference, one after the other.
    explicit Reference(const Plan& plan);

    /// What a scope is compared with.
    ReferenceView Of(std::size_t scope) const;

private:
    NameSets names_;
    std::vector<ReferenceScope> scopes_;
    std::vector<bool> isThere_;
};

}  // namespace lm_check
