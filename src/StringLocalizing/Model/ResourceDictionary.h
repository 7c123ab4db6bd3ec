// A parsed localisation source.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "KeyIndex.h"
#include "Value.h"

namespace LocalizationManager::StringLocalizing::Model {

/// From lower-cased key to value. Keys and values stand side by side, in the order of the source, in
/// one text; a value that is replaced leaves its place unused. Held by shared pointer; may be read
/// from any number of threads. Views that it gives hold until it is written to.
class ResourceDictionary {
public:
    using Position = KeyIndex::Position;

    struct Entry {
        std::u16string_view key;
        ValueView value;
    };

    ResourceDictionary() = default;
    ResourceDictionary(const ResourceDictionary&) = delete;
    ResourceDictionary(ResourceDictionary&&) = default;
    ResourceDictionary& operator=(const ResourceDictionary&) = delete;
    ResourceDictionary& operator=(ResourceDictionary&&) = default;
    ~ResourceDictionary() = default;

    /// Makes room for the entries of a source of so many units, which take about as many here.
    void Reserve(std::size_t sourceSize);

    /// Adds an entry, unless the key has one.
    /// @return whether it was added.
    bool Add(std::u16string_view key, const Value& value);

    /// Where the entry of a key stands; empty when there is none.
    /// @param key  lower-cased.
    std::optional<Position> Find(std::u16string_view key) const;

    /// A quick attempt to find the value of a key in any letter case of ASCII. It may miss a key.
    std::optional<ValueView> FindInAnyCase(std::u16string_view key) const;

    /// The entry that was found.
    Entry At(Position position) const noexcept {
        std::u16string_view rest(entries_.data() + position, entries_.size() - position);
        const std::u16string_view key = TakeText(rest);
        return {key, ValueView(TakeText(rest))};
    }

    /// Replaces the value of an entry, which then stands elsewhere.
    /// @param expandedSize  what that adds to the size of all values that were expanded.
    void Replace(Position entry, const Value& value, std::size_t expandedSize);

    std::size_t ExpandedSize() const noexcept { return expandedSize_; }

    bool empty() const noexcept { return entries_.empty(); }

    /// Whether all values are compiled; what is added later is not.
    bool IsCompiled() const noexcept { return isCompiled_; }
    void SetCompiled() noexcept { isCompiled_ = true; }

    /// Calls `visit` with the position of each entry. It must not write to the dictionary.
    template <class Visit>
    void ForEach(Visit visit) const {
        for (std::u16string_view rest = entries_; !rest.empty();) {
            const auto position = static_cast<Position>(entries_.size() - rest.size());
            const std::u16string_view key = TakeText(rest);
            TakeText(rest);
            if (!hasReplaced_ || Find(key) == position) {
                visit(position);
            }
        }
    }

private:
    /// Makes room for so many units of entries altogether.
    void ReserveEntries(std::size_t size);

    /// Makes room for so many more keys.
    void GrowIndex(std::size_t count);

    const Position* Lookup(std::u16string_view key, KeyIndex::Hash hash) const;

    /// @return where the entry that is written next stands.
    Position MakeRoom(std::u16string_view key, const Value& value);

    /// In room that was made, so that an entry is written whole or not at all.
    void Write(std::u16string_view key, const Value& value);

    std::u16string entries_;
    KeyIndex index_;
    std::size_t expandedSize_ = 0;
    bool isCompiled_ = false;
    bool hasReplaced_ = false;  // a key then may stand at several places
};

}  // namespace LocalizationManager::StringLocalizing::Model
