#include "keys/ScopeKeys.h"

#include <algorithm>

namespace lm_keys {

std::string Key::Where() const {
    return file + ':' + std::to_string(place.line) + ':' + std::to_string(place.column);
}

const Key* ScopeKeys::Find(const std::string& lower) const {
    const auto found =
        std::lower_bound(keys.begin(), keys.end(), lower,
                         [](const Key& key, const std::string& name) { return key.lower < name; });
    return found != keys.end() && found->lower == lower ? &*found : nullptr;
}

}  // namespace lm_keys
