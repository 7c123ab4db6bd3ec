// Mistakes in plural rule files.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lm_source {

/// What the engine reports of a rule file; it stops there.
struct RuleMistake {
    std::uint32_t offset;  // of a byte in the file
    std::string text;      // with place, line and caret. UTF-8
};

/// @param bytes       the whole file, byte-order mark included.
/// @param sourceName  the name of the file in the text. UTF-8.
/// @return empty when the engine accepts the file.
std::optional<RuleMistake> FindRuleMistake(std::string_view bytes, std::string_view sourceName);

}  // namespace lm_source
