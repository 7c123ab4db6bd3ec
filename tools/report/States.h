// How far each text of a tree is.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "check/Report.h"
#include "source/KeyCase.h"

namespace lm_report {

/// The worse, the greater.
enum class State : std::uint8_t { Done, Stale, Missing, Faulty };

inline constexpr std::size_t kStates = 4;

/// What the findings of a check say about single texts.
class States {
public:
    explicit States(const lm_check::Report& report);

    /// @param key  in any letter case.
    State Of(lm_check::Request request, std::string_view key) const;

    /// Whether a culture lacks the file of a scope: all of its keys are missing then.
    bool LacksFile(lm_check::Request request) const { return lackingFile_.count(request) != 0; }

private:
    lm_source::KeyCase keyCase_;
    std::map<std::pair<lm_check::Request, std::string>, State> states_;  // but those that are done
    std::set<lm_check::Request> lackingFile_;
};

}  // namespace lm_report
