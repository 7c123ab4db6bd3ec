#include "ExpansionLimitException.h"

#include <string>

#include "MessageUtf8.h"
#include "expansion_limits.h"

namespace LocalizationManager::StringLocalizing::Compiling {

namespace {

std::string MessageOf(std::u16string_view key, std::size_t limit) {
    const char* const what =
        limit == kMaxExpandedValue ? "' expands" : "' makes the dictionary expand";
    return "Key '" + Text::ToUtf8(key) + what + " to more than " + std::to_string(limit) +
           " characters";
}

}  // namespace

ExpansionLimitException::ExpansionLimitException(std::u16string_view key, std::size_t limit)
    : std::runtime_error(MessageOf(key, limit)) {}

}  // namespace LocalizationManager::StringLocalizing::Compiling
