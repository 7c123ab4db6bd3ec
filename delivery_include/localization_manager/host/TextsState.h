// Whether a scope can be used at all.
#pragma once

#include <string>

namespace localization_manager::host {

struct TextsState {
    bool isUsable = true;
    std::string report;  // of each culture whose sources cannot be read, why not; in UTF-8
};

}  // namespace localization_manager::host
