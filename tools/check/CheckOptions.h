// What a check is asked for.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "check/Rule.h"
#include "localization_manager/host/DerivedParam.h"

namespace lm_check {

/// Names of cultures as the module takes them.
struct CheckOptions {
    std::string reference;              // empty for `en` where the tree has it, else `neutral`
    std::vector<std::string> cultures;  // empty for those that the tree names
    std::vector<std::string> scopes;    // empty for all of the reference
    std::set<std::string> params;       // that the program supplies everywhere
    std::map<Rule, bool> switches;      // where it differs from the table
    std::size_t threads = 0;            // zero for as many as the machine runs at once

    /// Heard on the calling thread or another one, but never at the same time: how many files are done.
    std::function<void(std::size_t done, std::size_t all)> progress;

    bool IsOn(Rule rule) const {
        const auto found = switches.find(rule);
        return found != switches.end() ? found->second : InfoOf(rule).isOn;
    }

    /// Whether the program supplies a parameter everywhere; a derived name says so of the one that it stands for.
    bool Supplies(std::string_view param) const {
        return std::any_of(params.begin(), params.end(), [param](const std::string& name) {
            return localization_manager::host::SuppliedParam(name) == param;
        });
    }

    /// Whether nothing is left out, so that what is found nowhere is nowhere.
    bool IsWhole() const { return cultures.empty() && scopes.empty(); }
};

}  // namespace lm_check
