// Final texts of sources that are not in files yet, as the module makes them.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "ModuleReports.h"
#include "localization_manager/ILocalizer.h"
#include "localization_manager/host/Module.h"
#include "lsp/Engine.h"
#include "qor/objptr_t.h"

namespace localize {

/// Loads the module when it is first asked, and keeps the localizer of the last request.
class UnsavedTexts {
public:
    /// @param module  file of the module; empty to look where it belongs.
    explicit UnsavedTexts(std::string module) : modulePath_(std::move(module)) {}
    UnsavedTexts(const UnsavedTexts&) = delete;  // callbacks refer to it
    UnsavedTexts& operator=(const UnsavedTexts&) = delete;

    /// @throws std::runtime_error when there is no module, or it cannot use the tree.
    lm_lsp::EngineAnswer Ask(const lm_lsp::EngineRequest& request);

private:
    bool IsKept() const;
    void Create();
    std::optional<std::string> Param(const std::string& name);

    std::string modulePath_;
    lm_lsp::EngineRequest request_;
    bool usesNumber_ = false;
    std::unique_ptr<ModuleReports> reports_;  // before the module, which reports until it goes
    std::optional<localization_manager::host::Module> module_;
    qor::objptr_t<localization_manager::ILocalizer> localizer_;
    lm_lsp::EngineRequest made_;  // what the localizer was made for
};

}  // namespace localize
