// The language server: what is asked and what is answered, whatever the messages go over.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "lsp/Diagnostics.h"
#include "lsp/Dispatcher.h"
#include "lsp/Inbox.h"
#include "lsp/Json.h"
#include "lsp/RequestError.h"
#include "lsp/Target.h"
#include "lsp/Workspace.h"

namespace lm_lsp {

/// Reads the files of trees, and writes none: the editor makes the changes. For one thread.
class Server {
public:
    /// What it is part of.
    struct Host {
        std::string version;
        std::function<void(const Json& message)> send;
        std::function<bool()> isAwaited;  // whether a message waits for its turn

        /// Why nobody wants the answer to the message that is being handled; empty while somebody does.
        std::function<std::optional<RequestError>()> refusal;
    };

    explicit Server(Host host);
    Server(const Server&) = delete;  // its handlers refer to it
    Server& operator=(const Server&) = delete;

    /// Takes the next message, and answers it if it is a request.
    void Handle(const Inbox::Message& message);

    /// When there is something to do though no message comes; empty for never.
    std::optional<std::chrono::milliseconds> Delay() const { return diagnostics_.Delay(); }

    /// Does the next part of it.
    void Work() { diagnostics_.Work(); }

    /// Whether the editor has said that it ends, and, before, that it would.
    bool IsOver() const noexcept { return state_ == State::Over; }
    bool WasShutDown() const noexcept { return wasShutDown_; }

private:
    enum class State { New, Running, ShutDown, Over };

    void AddLifecycle();
    void AddTexts();
    void AddFeatures();
    Json Initialize(const Json& params);
    void Answer(const Json& id, const std::string& method, const Json& params);
    void Note(const std::string& method, const Json& params);
    void Refuse(const Json& id, const RequestError& error);
    void Notify(const char* method, Json params);

    /// A request about a text. Of a plural rule there is nothing to answer.
    template <class Handler>
    void OnText(const char* method, Handler answer) {
        dispatcher_.OnRequest(method, [this, answer](const Json& params) -> Json {
            const Target target(workspace_, params);
            return target.HasTexts() ? answer(target, params) : Json();
        });
    }

    /// A request about a place of a text.
    template <class Handler>
    void OnPlace(const char* method, Handler answer) {
        OnText(method, [answer](const Target& target, const Json& params) -> Json {
            return answer(target, target.OffsetOf(params, "position"), params);
        });
    }

    Host host_;
    State state_ = State::New;
    bool wasShutDown_ = false;
    Workspace workspace_;
    Diagnostics diagnostics_;
    Dispatcher dispatcher_;
    bool takesSnippets_ = false;
};

}  // namespace lm_lsp
