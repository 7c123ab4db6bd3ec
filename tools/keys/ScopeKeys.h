// The keys of one source of the reference, and what its texts ask programs for.
#pragma once

#include <string>
#include <vector>

#include "source/LineTable.h"

namespace lm_keys {

struct Key {
    std::string name;   // as it is written
    std::string lower;  // as the engine knows it
    std::string file;   // where it stands
    lm_source::Place place;
    std::vector<std::string> params;      // that the program supplies, references followed; ordered
    std::vector<std::string> references;  // of the text itself, in lower case

    /// For messages: "file:line:column".
    std::string Where() const;
};

struct ScopeKeys {
    std::string scope;
    std::vector<Key> keys;  // ordered by `lower`

    /// @return null when there is none.
    const Key* Find(const std::string& lower) const;
};

}  // namespace lm_keys
