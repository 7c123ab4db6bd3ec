// How far each text of a tree is.
#pragma once

#include <cstdint>
#include <map>
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

private:
    lm_source::KeyCase keyCase_;
    std::map<std::pair<lm_check::Request, std::string>, State> states_;  // but those that are done
};

}  // namespace lm_report
