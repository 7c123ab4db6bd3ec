// Which method is answered by whom.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "lsp/Json.h"

namespace lm_lsp {

/// A request has an id and gets a reply, be it an error; a notification has none and gets nothing.
class Dispatcher {
public:
    using Request = std::function<Json(const Json& params)>;
    using Notification = std::function<void(const Json& params)>;

    void OnRequest(std::string method, Request answer) {
        requests_.insert_or_assign(std::move(method), std::move(answer));
    }
    void OnNotification(std::string method, Notification take) {
        notifications_.insert_or_assign(std::move(method), std::move(take));
    }

    /// The result of a request.
    /// @throws RequestError whatever goes wrong.
    Json Ask(const std::string& method, const Json& params) const;

    /// @throws RequestError, which nobody waits for; unknown methods are ignored.
    void Tell(const std::string& method, const Json& params) const;

private:
    std::map<std::string, Request> requests_;
    std::map<std::string, Notification> notifications_;
};

}  // namespace lm_lsp
