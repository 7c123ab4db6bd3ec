// A localisation file as it was written: what it says, where each part stands, and every byte.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "source/Encoding.h"
#include "source/Entry.h"
#include "source/LineTable.h"
#include "source/Mistake.h"
#include "source/Operand.h"
#include "source/Range.h"
#include "source/Syntax.h"
#include "source/Value.h"

namespace lm_source {

/// Reads a `.lt` file with all its mistakes, and never changes afterwards: a changed text is a new
/// document. It is read the way the engine reads it, and goes on after a mistake at the first line
/// after the start of the faulty entry that begins `key =`. What is white space, and the letter
/// case of keys, is asked of the locale that is global when the document is made.
///
/// May be used from any number of threads. Views and references hold while the document is alive
/// and is not moved.
class Document {
public:
    /// @param bytes  the whole file, byte-order mark included, in whatever encoding.
    /// @throws std::length_error for 2 GiB and more, which the engine does not read.
    explicit Document(std::string bytes);

    /// The file as it was given.
    std::string_view Bytes() const noexcept { return bytes_; }
    std::string_view Bytes(Range range) const noexcept {
        return Bytes().substr(range.begin, range.size());
    }

    /// The text: without a byte-order mark and zeros at the end.
    Range Content() const noexcept { return encoding_.content; }

    /// What is not UTF-8.
    const Encoding& GetEncoding() const noexcept { return encoding_; }

    /// All lines of the text.
    const LineTable& Lines() const noexcept { return lines_; }

    /// Where an offset of the text is, for people.
    Place PlaceOf(std::uint32_t offset) const { return lines_.PlaceOf(bytes_, offset); }

    /// In the order of the file; duplicates and faulty ones included.
    const std::vector<Entry>& Entries() const noexcept { return syntax_.entries; }

    /// In the order in which they were found: the first one is the one that the engine reports.
    const std::vector<Mistake>& Mistakes() const noexcept { return syntax_.mistakes; }

    /// Parts that belong to no entry because of a mistake, in the order of the file.
    const std::vector<Range>& Skipped() const noexcept { return syntax_.skipped; }

    /// The first entry of a key, in any letter case; null when there is none.
    const Entry* Find(std::string_view key) const;

    /// The key as it is written, and as the engine knows it. It is ASCII, but a locale may have a
    /// letter for a lower-case one that is not.
    std::string_view Key(const Entry& entry) const noexcept { return Bytes(entry.key); }
    std::string LowerKey(const Entry& entry) const { return syntax_.keyCase.Lower(Key(entry)); }

    /// Any key, or the name of a reference, as the engine knows it.
    std::string LowerKey(std::string_view key) const { return syntax_.keyCase.Lower(key); }

    /// From the key to the last operand.
    static Range RangeOf(const Entry& entry) noexcept { return {entry.key.begin, entry.end}; }

    Value ValueOf(const Entry& entry) const noexcept {
        return {syntax_.operands.data() + entry.firstOperand,
                syntax_.operands.data() + entry.operandsEnd};
    }

    /// Every operand of an entry, those in forms included, in the order of the file.
    struct OperandList {
        const Operand* first;
        const Operand* last;
        const Operand* begin() const noexcept { return first; }
        const Operand* end() const noexcept { return last; }
    };
    OperandList OperandsOf(const Entry& entry) const noexcept {
        return {syntax_.operands.data() + entry.firstOperand,
                syntax_.operands.data() + entry.operandsEnd};
    }

    /// Where the name stands: of a parameter, or of that of a plural form, without its "$"; of a
    /// reference all of it. Empty for a text, and for a plural form that a mistake left without one.
    Range NameRange(const Operand& operand) const noexcept;

    /// The name as it is written.
    std::string_view Name(const Operand& operand) const noexcept {
        return Bytes(NameRange(operand));
    }

    /// What a string says: without quotes, escapes replaced. UTF-8; ill-formed parts stay as they are.
    std::string Text(const Operand& string) const;

private:
    std::string bytes_;
    Encoding encoding_;
    LineTable lines_;
    Syntax syntax_;
};

}  // namespace lm_source
