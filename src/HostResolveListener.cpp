#include "HostResolveListener.h"

#include "CallbackText.h"

namespace localization_manager {

void HostResolveListener::OnResolved(ResolveKind kind, std::u16string_view source,
                                     std::u16string_view name, std::u16string_view value) {
    listener_->OnResolved(kind, CallbackText(source, allocator_).get(),
                          CallbackText(name, allocator_).get(),
                          CallbackText(value, allocator_).get());
}

}  // namespace localization_manager
