// The reference: what every culture is compared with.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "check/Expansion.h"
#include "check/NameSets.h"
#include "source/KeyCase.h"

namespace lm_check {

/// White space at an end of a text.
enum class OuterSpace : std::uint8_t { None, Blank, LineBreak };

/// What is known of a text of the reference; the file itself is not kept.
struct ReferenceText {
    std::uint32_t keyBegin = 0;
    std::uint32_t keySize = 0;
    std::uint64_t hash = 0;  // of what it says, letter case of references aside
    NameSets::Set params = NameSets::kEmpty;
    OuterSpace before = OuterSpace::None;
    OuterSpace after = OuterSpace::None;
    bool isComplete = true;  // else a mistake keeps part of it unknown
};

/// The texts of one source. Does not change once it is made.
class ReferenceScope {
public:
    explicit ReferenceScope(const Expansion& expansion);
    ReferenceScope() = default;

    const ReferenceText* Find(std::string_view key) const;
    std::string_view KeyOf(const ReferenceText& text) const {
        return std::string_view(keys_).substr(text.keyBegin, text.keySize);
    }
    const std::vector<ReferenceText>& Texts() const noexcept { return texts_; }

private:
    std::size_t SlotOf(std::string_view key) const;

    lm_source::KeyCase case_;
    std::string keys_;
    std::vector<ReferenceText> texts_;
    std::vector<std::uint32_t> slots_;  // a number of `texts_` plus one, or zero
};

/// A hash of what a text says: its operands, as they are written. Where they stand does not count.
std::uint64_t HashOf(const lm_source::Document& document, const lm_source::Entry& entry);

/// White space before and behind a text, as far as strings show it.
OuterSpace SpaceBefore(const lm_source::Document& document, lm_source::Value value);
OuterSpace SpaceAfter(const lm_source::Document& document, lm_source::Value value);

}  // namespace lm_check
