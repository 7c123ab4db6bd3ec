#include "HostParamResolver.h"

#include <stdexcept>

#include "Messages.h"
#include "Utf8.h"
#include "qor/rtl/contracts/checks.h"

namespace localization_manager {

using ::LocalizationManager::Text::ToUtf8;

qor::string16_t HostParamResolver::Ask(const qor::string16_t& name, const char* function,
                                       std::int32_t line) const {
    if (!paramResolver_) {
        throw std::runtime_error("no external resolver was given to resolve param: " +
                                 ToUtf8(name.view()));
    }
    qor::string16_t result;
    const qor::result_t code = paramResolver_->Resolve(name, result);
    if (qor::Failed(code)) {  // asked here as well, so that the text is made for failures only
        ::LocalizationManager::CheckCall(
            code, "external resolver cannot resolve param: " + ToUtf8(name.view()),
            {"paramResolver_->Resolve(in, result)", function, kServiceSource, line});
    }
    return result;
}

}  // namespace localization_manager
