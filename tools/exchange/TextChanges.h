// New values for the texts of a file.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "exchange/ScopeTexts.h"
#include "source/edits.h"

namespace lm_exchange {

/// Touches the values that are set and nothing else. One that was untranslated loses the comment that
/// says so.
class TextChanges {
public:
    /// @param texts  has to outlive the object.
    explicit TextChanges(const ScopeTexts& texts) : texts_(texts) {}

    /// Gives a text a value. A key that the file does not have is appended, in the order of the calls.
    /// @param value  as it is written, on one line.
    void Set(const ScopeTexts::Text& text, const std::string& value);

    std::size_t Changed() const noexcept { return changed_; }
    std::size_t Added() const noexcept { return added_; }

    /// What becomes of the file.
    std::vector<lm_source::Edit> Edits() const;

private:
    const ScopeTexts& texts_;
    std::vector<lm_source::Edit> edits_;
    std::string entries_;
    std::size_t changed_ = 0;
    std::size_t added_ = 0;
};

}  // namespace lm_exchange
