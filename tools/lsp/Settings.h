// What the editor says of the trees, when it starts the server.
#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>

#include "check/CheckOptions.h"
#include "lsp/Json.h"

namespace lm_lsp {

struct Settings {
    std::filesystem::path root;                 // empty to find it from the place of a file
    std::filesystem::path alternative;          // empty for none
    lm_check::CheckOptions check;               // reference, rules, names of parameters
    std::map<std::string, std::string> params;  // their sample values
};

/// Reads `initializationOptions`: root, alternative, reference, params, enable, disable.
/// @param initialize  the parameters that hold them, if there are any.
/// @param folder      that relative paths begin at; may be empty.
/// @throws RequestError for what is not understood.
Settings ReadSettings(const Json& initialize, const std::filesystem::path& folder);

}  // namespace lm_lsp
