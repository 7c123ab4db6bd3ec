// Why a request is answered with an error.
#pragma once

#include <stdexcept>
#include <string>

namespace lm_lsp {

/// The numbers of the protocol.
enum class ErrorCode : int {
    ParseError = -32700,
    InvalidRequest = -32600,
    MethodNotFound = -32601,
    InvalidParams = -32602,
    InternalError = -32603,
    NotInitialized = -32002,
    RequestFailed = -32803,
    ContentModified = -32801,
    RequestCancelled = -32800,
};

class RequestError : public std::runtime_error {
public:
    RequestError(ErrorCode code, const std::string& why) : std::runtime_error(why), code_(code) {}

    ErrorCode Code() const noexcept { return code_; }

private:
    ErrorCode code_;
};

}  // namespace lm_lsp
