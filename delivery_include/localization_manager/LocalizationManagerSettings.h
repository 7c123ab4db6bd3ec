// What a manager needs to know when it is made through `IConstruct`.
#pragma once

#include "qor/basic_string_t.h"

namespace localization_manager {

/// Part of the binary contract: the order and the sizes of the fields are fixed.
struct LocalizationManagerSettings {
    /// Directory of the localisation tree.
    qor::string16_t root;
    /// Directory of a tree that is searched first; may be empty.
    qor::string16_t alternative;
};

static_assert(sizeof(LocalizationManagerSettings) == (sizeof(void*) == 4 ? 64 : 80),
              "the size of the settings is part of the binary contract");

}  // namespace localization_manager
