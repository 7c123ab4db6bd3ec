#include "HostParamResolver.h"

#include <stdexcept>

#include "Messages.h"
#include "Utf8.h"
#include "qor/rtl/contracts/checks.h"
#include "qor/rtl/text/Cast.h"

namespace localization_manager {

using ::LocalizationManager::Text::ToUtf8;

std::u16string AskHost(IParamResolver* resolver, const std::u16string& name, const char* function,
                       std::int32_t line) {
    if (resolver == nullptr) {
        throw std::runtime_error("no external resolver was given to resolve param: " +
                                 ToUtf8(name));
    }
    const auto in = qor::text::Cast<qor::string16_t>(name);
    qor::string16_t result;
    const qor::result_t code = resolver->Resolve(in, result);
    if (qor::Failed(code)) {
        ::LocalizationManager::CheckCall(
            code, "external resolver cannot resolve param: " + ToUtf8(name),
            {"paramResolver_->Resolve(in, result)", function, kServiceSource, line});
    }
    return qor::text::Cast<std::u16string>(result.view());
}

}  // namespace localization_manager
