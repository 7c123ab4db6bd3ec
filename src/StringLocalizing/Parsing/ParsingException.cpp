#include "ParsingException.h"

#include <utility>

#include "Utf8.h"

namespace LocalizationManager::StringLocalizing::Parsing {

ParsingException::ParsingException(std::u16string message)
    : std::runtime_error(Text::ToUtf8(message)), message_(std::move(message)) {}

}  // namespace LocalizationManager::StringLocalizing::Parsing
