#include "ParsingException.h"

#include <utility>

namespace LocalizationManager::StringLocalizing::Parsing {

ParsingException::ParsingException(std::string message, std::optional<std::size_t> offset)
    : std::runtime_error("parsing failed"),
      message_(std::make_shared<const std::string>(std::move(message))),
      offset_(offset) {}

}  // namespace LocalizationManager::StringLocalizing::Parsing
