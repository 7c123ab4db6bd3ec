// UTF-8 decoding on POSIX, which has no function of its own for it.
#include "qor/decode_utf8.h"

#include <algorithm>

#include "Platform.h"

namespace Platform {

namespace {

constexpr std::size_t kBlockSize = 16;

constexpr bool LeadsTwoBytes(unsigned char byte) noexcept {
    return byte >= 0xC2 && byte <= 0xDF;
}

constexpr bool Continues(unsigned char byte) noexcept {
    return (byte & 0xC0U) == 0x80;
}

/// What each byte of a block is, if a character of one or two bytes begins there.
struct Block {
    char16_t units[kBlockSize];
    bool begins[kBlockSize];
    bool isShort;  // nothing but such characters
};

/// @param bytes  begin with a character, and have one more than the block.
Block ReadBlock(const char* bytes) noexcept {
    Block block;
    unsigned isLonger = 0;
    for (std::size_t i = 0; i < kBlockSize; ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        const auto next = static_cast<unsigned char>(bytes[i + 1]);
        const bool isLead = LeadsTwoBytes(byte);
        isLonger |= static_cast<unsigned>(isLead != Continues(next)) |
                    static_cast<unsigned>(byte >= 0xC0 && !isLead);
        block.begins[i] = !Continues(byte);
        block.units[i] =
            static_cast<char16_t>(isLead ? (byte & 0x1FU) << 6U | (next & 0x3FU) : byte);
    }
    block.isShort = isLonger == 0 && block.begins[0];
    return block;
}

/// Decodes blocks of short characters off the front. It decides nothing for a single byte: words and
/// blanks in turn would make a processor guess wrong all the time.
char16_t* DecodeShortCharacters(std::string_view& bytes, char16_t* output) noexcept {
    while (bytes.size() > kBlockSize) {
        const Block block = ReadBlock(bytes.data());
        if (!block.isShort) {
            break;
        }
        for (std::size_t i = 0; i < kBlockSize; ++i) {
            *output = block.units[i];
            output += block.begins[i] ? 1 : 0;
        }
        const bool reachesOut = LeadsTwoBytes(static_cast<unsigned char>(bytes[kBlockSize - 1]));
        bytes.remove_prefix(kBlockSize + (reachesOut ? 1 : 0));
    }
    return output;
}

}  // namespace

std::size_t DecodeUtf8(std::string_view bytes, char16_t* output) {
    char16_t* end = output;
    while (!bytes.empty()) {
        end = DecodeShortCharacters(bytes, end);
        const std::size_t others = qor::PlaceToCutUtf8(bytes, 4 * kBlockSize);
        end = qor::DecodeUtf8(bytes.substr(0, others), end);
        bytes.remove_prefix(others);
    }
    return static_cast<std::size_t>(end - output);
}

}  // namespace Platform
