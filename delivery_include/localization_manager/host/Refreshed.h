// What became of a look at the files of a tree.
#pragma once

#include <string>

namespace localization_manager::host {

struct Refreshed {
    enum class Outcome {
        Unchanged,  // no file that could answer has changed
        Replaced,   // from now on texts come from the files as they are
        Kept,       // they have changed, but not for the better: the texts stay what they were
    };

    Outcome outcome = Outcome::Unchanged;
    std::string mistakes;  // of `Kept`: reports in UTF-8, one after the other
};

}  // namespace localization_manager::host
