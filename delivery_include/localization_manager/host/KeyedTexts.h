// What the classes that `localize keys` makes have in common.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "localization_manager/host/Params.h"
#include "localization_manager/host/Texts.h"

namespace localization_manager::host {

/// `Texts` behind functions that are named for the keys. A handle as `Texts` are: cheap to copy, to be
/// used from several threads at once.
class KeyedTexts {
public:
    /// For what the functions do not say: keys that are chosen at run time, files, the state.
    const Texts& handle() const noexcept { return texts_; }

protected:
    /// @param variant  that the functions ask for, as `Texts::Variant` does; empty for none.
    KeyedTexts(Texts texts, std::string_view variant)
        : texts_(std::move(texts)), variant_(variant) {}

    std::string Text(std::string_view key, const Params& params = {}) const {
        return texts_.Variant(key, variant_, params);
    }

private:
    Texts texts_;
    std::string variant_;
};

}  // namespace localization_manager::host
