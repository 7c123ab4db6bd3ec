// The module, its localizer and its reports, for one run of a command.
#pragma once

#include <string>

#include "ModuleReports.h"
#include "RequestSettings.h"
#include "create_localizer.h"
#include "localization_manager/ILocalizer.h"
#include "localization_manager/host/Module.h"
#include "qor/objptr_t.h"

namespace localize {

class Requests {
public:
    /// @throws what `CreateLocalizer` throws.
    explicit Requests(const RequestSettings& settings)
        : reports_(settings),
          module_(settings.module.empty() ? localization_manager::host::Module()
                                          : localization_manager::host::Module(settings.module)),
          localizer_(CreateLocalizer(module_, settings, reports_)) {
        reports_.SetQuiet(settings.json);
    }

    localization_manager::ILocalizer& Localizer() const noexcept { return *localizer_; }
    const ModuleReports& Reports() const noexcept { return reports_; }

    /// Tells why a call for a file failed, unless the module has.
    /// @param before  how many reports there were before the call.
    std::string FailureOf(qor::result_t code, const std::string& file, std::size_t before) const;

private:
    ModuleReports reports_;  // before the module, which reports until it goes
    localization_manager::host::Module module_;
    qor::objptr_t<localization_manager::ILocalizer> localizer_;
};

}  // namespace localize
