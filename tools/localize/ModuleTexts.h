// All texts of a tree, as the module makes them.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>

#include "localization_manager/ILocalizer.h"
#include "localization_manager/host/Module.h"
#include "qor/objptr_t.h"
#include "report/write_page.h"
#include "tree/Tree.h"

namespace localize {

/// Keeps the localizers of one scope at a time. Parameters that choose forms anywhere in the tree are
/// the number that is asked for; others show their name.
class ModuleTexts {
public:
    /// @param module  file of the module; empty to look where it belongs.
    ModuleTexts(const std::string& module, const lm_tree::Tree& tree, const std::string& root,
                const std::string& alternative);
    ModuleTexts(const ModuleTexts&) = delete;  // callbacks refer to it
    ModuleTexts& operator=(const ModuleTexts&) = delete;

    lm_report::Answer Ask(const std::string& culture, const std::string& scope,
                          const std::string& key, int number);

private:
    using Localizer = qor::objptr_t<localization_manager::ILocalizer>;

    Localizer Create(const std::string& culture, const std::string& scope);

    std::set<std::string> numbers_;  // names of parameters
    int number_ = 0;
    std::string reported_;  // last
    localization_manager::host::Module module_;
    qor::objptr_t<qor::IServiceLocator> services_;
    qor::objptr_t<localization_manager::ILocalizationManager> manager_;
    qor::objptr_t<localization_manager::ICultureConverter> converter_;
    qor::objptr_t<localization_manager::IParamResolver> params_;
    std::string scope_;
    std::map<std::string, Localizer> localizers_;  // of the scope, by culture
};

}  // namespace localize
