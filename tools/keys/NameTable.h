// Which key has which name in a class.
#pragma once

#include <map>
#include <string>

#include "keys/ScopeKeys.h"

namespace lm_keys {

/// A copy of a table goes on for a derived class: what hides a name there has to be the same key.
class NameTable {
public:
    /// Takes a name for something else.
    /// @param what  the rest of a sentence: "the class of ... is".
    /// @throws std::runtime_error when it is taken.
    void Reserve(const std::string& name, const std::string& what);

    /// A key that is there in other letter case keeps its name.
    /// @throws std::runtime_error when another key has the name.
    void Add(const Key& key);

    const std::string& Of(const Key& key) const { return names_.at(key.lower); }

private:
    std::map<std::string, std::string> names_;   // by key
    std::map<std::string, std::string> owners_;  // by name, for messages
};

}  // namespace lm_keys
