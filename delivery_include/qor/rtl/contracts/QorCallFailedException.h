// A framework operation answered with a failure code.
#pragma once

#include "qor/rtl/contracts/ContractViolationException.h"

namespace LocalizationManager {

class QorCallFailedException : public code_contracts::InvariantViolationException {
    using InvariantViolationException::InvariantViolationException;
};

}  // namespace LocalizationManager
