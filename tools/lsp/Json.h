// The values that requests and replies are made of.
#pragma once

#include <nlohmann/json.hpp>

namespace lm_lsp {

using Json = nlohmann::json;

}  // namespace lm_lsp
