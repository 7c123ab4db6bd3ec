// A hash table of the entries of a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "source/Entry.h"
#include "source/KeyCase.h"

namespace lm_source {

/// Knows entries by their numbers only. What it has to see of them is given with every call.
class KeyTable {
public:
    /// What the entries are.
    struct Source {
        std::string_view bytes;
        const std::vector<Entry>& entries;
        const KeyCase& keyCase;

        std::string_view KeyAt(std::uint32_t entry) const noexcept {
            const Range key = entries[entry].key;
            return bytes.substr(key.begin, key.size());
        }
    };

    /// The first entry that was added with a key.
    std::optional<std::uint32_t> Find(const Source& source, std::string_view key) const noexcept;

    /// Adds an entry unless its key has one.
    /// @return the entry of the key before; empty when there was none.
    std::optional<std::uint32_t> Add(const Source& source, std::uint32_t entry);

    /// Forgets an entry, which must still be there; no other may have its key.
    void Remove(const Source& source, std::uint32_t entry) noexcept;

private:
    void Grow(const Source& source);

    /// The slot of a key, or the free one where it belongs. There are slots.
    std::size_t SlotOf(const Source& source, std::string_view key) const noexcept;

    std::vector<std::uint32_t> slots_;  // numbers of entries, and what is none; a power of two
    std::size_t used_ = 0;              // slots that are not free
};

}  // namespace lm_source
