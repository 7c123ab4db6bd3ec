// What the engine throws when a contract between its parts, or with the host, is broken.
#pragma once

#include <stdexcept>
#include <string>

#include "qor/rtl/contracts/ContractLocation.h"

namespace code_contracts {

class ContractViolationException : public std::runtime_error {
public:
    ContractViolationException(const ContractLocation& location, const std::string& description);

    const ContractLocation& GetLocation() const noexcept { return location_; }
    const std::string& GetDescription() const noexcept { return description_; }

private:
    ContractLocation location_;
    std::string description_;
};

/// An argument check on entry failed.
class RequireViolationException : public ContractViolationException {
    using ContractViolationException::ContractViolationException;
};

/// A check inside a body failed.
class InvariantViolationException : public ContractViolationException {
    using ContractViolationException::ContractViolationException;
};

/// The null-pointer form of the class it names.
template <class Violation>
class NullPointerException : public Violation {
    using Violation::Violation;
};

}  // namespace code_contracts
