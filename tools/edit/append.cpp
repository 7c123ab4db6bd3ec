#include "edit/append.h"

#include <cstdint>

namespace lm_edit {

std::string_view LineBreakOf(const lm_source::Document& document) {
    const std::string_view bytes = document.Bytes();
    const std::size_t at = bytes.find_first_of("\r\n");
    if (at == std::string_view::npos) {
        return "\n";
    }
    return bytes.substr(at, bytes.substr(at, 2) == "\r\n" ? 2 : 1);
}

lm_source::Edit Appended(const lm_source::Document& document, std::string_view entries) {
    const lm_source::Range content = document.Content();
    lm_source::Edit edit{{content.end, static_cast<std::uint32_t>(document.Bytes().size())}, {}};
    if (!content.empty()) {
        const char last = document.Bytes(content).back();
        const std::string_view lineBreak = LineBreakOf(document);
        edit.replacement.append(last == '\n' || last == '\r' ? "" : lineBreak).append(lineBreak);
    }
    edit.replacement += entries;
    return edit;
}

}  // namespace lm_edit
