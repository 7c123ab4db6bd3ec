// Which culture a name means.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "localization_manager/Language.h"

namespace localization_manager {

/// The ISO names of all languages, and the shorthands of some cultures. Immutable.
class CultureTable {
public:
    struct Parts {
        Language language{};
        std::string region;
        std::string variant;
    };

    CultureTable();

    /// The culture of a name, "language[-region[-variant]]" or a shorthand in place of the language
    /// and its region. The language is known in any letter case, as the global locale lowers it.
    /// @return empty when there is none.
    std::optional<Parts> Find(std::string_view name) const;

private:
    struct KnownCulture {
        Language language;
        std::string region;
    };

    std::map<std::string, KnownCulture> cultures_;
};

}  // namespace localization_manager
