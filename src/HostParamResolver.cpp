#include "HostParamResolver.h"

#include <stdexcept>

#include "Messages.h"
#include "Utf8.h"
#include "qor/rtl/contracts/checks.h"
#include "qor/rtl/text/Cast.h"

namespace localization_manager {

using ::LocalizationManager::Text::ToUtf8;

std::u16string HostParamResolver::Ask(const std::u16string& name, const char* function,
                                      std::int32_t line) const {
    if (!paramResolver_) {
        throw std::runtime_error("no external resolver was given to resolve param: " +
                                 ToUtf8(name));
    }
    const auto in = qor::text::Cast<qor::string16_t>(name);
    qor::string16_t result;
    const qor::result_t code = paramResolver_->Resolve(in, result);
    if (qor::Failed(code)) {  // asked here as well, so that the text is made for failures only
        ::LocalizationManager::CheckCall(
            code, "external resolver cannot resolve param: " + ToUtf8(name),
            {"paramResolver_->Resolve(in, result)", function, kServiceSource, line});
    }
    return qor::text::Cast<std::u16string>(result.view());
}

}  // namespace localization_manager
