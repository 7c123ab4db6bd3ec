// Messages as they go over a stream: a header with the length, an empty line, and JSON.
#pragma once

#include <istream>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>

#include "lsp/Json.h"

namespace lm_lsp {

/// Where the next message begins is not known any more.
class FrameError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The content of the next message; empty at the end of the stream.
/// @throws FrameError for a header that makes no sense, and an end inside a message.
std::optional<std::string> ReadFrame(std::istream& in);

/// Writes a message and flushes. Texts of files may hold what is not UTF-8; it is replaced.
void WriteFrame(std::ostream& out, const Json& message);

/// The value that the content of a message stands for.
/// @throws RequestError for one that is no JSON, not UTF-8, or nested deeper than any request is.
Json ParseContent(const std::string& content);

}  // namespace lm_lsp
