// A text that cannot be shown, as an exception.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

#include "localization_manager/host/TextProblem.h"

namespace localization_manager::host {

class TextError : public std::runtime_error {
public:
    explicit TextError(TextProblem problem)
        : std::runtime_error(problem.message), problem_(std::move(problem)) {}

    const TextProblem& problem() const noexcept { return problem_; }

private:
    TextProblem problem_;
};

/// For `TreeSettings::whenMissing`.
[[noreturn]] inline std::string ThrowTextError(const TextProblem& problem) {
    throw TextError(problem);
}

}  // namespace localization_manager::host
