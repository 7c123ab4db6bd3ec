#include "report/States.h"

#include <algorithm>

namespace lm_report {

using lm_check::Rule;

namespace {

State StateOf(const lm_check::Finding& finding) {
    switch (finding.rule) {
        case Rule::MissingKey:
        case Rule::Untranslated:
            return State::Missing;
        case Rule::Stale:
            return State::Stale;
        default:
            return finding.severity == lm_check::Severity::Error ? State::Faulty : State::Done;
    }
}

}  // namespace

States::States(const lm_check::Report& report) {
    for (const lm_check::Finding& finding : report.findings) {
        if (finding.rule == Rule::MissingFile) {
            lackingFile_.insert(finding.requests.begin(), finding.requests.end());
        }
        const State state = StateOf(finding);
        if (state == State::Done || finding.key.empty()) {
            continue;
        }
        const std::string key = keyCase_.Lower(finding.key);
        for (const lm_check::Request request : finding.requests) {
            State& worst = states_[{request, key}];
            worst = std::max(worst, state);
        }
    }
}

State States::Of(lm_check::Request request, std::string_view key) const {
    if (states_.empty()) {
        return State::Done;
    }
    const auto found = states_.find({request, keyCase_.Lower(key)});
    return found != states_.end() ? found->second : State::Done;
}

}  // namespace lm_report
