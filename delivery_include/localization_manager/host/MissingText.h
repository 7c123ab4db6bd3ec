// A key that a culture has no text for.
#pragma once

#include <string>

namespace localization_manager::host {

/// All texts are UTF-8, as the host wrote them.
struct MissingText {
    std::string scope;
    std::string culture;
    std::string key;
};

}  // namespace localization_manager::host
