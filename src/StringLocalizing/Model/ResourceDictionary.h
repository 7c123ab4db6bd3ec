// A parsed localisation source.
#pragma once

#include <map>
#include <string>

#include "Value.h"

namespace LocalizationManager::StringLocalizing::Model {

/// From lower-cased key to value, ordered by UTF-16 unit. Held by shared pointer.
using ResourceDictionary = std::map<std::u16string, Value>;

}  // namespace LocalizationManager::StringLocalizing::Model
