// A PO file.
#pragma once

#include <gettext-po.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "CatalogEntry.h"

namespace localize_po {

/// As gettext's own library reads, checks and writes it. Not for several threads at a time.
class Catalog {
public:
    /// An empty one.
    /// @param header  lines "Field: value".
    explicit Catalog(const std::string& header);

    /// @param path  "-" for standard input.
    /// @throws std::runtime_error when the file cannot be read, or is no PO file in UTF-8.
    static Catalog Read(const std::string& path, const std::string& bytes);

    /// Whether the last line is one; what was cut off may end anywhere.
    bool EndsWithLine() const noexcept { return endsWithLine_; }

    /// Whether the last line is a further piece of a text that began above.
    bool EndsWithPiece() const noexcept { return endsWithPiece_; }

    /// A field of the header that was read; empty when it is not there.
    std::string HeaderField(const char* name) const;

    /// What was read, but for the header.
    const std::vector<CatalogEntry>& Entries() const noexcept { return entries_; }
    std::vector<CatalogEntry> TakeEntries() && { return std::move(entries_); }

    /// Adds a message at the end. Its texts are Python's brace format, which has names in braces, as
    /// ours do. Where `msgfmt -c` would refuse the translation, it is made fuzzy, with the reason as a
    /// comment.
    void Add(const CatalogEntry& entry);

    /// The file.
    std::string Bytes() const;

private:
    struct Close {
        void operator()(po_file* file) const { po_file_free(file); }
        void operator()(po_message_iterator_t place) const { po_message_iterator_free(place); }
    };

    using Place = std::unique_ptr<std::remove_pointer_t<po_message_iterator_t>, Close>;

    Catalog() = default;
    static std::vector<CatalogEntry> EntriesOf(po_file* file);

    std::string header_;
    std::vector<CatalogEntry> entries_;
    bool endsWithLine_ = true;
    bool endsWithPiece_ = false;
    std::unique_ptr<po_file, Close> file_;  // what is to be written
    Place end_;                             // behind what was added
};

}  // namespace localize_po
