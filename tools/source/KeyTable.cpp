#include "source/KeyTable.h"

#include <algorithm>
#include <utility>

namespace lm_source {

namespace {

constexpr std::uint32_t kFree = 0xFFFFFFFF;
constexpr std::uint32_t kRemoved = kFree - 1;  // others may stand behind it
constexpr std::size_t kFirstSize = 16;

}  // namespace

std::optional<std::uint32_t> KeyTable::Find(const Source& source,
                                            std::string_view key) const noexcept {
    const std::uint32_t found = slots_.empty() ? kFree : slots_[SlotOf(source, key)];
    return found != kFree ? std::optional(found) : std::nullopt;
}

std::optional<std::uint32_t> KeyTable::Add(const Source& source, std::uint32_t entry) {
    if (4 * (used_ + 1) > 3 * slots_.size()) {  // more would make long ways
        Grow(source);
    }
    std::uint32_t& slot = slots_[SlotOf(source, source.KeyAt(entry))];
    if (slot != kFree) {
        return slot;
    }
    slot = entry;
    ++used_;
    return std::nullopt;
}

void KeyTable::Remove(const Source& source, std::uint32_t entry) noexcept {
    std::uint32_t& slot = slots_[SlotOf(source, source.KeyAt(entry))];
    if (slot == entry) {
        slot = kRemoved;
    }
}

void KeyTable::Grow(const Source& source) {
    const std::vector<std::uint32_t> old =
        std::exchange(slots_, std::vector(std::max(kFirstSize, 2 * slots_.size()), kFree));
    used_ = 0;
    for (const std::uint32_t entry : old) {
        if (entry < kRemoved) {
            slots_[SlotOf(source, source.KeyAt(entry))] = entry;
            ++used_;
        }
    }
}

std::size_t KeyTable::SlotOf(const Source& source, std::string_view key) const noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = source.keyCase.HashOf(key) & mask;
    while (slots_[slot] != kFree && (slots_[slot] == kRemoved ||
                                     !source.keyCase.AreEqual(source.KeyAt(slots_[slot]), key))) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

}  // namespace lm_source
