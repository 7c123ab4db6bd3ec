// The common texts of the culture that localizers were last made for.
#pragma once

#include <boost/shared_ptr.hpp>
#include <optional>

#include "CriticalSection.h"
#include "Engine.h"
#include "ResourceDictionary.h"
#include "localization_manager/Culture.h"

namespace localization_manager {

/// Remembers one culture, so that the localizers of a culture parse the common texts once. May be
/// asked from several threads.
class CommonDictionaryCache {
public:
    /// A dictionary, which the first localizer that needs it fills, and the lock to do that under.
    struct Entry {
        boost::shared_ptr<engine::Model::ResourceDictionary> dictionary;
        boost::shared_ptr<qor::CriticalSection> syncObject;
    };

    /// The remembered entry, or a new one when the culture is another than last time.
    Entry Get(const Culture& culture);

private:
    qor::CriticalSection cacheLock_;
    std::optional<Culture> commonCulture_;
    Entry entry_;
};

}  // namespace localization_manager
