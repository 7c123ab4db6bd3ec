// A file that comes back from translators, whatever its format.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lm_exchange {

/// Texts are flat, as those of a `Unit` are.
struct TranslatedUnit {
    enum class State : std::uint8_t {
        Done,
        Open,        // as it is written where there was nothing, or something old
        Unfinished,  // somebody said so
        Obsolete
    };

    std::string id;
    std::vector<std::string> sources;
    std::vector<std::string> targets;    // one, or each form; empty texts where there is none
    std::vector<std::string> formNames;  // of a plural unit, as they stand in the file
    State state = State::Done;
};

struct TranslatedFile {
    /// What a file that was cut off ends with.
    enum class End : std::uint8_t {
        Sealed,      // it says that it ends
        PartOfLine,  // nobody leaves it so
        Line,
        FurtherLine  // of a text that began above
    };

    std::string language;                    // as it writes it
    std::optional<std::string> pluralForms;  // gettext's; empty for a format that may do without
    End end = End::Sealed;
    std::vector<TranslatedUnit> units;
};

}  // namespace lm_exchange
