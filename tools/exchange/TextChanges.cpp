#include "exchange/TextChanges.h"

#include <cstdint>
#include <string_view>

#include "edit/ValuePrinter.h"
#include "edit/append.h"
#include "edit/format.h"
#include "source/untranslated.h"

namespace lm_exchange {

using lm_source::Document;
using lm_source::Entry;
using lm_source::Range;

namespace {

/// A value laid out as one that begins at a column.
std::string LaidOut(const std::string& value, std::string_view lineBreak, std::uint32_t column) {
    const Document document("Key = " + value);
    const std::uint32_t plusColumn = column < 2 ? column : column - 2;  // below the "="
    return lm_edit::ValuePrinter(document, lineBreak)
        .Print(document.ValueOf(document.Entries().front()), column, plusColumn);
}

/// A comment with the line on which it stands.
Range LineOf(const Document& document, Range comment) {
    const std::uint32_t line = document.Lines().LineOf(comment.begin);
    const std::uint32_t next = document.Lines().RangeOf(document.Bytes(), line + 1).begin;
    return {document.Lines().RangeOf(document.Bytes(), line).begin, next};
}

}  // namespace

void TextChanges::Set(const ScopeTexts::Text& text, const std::string& value) {
    const Document& own = texts_.Own();
    const std::string_view lineBreak = lm_edit::LineBreakOf(own);
    if (!text.ownEntry) {
        ++added_;
        std::string entry = text.key + " = " + value;
        entries_ += lm_edit::Format(Document(entry.append(lineBreak)));
        return;
    }
    ++changed_;
    const Entry& entry = own.Entries()[*text.ownEntry];
    const std::uint32_t begin = own.ValueOf(entry).begin()->range.begin;
    edits_.push_back(
        {{begin, entry.end}, LaidOut(value, lineBreak, own.PlaceOf(begin).column - 1)});
    if (const auto mark = UntranslatedMark(own, *text.ownEntry)) {
        edits_.push_back({LineOf(own, *mark), ""});
    }
}

std::vector<lm_source::Edit> TextChanges::Edits() const {
    std::vector<lm_source::Edit> edits = edits_;
    if (!entries_.empty()) {
        edits.push_back(lm_edit::Appended(texts_.Own(), entries_));
    }
    return edits;
}

}  // namespace lm_exchange
