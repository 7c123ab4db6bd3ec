#include "source/mistake_text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>

#include "DuplicateKeyException.h"
#include "LocFileParser.h"
#include "ParsingException.h"
#include "localization_manager/host/text.h"
#include "source/Scanner.h"

namespace lm_source {

namespace {

using namespace LocalizationManager::StringLocalizing;
using localization_manager::host::ToUtf16;
using localization_manager::host::ToUtf8;

/// The end of the last line that the engine sees before it meets a mistake.
std::uint32_t EndOfSight(const Document& document, const Mistake& mistake) {
    const Scanner scanner(document.Bytes(), document.Content());
    std::uint32_t at = mistake.range.begin;
    if (scanner.At(at) == '$') {  // whether a ":" follows decides what it is
        at = scanner.SkipSpace(scanner.SkipName(at + 1));
    }
    return scanner.LineEnd(at);
}

/// The engine's messages encode every unit by itself; people read pairs of surrogates as one character.
std::string JoinPairs(std::string_view message) {
    std::u16string units;
    for (std::size_t at = 0; at < message.size();) {
        const bool isSurrogate = message[at] == '\xED' && at + 2 < message.size() &&
                                 static_cast<unsigned char>(message[at + 1]) >= 0xA0;
        if (isSurrogate) {
            units += static_cast<char16_t>(0xD000 | (message[at + 1] & 0x3F) << 6 |
                                           (message[at + 2] & 0x3F));
            at += 3;
        } else {
            const std::size_t end = std::min(message.find('\xED', at + 1), message.size());
            units += ToUtf16(message.substr(at, end - at));
            at = end;
        }
    }
    return ToUtf8(units);
}

}  // namespace

std::string TextOf(const Document& document, const Mistake& mistake, std::string_view sourceName) {
    if (mistake.kind == MistakeKind::DuplicateKey) {
        const std::string key = document.LowerKey(document.Bytes(mistake.range));
        return Parsing::DuplicateKeyException(ToUtf16(key)).what();
    }
    // The engine itself finds it again, from the start of its entry on. The whole line counts, for
    // the column and as the message shows it.
    const std::uint32_t line = document.Lines().LineOf(mistake.entry);
    const std::uint32_t begin = document.Lines().RangeOf(document.Bytes(), line).begin;
    const std::u16string before = ToUtf16(document.Bytes({begin, mistake.entry}));
    const std::u16string text =
        before + ToUtf16(document.Bytes({mistake.entry, EndOfSight(document, mistake)}));
    const std::u16string name = ToUtf16(sourceName);
    Parsing::SourceRange range = Parsing::MakeSourceRange(text, name, static_cast<int>(line));
    while (range.first.base() != text.data() + before.size()) {
        ++range.first;
    }
    Model::ResourceDictionary dictionary;
    try {
        Parsing::ParseResourceDictionary(range.first, range.last, dictionary);
    } catch (const Parsing::ParsingException& exception) {
        return JoinPairs(exception.what());
    }
    throw std::logic_error("the engine accepts what the document calls a mistake");
}

}  // namespace lm_source
