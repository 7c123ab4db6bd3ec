// The engine's view of the host's resolve listener, for one request.
#pragma once

#include <string_view>

#include "Engine.h"
#include "IResolveListener.h"
#include "localization_manager/IResolveListener.h"
#include "qor/IAllocator.h"
#include "qor/objptr_t.h"

namespace localization_manager {

class HostResolveListener : public engine::Resolving::IResolveListener {
public:
    /// @param listener   held while this object lives.
    /// @param allocator  for the texts that the listener hears; outlives this object.
    HostResolveListener(localization_manager::IResolveListener& listener,
                        qor::IAllocator& allocator)
        : listener_(&listener), allocator_(allocator) {}

    void OnResolved(ResolveKind kind, std::u16string_view source, std::u16string_view name,
                    std::u16string_view value) override;

private:
    qor::objptr_t<localization_manager::IResolveListener> listener_;
    qor::IAllocator& allocator_;
};

}  // namespace localization_manager
