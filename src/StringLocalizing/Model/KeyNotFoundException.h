// A key that no dictionary of the chain holds.
#pragma once

#include <stdexcept>
#include <string_view>

namespace LocalizationManager::StringLocalizing::Model {

class KeyNotFoundException : public std::runtime_error {
public:
    explicit KeyNotFoundException(std::u16string_view key);
};

}  // namespace LocalizationManager::StringLocalizing::Model
