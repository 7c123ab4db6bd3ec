// Finds what belongs to a key.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace LocalizationManager::StringLocalizing::Model {

/// A hash table of positions in a text that the owner keeps, where the keys stand. It grows by being
/// replaced.
class KeyIndex {
public:
    using Hash = std::uint32_t;
    using Position = std::uint32_t;

    KeyIndex() = default;

    static Hash HashOf(std::u16string_view key) noexcept {
        return static_cast<Hash>(std::hash<std::u16string_view>()(key));
    }

    /// @param hash    of the key.
    /// @param hasKey  whether the key stands at a position.
    template <class HasKey>
    const Position* Find(std::u16string_view key, Hash hash, HasKey hasKey) const {
        for (std::size_t probe = 0; probe < probes_; ++probe) {
            const Slot& slot = slots_[(hash + probe) & mask_];
            if (slot.position == kFree) {
                return nullptr;
            }
            if (slot.hash == hash && hasKey(slot.position)) {
                return &slot.position;
            }
        }
        const auto crowded = crowded_.find(key);
        return crowded != crowded_.end() ? &crowded->second : nullptr;
    }

    bool HasRoomForOneMore() const noexcept {
        return 4 * (count_ + 1) <= 3 * slots_.size();  // more would make long ways
    }

    /// The same keys in twice the room.
    /// @param keyAt  the key at a position.
    template <class KeyAt>
    KeyIndex Grown(KeyAt keyAt) const {
        constexpr std::size_t kFirstSize = 16;
        KeyIndex grown(std::max(kFirstSize, 2 * slots_.size()));
        for (const Slot& slot : slots_) {
            if (slot.position != kFree) {
                grown.Insert(keyAt(slot.position), slot.hash, slot.position);
            }
        }
        for (const auto& [key, position] : crowded_) {
            grown.Insert(key, HashOf(key), position);
        }
        return grown;
    }

    /// Adds a key that is new; there must be room. The highest position is not for use.
    void Insert(std::u16string_view key, Hash hash, Position position);

    /// A key that is there stands at another position now.
    void Move(std::u16string_view key, Hash hash, Position from, Position to) noexcept;

private:
    static constexpr Position kFree = static_cast<Position>(-1);

    struct Slot {
        Position position = kFree;
        Hash hash = 0;
    };

    /// How many places are looked at, from the one of the hash on. Keys that found all of them taken
    /// stand in `crowded_`: no choice of keys makes a lookup slow.
    static constexpr std::size_t kMaxProbes = 32;

    explicit KeyIndex(std::size_t size);

    std::vector<Slot> slots_;  // a power of two
    std::size_t mask_ = 0;
    std::size_t probes_ = 0;
    std::size_t count_ = 0;
    std::map<std::u16string, Position, std::less<>> crowded_;
};

}  // namespace LocalizationManager::StringLocalizing::Model
