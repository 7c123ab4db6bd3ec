// A hash table of keys that stand elsewhere.
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

/// Knows the position of each key in a text that the owner keeps. It grows by being replaced.
class KeyIndex {
public:
    using Hash = std::uint32_t;
    using Position = std::uint32_t;

    KeyIndex() = default;

    static Hash HashOf(std::u16string_view key) noexcept {
        return static_cast<Hash>(std::hash<std::u16string_view>()(key));
    }

    /// @param hash    of the key.
    /// @param hasKey  whether the key is the one at a position.
    /// @return null when there is no such key.
    template <class HasKey>
    const Position* Find(std::u16string_view key, Hash hash, HasKey hasKey) const {
        const std::size_t probes = Probes();
        for (std::size_t probe = 0; probe < probes; ++probe) {
            const Slot& slot = slots_[Place(hash, probe)];
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

    explicit KeyIndex(std::size_t size) : slots_(size) {}

    std::size_t Probes() const noexcept { return std::min(kMaxProbes, slots_.size()); }
    std::size_t Place(Hash hash, std::size_t probe) const noexcept {
        return (hash + probe) & (slots_.size() - 1);
    }

    std::vector<Slot> slots_;  // a power of two
    std::size_t count_ = 0;
    std::map<std::u16string, Position, std::less<>> crowded_;
};

}  // namespace LocalizationManager::StringLocalizing::Model
