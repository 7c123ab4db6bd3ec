#include "source/Document.h"

#include <limits>
#include <stdexcept>
#include <utility>

#include "source/Parser.h"
#include "source/Scanner.h"

namespace lm_source {

Document::Document(std::string bytes) : bytes_(std::move(bytes)) {
    if (bytes_.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
        throw std::length_error("a text file has to be shorter than 2 GiB");
    }
    encoding_ = EncodingOf(bytes_);
    lines_ = LineTable(bytes_, encoding_.content);
    syntax_ = Parser(bytes_, encoding_.content).Parse();
}

const Entry* Document::Find(std::string_view key) const {
    const auto found = syntax_.keys.Find({bytes_, syntax_.entries, syntax_.keyCase}, key);
    return found ? &syntax_.entries[*found] : nullptr;
}

Range Document::NameRange(const Operand& operand) const noexcept {
    Range name = operand.range;
    switch (operand.kind) {
        case OperandKind::Text:
            return {name.begin, name.begin};
        case OperandKind::KeyRef:
            return name;
        case OperandKind::Param:
            return {name.begin + 1, name.end};
        case OperandKind::PluralForm:
            break;
    }
    // White space may stand after the "{".
    const std::string_view text = Bytes(name);
    const std::string_view::size_type sign = text.find('$');
    if (sign == std::string_view::npos) {
        return {name.end, name.end};
    }
    name.begin += static_cast<std::uint32_t>(sign + 1);
    name.end = name.begin + NameLength(Bytes(name));
    return name;
}

std::string Document::Text(const Operand& string) const {
    std::string text;
    if (string.kind != OperandKind::Text) {
        return text;
    }
    const std::string_view rest = Bytes({string.range.begin + 1, string.range.end - 1});
    text.reserve(rest.size());
    for (std::string_view::size_type at = 0; at < rest.size();) {
        const std::string_view::size_type backslash = rest.find('\\', at);
        text.append(rest.substr(at, backslash - at));
        if (backslash == std::string_view::npos) {
            break;
        }
        const Escape escape = EscapeAt(rest.substr(backslash));
        text.push_back(escape.unit);
        at = backslash + escape.size;
    }
    return text;
}

}  // namespace lm_source
