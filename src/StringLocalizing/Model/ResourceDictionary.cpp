#include "ResourceDictionary.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <stdexcept>

#include "prefetch.h"

namespace LocalizationManager::StringLocalizing::Model {

namespace {

/// In bytes; nearly all entries are shorter, plural forms included.
constexpr std::size_t kUsualEntrySize = 1024;

/// As `==`, which compares wide units one by one.
bool AreEqual(std::u16string_view left, std::u16string_view right) noexcept {
    return left.size() == right.size() &&
           std::memcmp(left.data(), right.data(), left.size() * sizeof(char16_t)) == 0;
}

}  // namespace

bool ResourceDictionary::Add(std::u16string_view key, const Value& value) {
    const KeyIndex::Hash hash = KeyIndex::HashOf(key);
    if (Lookup(key, hash) != nullptr) {
        return false;
    }
    if (!index_.HasRoomForOneMore()) {
        index_ = index_.Grown([this](Position position) { return At(position).key; });
    }
    isCompiled_ = false;
    const Position position = Write(key, value);
    try {
        index_.Insert(key, hash, position);
    } catch (...) {  // memory ran out; nobody would find the entry
        entries_.resize(position);
        throw;
    }
    return true;
}

std::optional<ResourceDictionary::Position> ResourceDictionary::Find(
    std::u16string_view key) const {
    const Position* const found = Lookup(key, KeyIndex::HashOf(key));
    return found != nullptr ? std::optional(*found) : std::nullopt;
}

ResourceDictionary::Entry ResourceDictionary::At(Position position) const noexcept {
    std::u16string_view rest(entries_.data() + position, entries_.size() - position);
    const std::u16string_view key = TakeText(rest);
    return {key, ValueView(TakeText(rest))};
}

void ResourceDictionary::Replace(Position entry, const Value& value, std::size_t expandedSize) {
    const std::u16string key(
        At(entry).key);  // a copy: what stands here moves when it is written to
    index_.Move(key, KeyIndex::HashOf(key), entry, Write(key, value));
    expandedSize_ += expandedSize;
    hasReplaced_ = true;
}

const ResourceDictionary::Position* ResourceDictionary::Lookup(std::u16string_view key,
                                                               KeyIndex::Hash hash) const {
    return index_.Find(key, hash, [&](Position position) {
        // Whoever asks for a key reads its value next.
        Prefetch<kUsualEntrySize>(&entries_[position]);
        return AreEqual(At(position).key, key);
    });
}

ResourceDictionary::Position ResourceDictionary::Write(std::u16string_view key,
                                                       const Value& value) {
    const std::u16string_view code = value.view().code();
    const std::size_t end = entries_.size() + 2 * kLengthUnits + key.size() + code.size();
    if (end >= std::numeric_limits<Position>::max()) {
        throw std::length_error("too many texts for one dictionary");
    }
    if (end > entries_.capacity()) {  // an entry is written whole or not at all
        entries_.reserve(std::max(end, 2 * entries_.capacity()));
    }
    const auto position = static_cast<Position>(entries_.size());
    AppendText(entries_, key);
    AppendText(entries_, code);
    return position;
}

}  // namespace LocalizationManager::StringLocalizing::Model
