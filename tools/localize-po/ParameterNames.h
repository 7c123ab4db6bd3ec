// Names for the parameters of adopted texts.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace localize_po {

/// Lines "KEY OLD NEW"; the key "*" is for all keys that have no line of their own. "#" begins a
/// comment.
class ParameterNames {
public:
    ParameterNames() = default;

    /// @throws std::invalid_argument with the number of a line that cannot be read.
    explicit ParameterNames(std::string_view text);

    /// The old name where there is no new one.
    const std::string& Of(const std::string& key, const std::string& name) const;

private:
    std::map<std::pair<std::string, std::string>, std::string> names_;
};

}  // namespace localize_po
