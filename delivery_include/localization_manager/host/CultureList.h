// The cultures whose texts serve, the most wanted first.
#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace localization_manager::host {

/// One name or several: "de", {"pt-br", "pt", "en"}. Names are those that `ICultureConverter` knows.
/// Where the first culture has no text for a key, the others are asked in turn.
class CultureList {
public:
    CultureList(const char* name) : names_{name} {}
    CultureList(std::string name) : names_{std::move(name)} {}
    CultureList(std::initializer_list<std::string> names) : names_(names) {}
    CultureList(std::vector<std::string> names) : names_(std::move(names)) {}

    const std::vector<std::string>& names() const noexcept { return names_; }

private:
    std::vector<std::string> names_;
};

}  // namespace localization_manager::host
