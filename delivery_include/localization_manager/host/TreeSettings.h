// How a host wants its texts.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "localization_manager/host/Conventions.h"
#include "localization_manager/host/Report.h"
#include "localization_manager/host/TextProblem.h"
#include "localization_manager/host/default_module_path.h"

namespace localization_manager::host {

struct TreeSettings {
    /// Directory of a tree that is searched first, UTF-8; empty for none.
    std::string alternative;

    /// What is shown for a text that no culture has, or that cannot be made: `ShowKey`, `ShowMarkedKey`,
    /// `ThrowTextError`, or the host's own function, never an empty one, which may ask for other texts. Called on the thread
    /// that asked; what it throws, the call throws.
    std::function<std::string(const TextProblem&)> whenMissing = ShowKey;

    /// Hears each text that is missing, once, and each other mistake; nobody hears them without it. Called
    /// on the thread that works with the texts, from several at once if the host has several; should
    /// not throw.
    Report report;

    /// Gives the conventions of a culture, for texts that ask for `$count.number` where a call has "count": what
    /// `UseIcu` makes, or the host's own function. Called once for each culture when texts in it are
    /// opened, and must not use the tree; what it throws, the opening throws. Null answers stand for none.
    /// @param languageTag  the culture's language and region: "pt-br", "zh-Hant-hk".
    std::function<std::shared_ptr<const Conventions>(const std::string& languageTag)> conventions;

    /// File of the module, UTF-8.
    std::string module = DefaultModulePath();
};

}  // namespace localization_manager::host
