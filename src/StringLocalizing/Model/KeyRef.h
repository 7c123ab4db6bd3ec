// A reference to another key.
#pragma once

#include <string>

namespace LocalizationManager::StringLocalizing::Model {

/// To be replaced by the value of the key when the dictionary is compiled.
struct KeyRef {
    std::u16string key;  // lower-cased
};

}  // namespace LocalizationManager::StringLocalizing::Model
