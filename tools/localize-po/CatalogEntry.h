// A message of a catalog.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace localize_po {

/// Texts are UTF-8, without zeros.
struct CatalogEntry {
    std::optional<std::string> context;
    std::string id;
    std::optional<std::string> pluralId;
    std::vector<std::string> translations;  // one, or each form; empty texts where there is none
    bool isFuzzy = false;
    bool isObsolete = false;
    bool isPrintf = false;  // marked as a format of C, or of a language that has it from there
    std::vector<std::string> comments;  // extracted ones, each a line
    std::string file;                   // that it stands in; none when empty
};

}  // namespace localize_po
