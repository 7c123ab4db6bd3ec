// A text that could not be parsed.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

namespace LocalizationManager::StringLocalizing::Parsing {

class ParsingException : public std::runtime_error {
public:
    /// @param message  UTF-8; kept as it is, since a line that it shows may be as long as its file.
    /// @param offset   where the text is faulty, in units from its start; empty for what has no place.
    explicit ParsingException(std::string message, std::optional<std::size_t> offset = {});

    const char* what() const noexcept override { return message_->c_str(); }
    std::optional<std::size_t> Offset() const noexcept { return offset_; }

private:
    std::shared_ptr<const std::string> message_;  // shared: to copy an exception must not fail
    std::optional<std::size_t> offset_;
};

}  // namespace LocalizationManager::StringLocalizing::Parsing
