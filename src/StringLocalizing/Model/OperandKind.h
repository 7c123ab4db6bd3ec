// The kinds of operands.
#pragma once

#include <cstdint>

namespace LocalizationManager::StringLocalizing::Model {

enum class OperandKind : std::uint8_t { Text, KeyRef, Param, PluralForm };

}  // namespace LocalizationManager::StringLocalizing::Model
