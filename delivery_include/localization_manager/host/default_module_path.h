// Where a host finds the module when it does not say.
#pragma once

#include <string>

#include "qor/platform/shared_library.h"

namespace localization_manager::host {

/// The module's bare file name on this platform, which is looked for where the run path points of the
/// program or library that this is compiled into.
inline std::string DefaultModulePath() {
    return std::string(qor::platform::kSharedLibraryPrefix) + "localization_manager" +
           qor::platform::kSharedLibrarySuffix;
}

}  // namespace localization_manager::host
