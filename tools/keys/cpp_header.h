// Keys as C++ code.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "keys/ScopeKeys.h"

namespace lm_keys {

/// How a header begins, so that it is known for what it is.
inline constexpr std::string_view kHeaderMark = "// Made by \"localize keys\"";

struct CppHeaderSettings {
    std::string nameSpace = "localized";  // may be several, with "::" between them
    std::string reference;                // the name of the culture
};

/// A header with a class for each source. Depends on names alone and not on what texts say, so that a better
/// wording compiles nothing anew.
/// @param scopes  the common ones first.
/// @throws std::invalid_argument when the namespace is none.
/// @throws std::runtime_error with places when different names come to the same.
std::string CppHeader(const std::vector<ScopeKeys>& scopes, const CppHeaderSettings& settings);

}  // namespace lm_keys
