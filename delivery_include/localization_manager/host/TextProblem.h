// Why there is no text to show.
#pragma once

#include <string>
#include <string_view>

namespace localization_manager::host {

/// All texts are UTF-8.
struct TextProblem {
    std::string scope;
    std::string culture;  // the one whose texts were asked for first, as the host named it
    std::string key;
    std::string message;  // for a person: what is wrong, with key, scope and culture
};

/// What `TreeSettings::whenMissing` can be.
inline std::string ShowKey(const TextProblem& problem) {
    return problem.key;
}

/// The key in a form that stands out: "[Menu.Open]".
inline std::string ShowMarkedKey(const TextProblem& problem) {
    return '[' + problem.key + ']';
}

}  // namespace localization_manager::host
