// Hashing and comparing the texts of keys, in whatever letter case they are asked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace LocalizationManager::StringLocalizing::Model {

namespace detail {

/// Units that are handled at once; compilers make vectors of loops over them.
struct KeyBlock {
    static constexpr std::size_t kSize = 8;

    char16_t units[kSize];
};

/// The two halves of a block.
struct KeyWords {
    std::uint64_t first;
    std::uint64_t second;
};

/// The bit in which a capital letter of ASCII differs from the small one.
inline constexpr char16_t kCaseBit = 0x20;
inline constexpr std::uint64_t kCaseBits = 0x0020'0020'0020'0020;

template <class Block>
Block ReadKeyBlock(const char16_t* units, std::size_t size = KeyBlock::kSize) noexcept {
    static_assert(sizeof(Block) == sizeof(KeyBlock));
    Block block{};
    std::memcpy(&block, units, size * sizeof(char16_t));
    return block;
}

/// Calls `use` with the places of blocks that cover a text of at least one. The last may overlap the
/// one before.
template <class Use>
void ForEachKeyBlock(std::size_t size, Use use) {
    std::size_t place = 0;
    for (; place + KeyBlock::kSize < size; place += KeyBlock::kSize) {
        use(place);
    }
    use(size - KeyBlock::kSize);
}

/// Two sums, which a processor forms at the same time.
inline void AddToHash(KeyWords& hash, KeyWords words) noexcept {
    constexpr std::uint64_t kFactor = 0x9E37'79B9'7F4A'7C15;
    hash.first = (hash.first + (words.first | kCaseBits)) * kFactor;
    hash.second = (hash.second + (words.second | kCaseBits)) * kFactor;
}

/// Adds what is not equal, but for letters that are asked for as capitals. The letters of a stored key
/// are small, and nothing else in a key has both of the bits that tell them.
inline void AddDifference(KeyBlock& difference, KeyBlock asked, KeyBlock stored) noexcept {
    for (std::size_t i = 0; i < KeyBlock::kSize; ++i) {
        const int letter = stored.units[i] & stored.units[i] >> 1 & kCaseBit;
        difference.units[i] |= static_cast<char16_t>((asked.units[i] ^ stored.units[i]) & ~letter);
    }
}

}  // namespace detail

/// Keys that differ in the letter case of ASCII alone have the same hash.
inline std::uint32_t HashKey(std::u16string_view key) noexcept {
    using namespace detail;
    KeyWords hash{key.size(), 0};
    if (key.size() < KeyBlock::kSize) {
        AddToHash(hash, ReadKeyBlock<KeyWords>(key.data(), key.size()));
    } else {
        ForEachKeyBlock(key.size(), [&](std::size_t place) {
            AddToHash(hash, ReadKeyBlock<KeyWords>(key.data() + place));
        });
    }
    constexpr std::uint64_t kFactor = 0xD6E8'FEB8'6659'FD93;
    const std::uint64_t sum = (hash.first ^ hash.first >> 32U) + hash.second;
    return static_cast<std::uint32_t>((sum ^ sum >> 32U) * kFactor >> 32U);
}

/// Whether a key is the one that was asked for, in any letter case of ASCII.
/// @param stored  a key as files have them, lower-cased: small letters, digits, "_" and ".".
inline bool IsKeyInAnyCase(std::u16string_view asked, std::u16string_view stored) noexcept {
    using namespace detail;
    const std::size_t size = asked.size();
    if (stored.size() != size) {
        return false;
    }
    KeyBlock difference{};
    if (size < KeyBlock::kSize) {
        AddDifference(difference, ReadKeyBlock<KeyBlock>(asked.data(), size),
                      ReadKeyBlock<KeyBlock>(stored.data(), size));
    } else {
        ForEachKeyBlock(size, [&](std::size_t place) {
            AddDifference(difference, ReadKeyBlock<KeyBlock>(asked.data() + place),
                          ReadKeyBlock<KeyBlock>(stored.data() + place));
        });
    }
    const auto [first, second] = ReadKeyBlock<KeyWords>(difference.units);
    return (first | second) == 0;
}

}  // namespace LocalizationManager::StringLocalizing::Model
