#include "HostParamResolver.h"

#include <stdexcept>

#include "CallbackText.h"
#include "MessageUtf8.h"
#include "failure_reports.h"
#include "qor/rtl/contracts/checks.h"

namespace localization_manager {

using ::LocalizationManager::Text::ToUtf8;

void HostParamResolver::Ask(std::u16string_view name, engine::Resolving::ResolvedText& output,
                            const char* function, std::int32_t line) const {
    if (!paramResolver_) {
        throw std::runtime_error("no external resolver was given to resolve param: " +
                                 ToUtf8(name));
    }
    CallbackText asked(name, allocator_);
    CallbackText result(allocator_);
    const qor::result_t code = paramResolver_->Resolve(asked.get(), result.get());
    if (qor::Failed(code)) {  // asked here as well, so that the text is made for failures only
        ::LocalizationManager::CheckCall(
            code, "external resolver cannot resolve param: " + ToUtf8(name),
            {"paramResolver_->Resolve(in, result)", function, kServiceSource, line});
    }
    output.Append(result.get().view());
}

}  // namespace localization_manager
