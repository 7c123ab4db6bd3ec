// A service that the host's locator did not give.
#pragma once

#include <cstdint>

#include "qor/basic_string_t.h"
#include "qor/result_codes.h"
#include "qor/rtl/error_handling/ResultCodeException.h"

namespace qor {

class GetInterfaceException : public ExceptionBase<GetInterfaceException, ResultCodeException> {
public:
    /// @param interfaceId  the service that was asked for.
    /// @param code         what the locator answered.
    GetInterfaceException(std::uint32_t interfaceId, result_t code, const char* sourceFile,
                          std::int32_t sourceLine);

    /// The message of the code, then the interface's identifier.
    string16_t GetMessage() const override;

    std::uint32_t GetInterfaceId() const noexcept { return interfaceId_; }

private:
    std::uint32_t interfaceId_;
};

}  // namespace qor
