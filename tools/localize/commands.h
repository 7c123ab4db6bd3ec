// What the tool can do with a localizer.
#pragma once

#include "Options.h"
#include "localization_manager/ILocalizer.h"

namespace localize {

/// Answers on standard output, and tells on standard error what could not be answered.
/// @return whether all was answered, and with yes where the question was whether.
bool Run(const Options& options, localization_manager::ILocalizer& localizer);

}  // namespace localize
