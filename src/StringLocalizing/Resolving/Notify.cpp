#include "Notify.h"

#include "qor/rtl/text/Cast.h"

namespace LocalizationManager::StringLocalizing::Resolving {

void Notify(localization_manager::IResolveListener& listener,
            localization_manager::ResolveKind kind, std::u16string_view source,
            std::u16string_view name, std::u16string_view value) {
    using qor::string16_t;
    using qor::text::Cast;
    listener.OnResolved(kind, Cast<string16_t>(source), Cast<string16_t>(name),
                        Cast<string16_t>(value));
}

}  // namespace LocalizationManager::StringLocalizing::Resolving
