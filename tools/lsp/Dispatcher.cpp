#include "lsp/Dispatcher.h"

#include <new>
#include <stdexcept>

#include "lsp/RequestError.h"

namespace lm_lsp {

namespace {

/// Runs a handler; whatever it throws becomes the error that the protocol has for it.
template <class Run>
auto Guarded(Run run) {
    try {
        return run();
    } catch (const RequestError&) {
        throw;
    } catch (const std::bad_alloc&) {
        throw RequestError(ErrorCode::InternalError, "out of memory");
    } catch (const std::exception& error) {
        throw RequestError(ErrorCode::RequestFailed, error.what());
    }
}

}  // namespace

Json Dispatcher::Ask(const std::string& method, const Json& params) const {
    const auto found = requests_.find(method);
    if (found == requests_.end()) {
        throw RequestError(ErrorCode::MethodNotFound, "unknown method '" + method + "'");
    }
    return Guarded([&] { return found->second(params); });
}

void Dispatcher::Tell(const std::string& method, const Json& params) const {
    const auto found = notifications_.find(method);
    if (found != notifications_.end()) {
        Guarded([&] { found->second(params); });
    }
}

}  // namespace lm_lsp
