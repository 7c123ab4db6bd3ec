#include "DuplicateKeyException.h"

#include "MessageUtf8.h"

namespace LocalizationManager::StringLocalizing::Parsing {

DuplicateKeyException::DuplicateKeyException(std::u16string_view lowerCasedKey)
    : std::runtime_error("duplicate key found (keys are case insensitive): '" +
                         Text::ToUtf8(lowerCasedKey) + "'") {}

}  // namespace LocalizationManager::StringLocalizing::Parsing
