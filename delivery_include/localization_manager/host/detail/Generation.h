// The localizers in use at one time, made from the files as they were then.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "localization_manager/ILocalizationManager.h"
#include "localization_manager/ILocalizer.h"
#include "localization_manager/host/Conventions.h"
#include "qor/objptr_t.h"

namespace localization_manager::host::detail {

/// Read by any number of threads, and never written again.
struct Generation {
    struct Source {
        qor::objptr_t<ILocalizer> localizer;
        std::string mistake;  // the module's report when the sources cannot be used
        std::shared_ptr<const Conventions> conventions;  // null for none
    };

    /// By the name of the culture: a manager shares the common texts of one culture only.
    std::map<std::string, qor::objptr_t<ILocalizationManager>> managers;

    /// In the order of `OpenTree`'s selections; of each, a source per culture.
    std::vector<std::vector<Source>> texts;
};

}  // namespace localization_manager::host::detail
