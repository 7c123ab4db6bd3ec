// A hash table of keys that stand elsewhere.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "KeyText.h"

namespace LocalizationManager::StringLocalizing::Model {

/// Knows the position of each key in a text that the owner keeps. It grows by being replaced.
class KeyIndex {
public:
    using Hash = std::uint32_t;  // of 24 bits
    using Position = std::uint32_t;

    /// How much of memory to ask for together with a key, which the owner chooses.
    using Extent = std::uint8_t;

    KeyIndex() = default;

    static Hash HashOf(std::u16string_view key) noexcept { return HashKey(key) >> kExtentBits; }

    /// @param hash    of the key.
    /// @param hasKey  whether the key is the one at a position, with an extent.
    /// @return null when there is no such key among those that are found at once; nearly all are.
    template <class HasKey>
    const Position* FindAtOnce(Hash hash, HasKey hasKey) const {
        const std::size_t probes = Probes();
        for (std::size_t probe = 0; probe < probes; ++probe) {
            const Slot& slot = slots_[Place(hash, probe)];
            if (slot.position == kFree) {
                return nullptr;
            }
            if (slot.hash() == hash && hasKey(slot.position, slot.extent())) {
                return &slot.position;
            }
        }
        return nullptr;
    }

    /// The same among all keys; `hasKey` gets no extent.
    template <class HasKey>
    const Position* Find(std::u16string_view key, Hash hash, HasKey hasKey) const {
        const Position* const found =
            FindAtOnce(hash, [&](Position position, Extent) { return hasKey(position); });
        if (found != nullptr) {
            return found;
        }
        const auto crowded = crowded_.find(key);
        return crowded != crowded_.end() ? &crowded->second : nullptr;
    }

    /// For so many more keys.
    bool HasRoomFor(std::size_t count) const noexcept {
        return HasRoom(slots_.size(), count_ + count);
    }

    /// The same keys with room for so many more.
    /// @param keyAt  the key at a position.
    template <class KeyAt>
    KeyIndex Grown(std::size_t count, KeyAt keyAt) const {
        std::size_t size = 16;
        while (!HasRoom(size, count_ + count)) {
            size *= 2;
        }
        KeyIndex grown(size);
        for (const Slot& slot : slots_) {
            if (slot.position != kFree) {
                grown.Insert(keyAt(slot.position), slot.hash(), slot.position, slot.extent());
            }
        }
        for (const auto& [key, position] : crowded_) {
            grown.Insert(key, HashOf(key), position, 0);
        }
        return grown;
    }

    /// Adds a key that is new; there must be room. The highest position is not for use.
    void Insert(std::u16string_view key, Hash hash, Position position, Extent extent);

    /// A key that is there stands at another position now.
    void Move(std::u16string_view key, Hash hash, Position from, Position to,
              Extent extent) noexcept;

private:
    static constexpr Position kFree = static_cast<Position>(-1);

    static constexpr unsigned kExtentBits = std::numeric_limits<Extent>::digits;

    /// As small as can be: more of them are near then.
    struct Slot {
        Position position = kFree;
        std::uint32_t hashAndExtent = 0;

        Hash hash() const noexcept { return hashAndExtent >> kExtentBits; }
        Extent extent() const noexcept { return static_cast<Extent>(hashAndExtent); }
    };

    /// How many places are looked at, from the one of the hash on. Keys that found all of them taken
    /// stand in `crowded_`: no choice of keys makes a lookup slow.
    static constexpr std::size_t kMaxProbes = 32;

    explicit KeyIndex(std::size_t size) : slots_(size) {}

    /// More keys would make long ways.
    static bool HasRoom(std::size_t slots, std::size_t keys) noexcept {
        return 4 * keys <= 3 * slots;
    }

    std::size_t Probes() const noexcept { return std::min(kMaxProbes, slots_.size()); }
    std::size_t Place(Hash hash, std::size_t probe) const noexcept {
        return (hash + probe) & (slots_.size() - 1);
    }

    std::vector<Slot> slots_;  // a power of two
    std::size_t count_ = 0;
    std::map<std::u16string, Position, std::less<>> crowded_;
};

}  // namespace LocalizationManager::StringLocalizing::Model
