// The module as a host sees it: one localizer is a measured system.
#pragma once

#include "System.h"
#include "localization_manager/host/host.h"

namespace lm_bench {

/// A manager over the tree in a directory.
qor::objptr_t<localization_manager::ILocalizationManager> OpenManager(
    const std::filesystem::path& tree);

/// Writes messages as the Russian source of a scope.
void WriteScope(const std::filesystem::path& tree, const char* scope, const Workload& workload);

class Module : public System {
public:
    Module(localization_manager::ILocalizationManager& manager, const char16_t* scope);

    void Answer(const Request& request) override;
    std::string Kept() const override;

private:
    qor::objptr_t<localization_manager::ILocalizer> localizer_;
};

}  // namespace lm_bench
