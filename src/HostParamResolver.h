// Asking the host for the text of a parameter.
#pragma once

#include <cstdint>
#include <string>

#include "localization_manager/IParamResolver.h"

namespace localization_manager {

/// The part that the resolver wrappers of all localizers share.
/// @param resolver  null when the host gave none.
/// @param function  signature of the wrapper's operation, for the message of a failure.
/// @param line      line of the call there.
/// @throws QorCallFailedException when the host answers with a failure code; std::runtime_error
///         without a resolver; what the host throws.
std::u16string AskHost(IParamResolver* resolver, const std::u16string& name, const char* function,
                       std::int32_t line);

}  // namespace localization_manager
