#include "CommonDictionaryCache.h"

#include <boost/make_shared.hpp>
#include <mutex>
#include <utility>

#include "CultureNames.h"
#include "Engine.h"

namespace localization_manager {

CommonDictionaryCache::Entry CommonDictionaryCache::Get(const Culture& culture) {
    using engine::Model::ResourceDictionary;

    const std::lock_guard<qor::CriticalSection> guard(cacheLock_);
    if (!commonCulture_ || !SameCulture(culture, *commonCulture_)) {
        Entry entry{boost::make_shared<ResourceDictionary>(),
                    boost::make_shared<qor::CriticalSection>()};
        Culture copy = culture;
        commonCulture_.emplace(std::move(copy));  // nothing can fail from here on
        entry_ = std::move(entry);
    }
    return entry_;
}

}  // namespace localization_manager
