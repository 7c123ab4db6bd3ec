#include "KeyIndex.h"

namespace LocalizationManager::StringLocalizing::Model {

void KeyIndex::Insert(std::u16string_view key, Hash hash, Position position, Extent extent) {
    const std::size_t probes = Probes();
    for (std::size_t probe = 0; probe < probes; ++probe) {
        Slot& slot = slots_[Place(hash, probe)];
        if (slot.position == kFree) {
            slot = {position, hash << kExtentBits | extent};
            ++count_;
            return;
        }
    }
    crowded_.emplace(key, position);
    ++count_;
}

void KeyIndex::Move(std::u16string_view key, Hash hash, Position from, Position to,
                    Extent extent) noexcept {
    const std::size_t probes = Probes();
    for (std::size_t probe = 0; probe < probes; ++probe) {
        Slot& slot = slots_[Place(hash, probe)];
        if (slot.position == from) {
            slot = {to, hash << kExtentBits | extent};
            return;
        }
    }
    crowded_.find(key)->second = to;
}

}  // namespace LocalizationManager::StringLocalizing::Model
