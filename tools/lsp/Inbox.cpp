#include "lsp/Inbox.h"

#include <string>
#include <utility>

#include "lsp/frames.h"
#include "lsp/members.h"

namespace lm_lsp {

namespace {

constexpr std::size_t kMost = 1000;

bool IsMethod(const Json& message, const char* name) {
    const Json& method = Find(message, "method");
    return method.is_string() && method.get_ref<const std::string&>() == name;
}

const Json& UriOf(const Json& message) {
    return Find(message, "params.textDocument.uri");
}

}  // namespace

void Inbox::ReadAll(std::istream& in) {
    try {
        while (const auto content = ReadFrame(in)) {
            Message message;
            try {
                message.content = ParseContent(*content);
            } catch (const RequestError& error) {
                message.refusal = error;
            }
            const bool isLast = IsMethod(message.content, "exit");
            Add(std::move(message));
            if (isLast) {
                break;
            }
        }
    } catch (const FrameError& error) {
        Add({Json(), RequestError(ErrorCode::ParseError, error.what())});
    }
    Close();
}

void Inbox::Add(Message message) {
    std::unique_lock<std::mutex> guard(mutex_);
    RefuseNeedless(message.content);
    if (IsMethod(message.content, "$/cancelRequest")) {
        return;
    }
    hasRoom_.wait(guard, [this] { return messages_.size() < kMost; });
    messages_.push_back(std::move(message));
    added_.notify_one();
}

void Inbox::RefuseNeedless(const Json& message) {
    const bool isCancel = IsMethod(message, "$/cancelRequest");
    const bool isChange = IsMethod(message, "textDocument/didChange");
    if (!isCancel && !isChange) {
        return;
    }
    const Json& what = isCancel ? Find(message, "params.id") : UriOf(message);
    const auto refuse = [&](const Json& request, std::optional<RequestError>& refusal) {
        const Json& id = Find(request, "id");
        const bool isConcerned =
            !id.is_null() && !what.is_null() && (isCancel ? id : UriOf(request)) == what;
        if (isConcerned && !refusal) {
            refusal = isCancel
                          ? RequestError(ErrorCode::RequestCancelled, "cancelled")
                          : RequestError(ErrorCode::ContentModified, "the text has changed since");
        }
    };
    if (taken_) {
        refuse(taken_->content, refusal_);
    }
    for (Message& waiting : messages_) {
        refuse(waiting.content, waiting.refusal);
    }
}

void Inbox::Close() {
    const std::lock_guard<std::mutex> guard(mutex_);
    isClosed_ = true;
    added_.notify_one();
}

const Inbox::Message* Inbox::Take(std::optional<std::chrono::milliseconds> most) {
    std::unique_lock<std::mutex> guard(mutex_);
    taken_.reset();
    refusal_.reset();
    const auto isReady = [this] { return !messages_.empty() || isClosed_; };
    if (most) {
        added_.wait_for(guard, *most, isReady);
    } else {
        added_.wait(guard, isReady);
    }
    if (messages_.empty()) {
        return nullptr;
    }
    taken_ = std::move(messages_.front());
    messages_.pop_front();
    hasRoom_.notify_one();
    return &*taken_;
}

std::optional<RequestError> Inbox::Refusal() const {
    const std::lock_guard<std::mutex> guard(mutex_);
    return refusal_;
}

bool Inbox::HasMessage() const {
    const std::lock_guard<std::mutex> guard(mutex_);
    return !messages_.empty();
}

bool Inbox::IsAtEnd() const {
    const std::lock_guard<std::mutex> guard(mutex_);
    return isClosed_ && messages_.empty();
}

}  // namespace lm_lsp
