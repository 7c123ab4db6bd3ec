// The engine's view of the host's parameter resolver, for the resolver wrappers of all localizers.
#pragma once

#include <cstdint>
#include <string_view>

#include "Engine.h"
#include "IParamResolver.h"
#include "localization_manager/IParamResolver.h"
#include "qor/IAllocator.h"
#include "qor/objptr_t.h"

namespace localization_manager {

/// A wrapper implements `Resolve` by calling `Ask`; messages print where it does.
class HostParamResolver : public engine::Resolving::IParamResolver {
public:
    /// @param paramResolver  null when the host gave none.
    /// @param allocator      for the texts that the host sees; outlives this object.
    HostParamResolver(localization_manager::IParamResolver* paramResolver,
                      qor::IAllocator& allocator)
        : paramResolver_(paramResolver), allocator_(allocator) {}

protected:
    /// Appends the parameter's text.
    /// @param function  signature of the calling operation.
    /// @param line      line of the call.
    /// @throws QorCallFailedException when the host answers with a failure code; std::runtime_error
    ///         when there is no resolver; what the host throws.
    void Ask(std::u16string_view name, engine::Resolving::ResolvedText& output,
             const char* function, std::int32_t line) const;

private:
    qor::objptr_t<localization_manager::IParamResolver> paramResolver_;
    qor::IAllocator& allocator_;
};

}  // namespace localization_manager
