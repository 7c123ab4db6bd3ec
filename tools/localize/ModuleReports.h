// What the module reports, as people read it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "RequestSettings.h"
#include "localization_manager/host/Report.h"

namespace localize {

/// Goes to standard error. Of texts that are not part of the tree the module knows only a generated
/// name; the file's stands in its place.
class ModuleReports {
public:
    explicit ModuleReports(const RequestSettings& settings);
    ModuleReports(const ModuleReports&) = delete;  // the callback refers to it
    ModuleReports& operator=(const ModuleReports&) = delete;

    /// For the module; this must outlive it.
    localization_manager::host::Report Callback();

    /// How many there have been.
    std::size_t Count() const noexcept { return count_; }

    /// The last one, or what there was to say, without a line break at its end.
    const std::string& Last() const noexcept { return last_; }

    /// From now on what is reported goes into the output.
    void SetQuiet(bool isQuiet) noexcept { isQuiet_ = isQuiet; }
    bool IsQuiet() const noexcept { return isQuiet_; }

    /// The name of a source, as people know it.
    std::string SourceName(const std::string& source) const;

private:
    std::string Translated(std::string_view text) const;

    std::string prefix_;
    std::string buffer_;        // the file's name; empty when the texts are the tree's
    std::string commonBuffer_;  // the same for the common texts
    bool isQuiet_ = false;
    std::size_t count_ = 0;
    std::string last_;
};

}  // namespace localize
