// Keys that refer to each other in a circle.
#pragma once

#include <stdexcept>
#include <string_view>

namespace LocalizationManager::StringLocalizing::Compiling {

class CyclicReferenceException : public std::runtime_error {
public:
    /// @param chain  the keys on the way, the circle in parentheses: "a->(b->c->b)".
    explicit CyclicReferenceException(std::u16string_view chain);
};

}  // namespace LocalizationManager::StringLocalizing::Compiling
