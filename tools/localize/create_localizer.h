// Makes the localizer that answers a command.
#pragma once

#include "ModuleReports.h"
#include "RequestSettings.h"
#include "localization_manager/ILocalizer.h"
#include "localization_manager/host/Module.h"
#include "qor/objptr_t.h"

namespace localize {

/// @param reports  hears what the module reports, then and later.
/// @throws UsageError when nobody knows the culture.
/// @throws ReportedError when the module has told what failed.
/// @throws std::runtime_error
qor::objptr_t<localization_manager::ILocalizer> CreateLocalizer(
    const localization_manager::host::Module& module, const RequestSettings& settings,
    ModuleReports& reports);

}  // namespace localize
