// Messages that wait for their turn.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <istream>
#include <mutex>
#include <optional>

#include "lsp/Json.h"
#include "lsp/RequestError.h"

namespace lm_lsp {

/// Filled by a thread of its own, so that what makes a request needless is known before its turn.
class Inbox {
public:
    // NOLINTNEXTLINE(bugprone-exception-escape): a value of JSON is moved without exceptions
    struct Message {
        Json content;
        std::optional<RequestError> refusal;  // the answer, if it is known already
    };

    /// Reads until the stream ends, is broken, or says `exit`. Whatever comes after a message that is
    /// no JSON is still read.
    void ReadAll(std::istream& in);

    /// Adds a message. A cancelled request, and one for a text that has changed since, is refused. So
    /// that nobody fills the memory, it waits while too many are there.
    void Add(Message message);

    /// Nothing more will come.
    void Close();

    /// Waits for a message.
    /// @param most  how long; empty for as long as it takes.
    /// @return the message, until the next one is asked for; null when there was none.
    const Message* Take(std::optional<std::chrono::milliseconds> most);

    /// Why the message that was taken last has become needless since; empty while it has not.
    std::optional<RequestError> Refusal() const;

    bool HasMessage() const;

    /// Whether the last message has been taken.
    bool IsAtEnd() const;

private:
    void RefuseNeedless(const Json& message);

    mutable std::mutex mutex_;
    std::condition_variable added_;
    std::condition_variable hasRoom_;
    std::deque<Message> messages_;
    std::optional<Message> taken_;
    std::optional<RequestError> refusal_;
    bool isClosed_ = false;
};

}  // namespace lm_lsp
