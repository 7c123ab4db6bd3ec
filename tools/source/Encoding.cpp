#include "source/Encoding.h"

#include <array>
#include <cstddef>

#include "qor/decode_utf8.h"

namespace lm_source {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
constexpr std::size_t kLongestCharacter = 4;

/// Takes units, and keeps none: how many there were, and whether one is U+FFFD.
class UnitSink {
public:
    struct Seen {
        std::uint32_t units = 0;
        bool hasReplacement = false;
    };

    explicit UnitSink(Seen& seen) : seen_(&seen) {}
    UnitSink& operator*() noexcept { return *this; }
    UnitSink& operator++() noexcept { return *this; }
    UnitSink& operator++(int) noexcept { return *this; }
    UnitSink& operator=(char16_t unit) noexcept {
        ++seen_->units;
        seen_->hasReplacement = seen_->hasReplacement || unit == qor::kReplacementCharacter;
        return *this;
    }

private:
    Seen* seen_;
};

UnitSink::Seen Decode(std::string_view bytes) {
    UnitSink::Seen seen;
    qor::DecodeUtf8(bytes, UnitSink(seen));
    return seen;
}

Range ContentOf(std::string_view bytes) noexcept {
    const std::size_t begin =
        bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark ? kByteOrderMark.size() : 0;
    const std::size_t last = bytes.find_last_not_of('\0');
    const bool hasText = last != std::string_view::npos && last >= begin;
    return {static_cast<std::uint32_t>(begin),
            static_cast<std::uint32_t>(hasText ? last + 1 : bytes.size())};
}

bool LooksLikeUtf16(std::string_view bytes) noexcept {
    const std::string_view first = bytes.substr(0, 2);
    return first == "\xFF\xFE" || first == "\xFE\xFF" ||
           (first.size() == 2 && (first[0] == '\0') != (first[1] == '\0'));
}

std::vector<Range> IllFormedParts(std::string_view bytes, Range content) {
    std::vector<Range> parts;
    if (!Decode(bytes.substr(content.begin, content.size())).hasReplacement) {
        return parts;
    }
    for (std::uint32_t at = content.begin; at < content.end;) {
        const Character next = FirstCharacter(bytes.substr(at, content.end - at));
        if (next.isIllFormed) {
            parts.push_back({at, at + next.bytes});
        }
        at += next.bytes;
    }
    return parts;
}

}  // namespace

Encoding EncodingOf(std::string_view bytes) {
    Encoding encoding;
    encoding.content = ContentOf(bytes);
    encoding.isUtf16 = LooksLikeUtf16(bytes);
    encoding.illFormed = IllFormedParts(bytes, encoding.content);
    return encoding;
}

Character FirstCharacter(std::string_view bytes) {
    if (static_cast<unsigned char>(bytes[0]) < 0x80) {
        return {1, 1, static_cast<unsigned char>(bytes[0]), false};
    }
    // The decoder alone knows where a character ends: the longest start that becomes only one.
    Character first{};
    std::array<char16_t, kLongestCharacter> units{};
    for (std::size_t size = 1; size <= bytes.size() && size <= kLongestCharacter; ++size) {
        const std::string_view start = bytes.substr(0, size);
        const auto count =
            static_cast<std::uint32_t>(qor::DecodeUtf8(start, units.begin()) - units.begin());
        if (count > 1 && !qor::IsHighSurrogate(units[0])) {
            break;
        }
        const bool isIllFormed = units[0] == qor::kReplacementCharacter && start != kReplacement;
        first = {static_cast<std::uint32_t>(size), count, units[0], isIllFormed};
    }
    return first;
}

std::uint32_t CountUnits(std::string_view bytes) {
    return Decode(bytes).units;
}

}  // namespace lm_source
