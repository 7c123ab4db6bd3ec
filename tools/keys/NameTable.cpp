#include "keys/NameTable.h"

#include <stdexcept>

#include "keys/identifier.h"

namespace lm_keys {

void NameTable::Reserve(const std::string& name, const std::string& what) {
    const auto [owner, isNew] = owners_.emplace(name, what);
    if (!isNew) {
        throw std::runtime_error(what + " would be called " + name + ", as " + owner->second +
                                 ": rename one of them");
    }
}

void NameTable::Add(const Key& key) {
    if (names_.count(key.lower) != 0) {
        return;
    }
    std::string name = IdentifierOf(key.name);
    Reserve(name, key.Where() + ": the key " + key.name);
    names_.emplace(key.lower, std::move(name));
}

}  // namespace lm_keys
