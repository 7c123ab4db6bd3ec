#include "lsp/serve.h"

#include <thread>

#include "lsp/Inbox.h"
#include "lsp/Server.h"
#include "lsp/frames.h"

namespace lm_lsp {

bool Serve(std::istream& in, std::ostream& out, const std::string& version) {
    Inbox inbox;
    Server server({version, [&out](const Json& message) { WriteFrame(out, message); },
                   [&inbox] { return inbox.HasMessage(); }, [&inbox] { return inbox.Refusal(); }});
    // It ends with the stream, or with the message that ends the server.
    std::thread reader([&] { inbox.ReadAll(in); });
    while (!server.IsOver() && !inbox.IsAtEnd()) {
        if (const auto* const message = inbox.Take(server.Delay())) {
            server.Handle(*message);
        } else {
            server.Work();
        }
    }
    reader.join();
    return server.IsOver() && server.WasShutDown();
}

}  // namespace lm_lsp
