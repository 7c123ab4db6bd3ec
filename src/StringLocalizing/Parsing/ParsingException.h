// A text that could not be parsed.
#pragma once

#include <stdexcept>
#include <string>

namespace LocalizationManager::StringLocalizing::Parsing {

/// `what()` is the message as UTF-8.
class ParsingException : public std::runtime_error {
public:
    explicit ParsingException(std::u16string message);

    const std::u16string& Message() const noexcept { return message_; }

private:
    std::u16string message_;
};

}  // namespace LocalizationManager::StringLocalizing::Parsing
