#include <string>

#include "qor/result_messages.h"
#include "qor/rtl/contracts/ContractViolationException.h"
#include "qor/rtl/contracts/QorCallFailedException.h"
#include "qor/rtl/contracts/checks.h"
#include "qor/rtl/text/Cast.h"

namespace code_contracts {

namespace {

std::string ViolationText(const ContractLocation& location, const std::string& description) {
    return std::string("Contract Violation! Violated argument '") + location.argument + "' at " +
           location.function + " at " + location.file + ":" + std::to_string(location.line) +
           "Description: " + description;
}

}  // namespace

ContractViolationException::ContractViolationException(const ContractLocation& location,
                                                       const std::string& description)
    : std::runtime_error(ViolationText(location, description)),
      location_(location),
      description_(description) {}

}  // namespace code_contracts

namespace LocalizationManager {

void ThrowCallFailed(qor::result_t code, std::string_view text,
                     const code_contracts::ContractLocation& location) {
    const qor::string16_t message = qor::GetResultCodeMessage(code);
    throw QorCallFailedException(
        location, std::string(text) + ", error: " + qor::text::Cast<std::string>(message.view()));
}

}  // namespace LocalizationManager
