#include "ResourceDictionary.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <stdexcept>

#include "Platform.h"
#include "prefetch.h"

namespace LocalizationManager::StringLocalizing::Model {

namespace {

/// The extent of an entry counts so many bytes. What is long is read in turn, and near in time anyway.
constexpr std::size_t kExtentUnit = 64;
constexpr std::size_t kMaxExtent = 16;

KeyIndex::Extent ExtentOf(std::u16string_view key, const Value& value) noexcept {
    const std::size_t bytes = (2 * kLengthUnits + key.size() + value.size()) * sizeof(char16_t);
    return static_cast<KeyIndex::Extent>(std::min(bytes / kExtentUnit, kMaxExtent));
}

/// As `==`, which compares wide units one by one.
bool AreEqual(std::u16string_view left, std::u16string_view right) noexcept {
    return left.size() == right.size() &&
           std::memcmp(left.data(), right.data(), left.size() * sizeof(char16_t)) == 0;
}

}  // namespace

void ResourceDictionary::Reserve(std::size_t sourceSize) {
    constexpr std::size_t kUsualEntry =
        128;  // in units of the source; of shorter ones there are more
    ReserveEntries(entries_.size() + sourceSize);
    GrowIndex(sourceSize / kUsualEntry);
}

void ResourceDictionary::ReserveEntries(std::size_t size) {
    entries_.reserve(size);
    Platform::PreferLargePages(entries_.data() + entries_.size(),
                               (entries_.capacity() - entries_.size()) * sizeof(char16_t));
}

void ResourceDictionary::GrowIndex(std::size_t count) {
    if (!index_.HasRoomFor(count)) {
        index_ = index_.Grown(count, [this](Position position) { return At(position).key; });
    }
}

bool ResourceDictionary::Add(std::u16string_view key, const Value& value) {
    const KeyIndex::Hash hash = KeyIndex::HashOf(key);
    if (Lookup(key, hash) != nullptr) {
        return false;
    }
    GrowIndex(1);
    const Position position = MakeRoom(key, value);
    index_.Insert(key, hash, position,
                  ExtentOf(key, value));  // fails before anything is written, if it does
    Write(key, value);
    isCompiled_ = false;
    return true;
}

std::optional<ResourceDictionary::Position> ResourceDictionary::Find(
    std::u16string_view key) const {
    const Position* const found = Lookup(key, KeyIndex::HashOf(key));
    return found != nullptr ? std::optional(*found) : std::nullopt;
}

std::optional<ValueView> ResourceDictionary::FindInAnyCase(std::u16string_view key) const {
    std::optional<ValueView> found;
    index_.FindAtOnce(KeyIndex::HashOf(key), [&](Position position, KeyIndex::Extent extent) {
        Prefetch(&entries_[position], (extent + std::size_t{1}) * kExtentUnit);
        const Entry entry = At(position);
        if (!IsKeyInAnyCase(key, entry.key)) {
            return false;
        }
        found = entry.value;
        return true;
    });
    return found;
}

void ResourceDictionary::Replace(Position entry, const Value& value, std::size_t expandedSize) {
    const std::u16string key(
        At(entry).key);  // a copy: what stands here moves when it is written to
    const Position position = MakeRoom(key, value);
    Write(key, value);
    index_.Move(key, KeyIndex::HashOf(key), entry, position, ExtentOf(key, value));
    expandedSize_ += expandedSize;
    hasReplaced_ = true;
}

const ResourceDictionary::Position* ResourceDictionary::Lookup(std::u16string_view key,
                                                               KeyIndex::Hash hash) const {
    return index_.Find(key, hash,
                       [&](Position position) { return AreEqual(At(position).key, key); });
}

ResourceDictionary::Position ResourceDictionary::MakeRoom(std::u16string_view key,
                                                          const Value& value) {
    const std::size_t end = entries_.size() + 2 * kLengthUnits + key.size() + value.size();
    if (end >= std::numeric_limits<Position>::max()) {
        throw std::length_error("too many texts for one dictionary");
    }
    if (end > entries_.capacity()) {
        ReserveEntries(std::max(end, 2 * entries_.capacity()));
    }
    return static_cast<Position>(entries_.size());
}

void ResourceDictionary::Write(std::u16string_view key, const Value& value) {
    AppendText(entries_, key);
    AppendText(entries_, value.view().code());
}

}  // namespace LocalizationManager::StringLocalizing::Model
