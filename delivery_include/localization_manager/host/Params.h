// The parameters of one call for a text.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

#include "localization_manager/host/Param.h"

namespace localization_manager::host {

/// A view of parameters that stand elsewhere, and have to until the call has returned: in the braces of
/// the call itself, in an array, in a vector. Where a name comes twice, the first counts.
class Params {
public:
    Params() = default;
    Params(const Param* first, std::size_t count) noexcept : first_(first), count_(count) {}
    Params(std::initializer_list<Param> params) noexcept : Params(params.begin(), params.size()) {}
    Params(const std::vector<Param>& params) noexcept : Params(params.data(), params.size()) {}

    const Param* begin() const noexcept { return first_; }
    const Param* end() const noexcept { return first_ + count_; }

    /// The names, for messages: "$count, $album"; "none" when there are none.
    std::string Names() const {
        std::string names;
        for (const Param& param : *this) {
            names.append(names.empty() ? "$" : ", $").append(param.name());
        }
        return names.empty() ? "none" : names;
    }

private:
    const Param* first_ = nullptr;
    std::size_t count_ = 0;
};

}  // namespace localization_manager::host
