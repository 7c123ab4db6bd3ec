#include "qor/rtl/error_handling/ResultCodeException.h"

#include <utility>

#include "hexadecimal.h"
#include "qor/result_messages.h"

namespace qor {

ResultCodeException::ResultCodeException(result_t code, const char* sourceFile,
                                         std::int32_t sourceLine, string16_t message,
                                         std::unique_ptr<Exception> inner)
    : ExceptionBase("ResultCodeException", sourceFile, sourceLine, std::move(message),
                    std::move(inner)),
      code_(code) {}

ResultCodeException::ResultCodeException(const char* what, result_t code, const char* sourceFile,
                                         std::int32_t sourceLine, string16_t message)
    : ExceptionBase(what, sourceFile, sourceLine, std::move(message)), code_(code) {}

string16_t ResultCodeException::GetMessage() const {
    string16_t text = ExceptionBase::GetMessage();
    if (!text.empty()) {
        text.append(u": ");
    }
    text.append(u"0x");
    AppendHexadecimal(text, static_cast<std::uint32_t>(code_));
    text.append(u" (").append(GetResultCodeMessage(code_).view()).append(u")");
    return text;
}

}  // namespace qor
