// The text of a localisation source.
#pragma once

#include <string>

namespace LocalizationManager::StringLocalizing::Pipeline {

struct ResourceContent {
    std::u16string content;     // the whole text
    std::u16string sourceName;  // where it came from, as parse errors name it
};

}  // namespace LocalizationManager::StringLocalizing::Pipeline
