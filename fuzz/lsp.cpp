// Fuzzes the language server: a stream as it comes, or, when it begins with a line break, lines that each
// are the content of a message. "TREE" in a line stands for the sample tree. Whatever comes, each request is
// answered once, in messages that can be read, and errors are in own words.
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "Input.h"
#include "lsp/Inbox.h"
#include "lsp/Server.h"
#include "lsp/frames.h"
#include "lsp/uri.h"

namespace {

using lm_fuzz::Require;
using lm_lsp::Json;

constexpr std::size_t kLargest = 8192;  // so that the messages find room in the inbox

std::string StreamOf(const std::string& input) {
    if (input.empty() || input.front() != '\n') {
        return input;
    }
    const std::string tree = lm_lsp::UriOf(SAMPLES);
    std::istringstream lines(input.substr(1));
    std::string stream;
    for (std::string line; std::getline(lines, line);) {
        for (std::size_t at = line.find("TREE"); at != std::string::npos; at = line.find("TREE")) {
            line.replace(at, 4, tree);
        }
        stream += "Content-Length: " + std::to_string(line.size()) + "\r\n\r\n" + line;
    }
    return stream;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > kLargest) {
        return 0;
    }
    std::istringstream in(StreamOf(std::string(reinterpret_cast<const char*>(data), size)));
    std::ostringstream out;
    lm_lsp::Inbox inbox;
    std::size_t replies = 0;
    lm_lsp::Server server({"1",
                           [&](const Json& message) {
                               replies += message.contains("id") ? 1 : 0;
                               Require(message.dump(-1, ' ', true, Json::error_handler_t::replace)
                                               .find("[json.exception") == std::string::npos,
                                       "errors are in own words");
                               lm_lsp::WriteFrame(out, message);
                           },
                           [] { return false; }, [] { return std::nullopt; }});
    inbox.ReadAll(in);
    while (const auto* const message = inbox.Take(std::nullopt)) {
        const std::size_t before = replies;
        server.Handle(*message);
        const bool isRequest = message->content.is_object() && message->content.contains("id") &&
                               message->content["id"].is_number_integer() &&
                               message->content.contains("method");
        Require(replies - before <= 1 && (!isRequest || replies > before || server.IsOver()),
                "a request is answered once");
        while (server.Delay()) {
            server.Work();
        }
    }
    std::istringstream written(out.str());
    while (const auto content = lm_lsp::ReadFrame(written)) {
        Require(lm_lsp::ParseContent(*content).is_object(), "replies can be read");
    }
    return 0;
}
