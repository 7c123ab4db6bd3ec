// Compiled catalogues of GNU gettext, which Boost.Locale reads, too.
#pragma once

#include <filesystem>

#include "Workload.h"

namespace lm_bench {

/// The name of the catalogue.
inline constexpr const char* kGettextDomain = "messages";

std::filesystem::path GettextFile(const std::filesystem::path& directory);

/// Writes the workload's catalogue and compiles it with msgfmt.
void WriteGettextCatalogue(const std::filesystem::path& directory, const Workload& workload);

/// Runs a tool; throws when it fails.
void Run(const std::string& command);

}  // namespace lm_bench
