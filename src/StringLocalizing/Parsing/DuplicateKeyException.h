// A key that a source defines twice.
#pragma once

#include <stdexcept>
#include <string_view>

namespace LocalizationManager::StringLocalizing::Parsing {

/// Stays inside the parser, which reports it as a `ParsingException`.
class DuplicateKeyException : public std::runtime_error {
public:
    explicit DuplicateKeyException(std::u16string_view lowerCasedKey);
};

}  // namespace LocalizationManager::StringLocalizing::Parsing
