// Forms that stand too deep inside each other.
#pragma once

#include <stdexcept>
#include <string>

namespace LocalizationManager::StringLocalizing::Parsing {

/// Stays inside the parser, which reports it as a `ParsingException`.
class NestingLimitExceeded : public std::length_error {
public:
    /// @param place     the opening that is one too many.
    /// @param expected  what may stand there.
    NestingLimitExceeded(const char16_t* place, const std::string& expected)
        : std::length_error(expected), place_(place) {}

    const char16_t* Place() const noexcept { return place_; }

private:
    const char16_t* place_;
};

}  // namespace LocalizationManager::StringLocalizing::Parsing
