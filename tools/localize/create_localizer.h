// Makes the localizer that answers a command.
#pragma once

#include "Options.h"
#include "localization_manager/ILocalizer.h"
#include "localization_manager/host/Module.h"
#include "qor/objptr_t.h"

namespace localize {

/// What the module reports, then and later, goes to standard error.
/// @throws UsageError when nobody knows the culture.
/// @throws std::runtime_error
qor::objptr_t<localization_manager::ILocalizer> CreateLocalizer(
    const localization_manager::host::Module& module, const Options& options);

}  // namespace localize
