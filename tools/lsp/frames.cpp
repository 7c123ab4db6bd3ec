#include "lsp/frames.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <string_view>

#include "lsp/RequestError.h"
#include "tree/ascii_case.h"

namespace lm_lsp {

namespace {

constexpr std::size_t kLongestHeader = 4096;                      // one line of it
constexpr std::size_t kLargest = std::size_t{256} * 1024 * 1024;  // content
constexpr std::size_t kPiece =
    std::size_t{1024} * 1024;  // memory is taken as bytes come, not as announced
constexpr std::size_t kDeepest = 64;

/// A line without its CR LF; empty at the end of the stream.
std::optional<std::string> ReadHeaderLine(std::istream& in) {
    std::string line;
    for (int byte = in.get(); byte != std::istream::traits_type::eof(); byte = in.get()) {
        if (byte == '\n') {
            if (!line.empty() && line.back() == '\r') {
                line.pop_back();
            }
            return line;
        }
        if (line.size() == kLongestHeader) {
            throw FrameError("a header is too long");
        }
        line += static_cast<char>(byte);
    }
    if (!line.empty()) {
        throw FrameError("the stream ends inside a header");
    }
    return std::nullopt;
}

std::size_t LengthOf(std::string_view text) {
    const std::size_t begin = std::min(text.find_first_not_of(" \t"), text.size());
    const std::size_t end = text.find_last_not_of(" \t") + 1;
    std::size_t length = 0;
    const auto [last, error] = std::from_chars(text.data() + begin, text.data() + end, length);
    if (error != std::errc() || begin >= end || last != text.data() + end) {
        throw FrameError("Content-Length is no number");
    }
    if (length > kLargest) {
        throw FrameError("Content-Length is too large");
    }
    return length;
}

std::string ReadContent(std::istream& in, std::size_t length) {
    std::string content;
    while (content.size() < length) {
        const std::size_t before = content.size();
        content.resize(before + std::min(kPiece, length - before));
        in.read(content.data() + before, static_cast<std::streamsize>(content.size() - before));
        if (static_cast<std::size_t>(in.gcount()) != content.size() - before) {
            throw FrameError("the stream ends inside a message");
        }
    }
    return content;
}

/// The parser takes any depth, but what is done with a value takes the stack.
bool IsTooDeep(std::string_view content) {
    std::size_t depth = 0;
    bool isInString = false;
    for (std::size_t i = 0; i < content.size(); ++i) {
        const char unit = content[i];
        if (isInString) {
            i += unit == '\\' ? 1 : 0;
            isInString = unit != '"';
        } else if (unit == '"') {
            isInString = true;
        } else if (unit == '[' || unit == '{') {
            if (++depth > kDeepest) {
                return true;
            }
        } else if ((unit == ']' || unit == '}') && depth != 0) {
            --depth;
        }
    }
    return false;
}

}  // namespace

std::optional<std::string> ReadFrame(std::istream& in) {
    std::optional<std::size_t> length;
    bool isFirst = true;
    for (;; isFirst = false) {
        const auto line = ReadHeaderLine(in);
        if (!line) {
            if (!isFirst) {
                throw FrameError("the stream ends inside a header");
            }
            return std::nullopt;
        }
        if (line->empty()) {
            break;
        }
        const std::size_t colon = line->find(':');
        if (colon == std::string::npos) {
            throw FrameError("a header has no colon");
        }
        if (lm_tree::SameIgnoringCase(line->substr(0, colon), "Content-Length")) {
            length = LengthOf(std::string_view(*line).substr(colon + 1));
        }
    }
    if (!length) {
        throw FrameError("a message has no Content-Length");
    }
    return ReadContent(in, *length);
}

void WriteFrame(std::ostream& out, const Json& message) {
    const std::string content = message.dump(-1, ' ', false, Json::error_handler_t::replace);
    out << "Content-Length: " << content.size() << "\r\n\r\n" << content << std::flush;
}

Json ParseContent(const std::string& content) {
    if (IsTooDeep(content)) {
        throw RequestError(ErrorCode::ParseError, "the message is nested too deep");
    }
    try {
        return Json::parse(content);
    } catch (const Json::parse_error& error) {
        throw RequestError(
            ErrorCode::ParseError,
            "the message is no JSON in UTF-8: wrong at byte " + std::to_string(error.byte));
    } catch (const Json::out_of_range&) {
        throw RequestError(ErrorCode::ParseError, "the message has a number that is too large");
    }
}

}  // namespace lm_lsp
