#include "qor/rtl/error_handling/GetInterfaceException.h"

#include "hexadecimal.h"

namespace qor {

GetInterfaceException::GetInterfaceException(std::uint32_t interfaceId, result_t code,
                                             const char* sourceFile, std::int32_t sourceLine)
    : ExceptionBase("GetInterfaceException", code, sourceFile, sourceLine, string16_t()),
      interfaceId_(interfaceId) {}

string16_t GetInterfaceException::GetMessage() const {
    string16_t text = ExceptionBase::GetMessage();
    text.append(u": iid:");
    AppendHexadecimal(text, interfaceId_);
    return text;
}

}  // namespace qor
