// Fuzzes UTF-8 decoding, against a decoder that tries what could be meant and encodes it again.
#include <algorithm>
#include <iterator>

#include "Input.h"
#include "localization_manager/host/text.h"

namespace {

/// The text whose UTF-8 a sequence is; empty when it is none.
std::u16string TextOf(const std::string& sequence) {
    const auto lead = static_cast<unsigned char>(sequence[0]);
    std::uint32_t codePoint = lead < 0x80 ? lead : lead & (0x7FU >> sequence.size());
    for (const char next : sequence.substr(1)) {
        codePoint = codePoint * 64 + static_cast<unsigned char>(next) % 64;
    }
    std::u16string text;
    qor::EncodeUtf16(std::min<std::uint32_t>(codePoint, 0x10FFFF), std::back_inserter(text));
    return localization_manager::host::ToUtf8(text) == sequence ? text : u"";
}

std::u16string Decode(std::string_view bytes) {
    std::u16string text;
    while (!bytes.empty()) {
        const auto lead = static_cast<unsigned char>(bytes[0]);
        const std::size_t whole = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        std::string sequence(1, bytes[0]);  // to become the longest that some text begins with
        while (sequence.size() < std::min(whole, bytes.size())) {
            std::string longer(bytes.substr(0, sequence.size() + 1));
            if (TextOf(longer + std::string(whole - longer.size(), '\x80')).empty()) {
                break;
            }
            sequence = longer;
        }
        const std::u16string decoded = sequence.size() == whole ? TextOf(sequence) : u"";
        text += decoded.empty() ? u"\uFFFD" : decoded;
        bytes.remove_prefix(sequence.size());
    }
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::u16string text = LocalizationManager::Text::FromUtf8(bytes);
    lm_fuzz::Require(text == Decode(bytes), "decoding agrees with the slow decoder");
    return 0;
}
