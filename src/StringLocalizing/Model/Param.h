// An external parameter.
#pragma once

#include <string>

namespace LocalizationManager::StringLocalizing::Model {

/// To be replaced by the text that the host's resolver gives for the name.
struct Param {
    std::u16string name;  // without the "$", letter case kept
};

}  // namespace LocalizationManager::StringLocalizing::Model
