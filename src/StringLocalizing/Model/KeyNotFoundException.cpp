#include "KeyNotFoundException.h"

#include "MessageUtf8.h"

namespace LocalizationManager::StringLocalizing::Model {

KeyNotFoundException::KeyNotFoundException(std::u16string_view key)
    : std::runtime_error("Key '" + Text::ToUtf8(key) + "' not found") {}

}  // namespace LocalizationManager::StringLocalizing::Model
