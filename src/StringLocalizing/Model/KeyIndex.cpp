#include "KeyIndex.h"

namespace LocalizationManager::StringLocalizing::Model {

KeyIndex::KeyIndex(std::size_t size)
    : slots_(size), mask_(size - 1), probes_(std::min(kMaxProbes, size)) {}

void KeyIndex::Insert(std::u16string_view key, Hash hash, Position position) {
    ++count_;
    for (std::size_t probe = 0; probe < probes_; ++probe) {
        Slot& slot = slots_[(hash + probe) & mask_];
        if (slot.position == kFree) {
            slot = {position, hash};
            return;
        }
    }
    crowded_.emplace(key, position);
}

void KeyIndex::Move(std::u16string_view key, Hash hash, Position from, Position to) noexcept {
    for (std::size_t probe = 0; probe < probes_; ++probe) {
        Slot& slot = slots_[(hash + probe) & mask_];
        if (slot.position == from) {
            slot.position = to;
            return;
        }
    }
    crowded_.find(key)->second = to;
}

}  // namespace LocalizationManager::StringLocalizing::Model
