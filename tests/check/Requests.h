// What becomes of the requests that a check promises something about.
#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace lm_test {

/// Asks the engine for every key of the reference and of the files that answer, in every culture that
/// a tree names, with the parameters of the reference text and various numbers.
/// @param params  that are supplied in any case.
/// @return the cultures of which a request fails or shows a character that could not be decoded.
std::set<std::string> CulturesWithFailures(const std::filesystem::path& root,
                                           const std::set<std::string>& params);

}  // namespace lm_test
