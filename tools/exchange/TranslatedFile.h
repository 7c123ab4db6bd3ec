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
    std::string language;  // as it writes it
    std::optional<std::string>
        pluralForms;        // gettext's field; empty for a format that may be without
    bool isCutOff = false;  // its end is lost
    std::vector<TranslatedUnit> units;
};

}  // namespace lm_exchange
