// Names of keys, sources and parameters, as C++ takes them.
#pragma once

#include <string>
#include <string_view>

namespace lm_keys {

/// The same wherever it is asked: what C++ does not allow in a name becomes "_", and several of these
/// one, so that none is reserved to the compiler; a "_" is put in front of a digit, and behind a keyword or a name
/// that generated code uses itself. Different names may come to the same.
std::string IdentifierOf(std::string_view name);

}  // namespace lm_keys
