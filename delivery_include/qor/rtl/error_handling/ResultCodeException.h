// A result code that travels as an exception.
#pragma once

#include <cstdint>
#include <memory>

#include "qor/basic_string_t.h"
#include "qor/result_codes.h"
#include "qor/rtl/error_handling/ExceptionBase.h"

namespace qor {

class ResultCodeException : public ExceptionBase<ResultCodeException, Exception> {
public:
    ResultCodeException(result_t code, const char* sourceFile, std::int32_t sourceLine,
                        string16_t message, std::unique_ptr<Exception> inner = nullptr);

    /// The message, then the code in hexadecimal and in words.
    string16_t GetMessage() const override;

    result_t GetResultCode() const noexcept { return code_; }

protected:
    /// For derived classes, which have a name of their own.
    ResultCodeException(const char* what, result_t code, const char* sourceFile,
                        std::int32_t sourceLine, string16_t message);

private:
    result_t code_;
};

}  // namespace qor
