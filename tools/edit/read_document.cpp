#include "edit/read_document.h"

#include <stdexcept>
#include <string>

#include "source/mistake_text.h"
#include "tree/path_text.h"

namespace lm_edit {

lm_source::Document ReadDocument(const lm_tree::Tree& tree, lm_tree::FileId file) {
    const std::string path = lm_tree::Utf8Of(tree.FullPath(file));
    std::string bytes;
    try {
        bytes = tree.Read(file);
    } catch (const std::runtime_error& unreadable) {
        throw std::runtime_error('\'' + path + "' " + unreadable.what());
    }
    lm_source::Document document(std::move(bytes));
    if (document.GetEncoding().isUtf16) {
        throw std::runtime_error('\'' + path + "' is UTF-16: save it as UTF-8");
    }
    if (!document.Mistakes().empty()) {
        throw std::runtime_error(TextOf(document, document.Mistakes().front(), path));
    }
    return document;
}

}  // namespace lm_edit
