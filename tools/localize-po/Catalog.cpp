#include "Catalog.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <utility>

#include "Complaints.h"
#include "TemporaryFile.h"
#include "read_text.h"
#include "require_plain_po.h"

namespace localize_po {

namespace {

constexpr const char* kFormat = "python-brace-format";

/// Lines that a text was parted into begin so.
bool IsPiece(std::string_view line) {
    return line.substr(0, 1) == "\"";
}

std::string_view LastLine(std::string_view bytes) {
    const std::size_t last = bytes.find_last_not_of("\r\n");
    bytes = bytes.substr(0, last == std::string_view::npos ? 0 : last + 1);
    return bytes.substr(bytes.find_last_of('\n') + 1);
}

std::string TextOf(const char* text) {
    return text != nullptr ? text : "";
}

std::vector<std::string> LinesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::string LineText(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + '\n';
    }
    return text;
}

CatalogEntry EntryOf(po_message_t message) {
    CatalogEntry entry;
    if (const char* const context = po_message_msgctxt(message)) {
        entry.context = context;
    }
    entry.id = TextOf(po_message_msgid(message));
    if (const char* const plural = po_message_msgid_plural(message)) {
        entry.pluralId = plural;
        int form = 0;
        while (const char* const text = po_message_msgstr_plural(message, form++)) {
            entry.translations.emplace_back(text);
        }
    } else {
        entry.translations.push_back(TextOf(po_message_msgstr(message)));
    }
    entry.isFuzzy = po_message_is_fuzzy(message) != 0;
    entry.isObsolete = po_message_is_obsolete(message) != 0;
    static constexpr std::array<const char*, 6> kPrintfs = {
        "c-format", "objc-format", "php-format", "python-format", "perl-format", "lua-format"};
    entry.isPrintf = std::any_of(kPrintfs.begin(), kPrintfs.end(), [message](const char* format) {
        return po_message_is_format(message, format) != 0;
    });
    entry.comments = LinesOf(TextOf(po_message_extracted_comments(message)));
    return entry;
}

po_message_t MessageOf(const CatalogEntry& entry) {
    po_message_t message = po_message_create();
    po_message_set_msgctxt(message, entry.context ? entry.context->c_str() : nullptr);
    po_message_set_msgid(message, entry.id.c_str());
    if (entry.pluralId) {
        po_message_set_msgid_plural(message, entry.pluralId->c_str());
        int form = 0;
        for (const std::string& text : entry.translations) {
            po_message_set_msgstr_plural(message, form++, text.c_str());
        }
    } else {
        po_message_set_msgstr(message, entry.translations.front().c_str());
    }
    po_message_set_fuzzy(message, entry.isFuzzy ? 1 : 0);
    po_message_set_format(message, kFormat, 1);
    if (!entry.file.empty()) {
        po_message_add_filepos(message, entry.file.c_str(), static_cast<std::size_t>(-1));
    }
    return message;
}

bool IsTranslated(const CatalogEntry& entry) {
    return std::any_of(entry.translations.begin(), entry.translations.end(),
                       [](const std::string& text) { return !text.empty(); });
}

/// What `msgfmt` compares in two texts: names in braces, and line breaks at the start and the end.
std::vector<std::string_view> FormatOf(std::string_view text) {
    std::vector<std::string_view> format;
    for (std::size_t at = 0; (at = text.find('{', at)) != std::string_view::npos;) {
        const std::size_t close = std::min(text.find('}', at), text.size());
        if (text.substr(at, 2) != "{{") {
            format.push_back(text.substr(at, close - at));
            at = close;
        } else {
            at += 2;
        }
    }
    std::sort(format.begin(), format.end());
    format.push_back(text.substr(0, text.substr(0, 1) == "\n" ? 1 : 0));
    format.push_back(text.substr(text.size() - (!text.empty() && text.back() == '\n' ? 1 : 0)));
    return format;
}

/// Whether all texts of a message are alike, so that nobody complains. To ask takes much longer.
bool IsAlike(const CatalogEntry& entry) {
    const auto format = FormatOf(entry.id);
    return (!entry.pluralId || FormatOf(*entry.pluralId) == format) &&
           std::all_of(entry.translations.begin(), entry.translations.end(),
                       [&format](const std::string& text) { return FormatOf(text) == format; });
}

/// What `msgfmt -c` says of a message; empty when it is content.
std::string ComplaintOf(po_message_t message, po_message_iterator_t place) {
    const Complaints complaints;
    po_message_check_all(message, place, Complaints::Handler());
    return complaints.All().empty() ? std::string() : complaints.All().front();
}

}  // namespace

std::vector<CatalogEntry> Catalog::EntriesOf(po_file* file) {
    std::vector<CatalogEntry> entries;
    const Place messages(po_message_iterator(file, nullptr));
    while (po_message_t message = po_next_message(messages.get())) {
        const bool isHeader =
            po_message_msgctxt(message) == nullptr && *po_message_msgid(message) == '\0';
        if (!isHeader) {
            entries.push_back(EntryOf(message));
        }
    }
    return entries;
}

Catalog::Catalog(const std::string& header)
    : file_(po_file_create()), end_(po_message_iterator(file_.get(), nullptr)) {
    po_message_t message = po_message_create();
    po_message_set_msgid(message, "");
    po_message_set_msgstr(message, header.c_str());
    po_message_insert(end_.get(), message);
}

Catalog Catalog::Read(const std::string& path, const std::string& bytes) {
    RequirePlainPo(path, bytes);
    const TemporaryFile file(bytes);  // the library reads files alone
    const Complaints complaints(path);
    const std::unique_ptr<po_file, Close> read(
        po_file_read(file.Path().c_str(), Complaints::Handler()));
    if (!read) {
        throw std::runtime_error("cannot read '" + path +
                                 "': " + std::generic_category().message(errno));
    }
    if (!complaints.All().empty()) {
        throw std::runtime_error(complaints.All().front());
    }
    Catalog catalog;
    catalog.header_ = TextOf(po_file_domain_header(read.get(), nullptr));
    catalog.entries_ = EntriesOf(read.get());
    catalog.endsWithLine_ = !bytes.empty() && bytes.back() == '\n';
    catalog.endsWithPiece_ = IsPiece(LastLine(bytes));
    const std::string type = catalog.HeaderField("Content-Type");
    if (type.empty()) {
        throw std::runtime_error("'" + path +
                                 "' has no header with a 'Content-Type': it is no PO " +
                                 "file, or not whole");
    }
    std::string charset = type.substr(std::min(type.find("charset="), type.size()));
    std::transform(charset.begin(), charset.end(), charset.begin(), [](char unit) {
        return unit >= 'A' && unit <= 'Z' ? static_cast<char>(unit - 'A' + 'a') : unit;
    });
    if (charset != "charset=utf-8" && charset != "charset=charset") {  // as templates have it
        throw std::runtime_error("'" + path + "': the header says '" + type +
                                 "': convert the file with 'msgconv -t UTF-8'");
    }
    return catalog;
}

std::string Catalog::HeaderField(const char* name) const {
    char* const field = po_header_field(header_.c_str(), name);
    std::string text = TextOf(field);
    std::free(field);
    return text;
}

void Catalog::Add(const CatalogEntry& entry) {
    po_message_t message = MessageOf(entry);
    std::vector<std::string> comments = entry.comments;
    const std::string complaint = IsTranslated(entry) && !entry.isFuzzy && !IsAlike(entry)
                                      ? ComplaintOf(message, end_.get())
                                      : std::string();
    if (!complaint.empty()) {
        po_message_set_fuzzy(message, 1);
        std::vector<std::string> lines = LinesOf(complaint);
        lines.front().insert(0, "localize: fuzzy because: ");
        comments.insert(comments.end(), lines.begin(), lines.end());
    }
    po_message_set_extracted_comments(message, LineText(comments).c_str());
    po_message_insert(end_.get(), message);
}

std::string Catalog::Bytes() const {
    const TemporaryFile file;
    const Complaints complaints;
    po_file_write(file_.get(), file.Path().c_str(), Complaints::Handler());
    if (!complaints.All().empty()) {
        throw std::runtime_error(complaints.All().front());
    }
    return localize::ReadBytes(file.Path());
}

}  // namespace localize_po
