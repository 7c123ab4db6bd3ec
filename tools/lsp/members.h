// Members of what clients send. Errors say which is wrong, and what it must be.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "lsp/Json.h"

namespace lm_lsp {

/// The member at the end of a path, names with dots between; null when there is none.
const Json& Find(const Json& value, std::string_view path);

/// Members that have to be there.
/// @throws RequestError for one that is missing or something else.
const std::string& StringAt(const Json& value, const std::string& path);
const Json& ArrayAt(const Json& value, const std::string& path);
const Json& ObjectAt(const Json& value, const std::string& path);
std::uint64_t NumberAt(const Json& value, const std::string& path);

/// One that may be missing.
std::string StringOr(const Json& value, const std::string& path, const std::string& otherwise);

}  // namespace lm_lsp
