// The framework's own contract exceptions. This module raises none of them; it knows them because a
// host's code may throw them through it.
#pragma once

#include "qor/rtl/error_handling/ExceptionBase.h"

namespace qor::contract {

class RequireViolation : public ExceptionBase<RequireViolation, Exception> {
    using ExceptionBase::ExceptionBase;
};

class InvariantViolation : public ExceptionBase<InvariantViolation, Exception> {
    using ExceptionBase::ExceptionBase;
};

class EnsureViolation : public ExceptionBase<EnsureViolation, Exception> {
    using ExceptionBase::ExceptionBase;
};

}  // namespace qor::contract
