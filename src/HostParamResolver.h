// The engine's view of the host's parameter resolver, for the resolver wrappers of all localizers.
#pragma once

#include <cstdint>

#include "Engine.h"
#include "IParamResolver.h"
#include "localization_manager/IParamResolver.h"
#include "qor/basic_string_t.h"
#include "qor/objptr_t.h"

namespace localization_manager {

/// A wrapper implements `Resolve` by calling `Ask`; messages print where it does.
class HostParamResolver : public engine::Resolving::IParamResolver {
public:
    /// @param paramResolver  null when the host gave none.
    explicit HostParamResolver(localization_manager::IParamResolver* paramResolver)
        : paramResolver_(paramResolver) {}

protected:
    /// @param function  signature of the calling operation.
    /// @param line      line of the call.
    /// @throws QorCallFailedException when the host answers with a failure code; std::runtime_error
    ///         when there is no resolver; what the host throws.
    qor::string16_t Ask(const qor::string16_t& name, const char* function, std::int32_t line) const;

private:
    qor::objptr_t<localization_manager::IParamResolver> paramResolver_;
};

}  // namespace localization_manager
