// A localisation file that is being judged.
#pragma once

#include <string>
#include <utility>

#include "source/Document.h"
#include "tree/Tree.h"

namespace lm_check {

struct TextFile {
    TextFile(const lm_tree::Tree& tree, lm_tree::FileId fileId)
        : id(fileId), file(tree.Files()[fileId]), document(tree.Read(fileId)) {}

    /// Whether parts of it are not known because of mistakes. Duplicates hide nothing.
    bool HasGaps() const {
        if (document.GetEncoding().isUtf16) {
            return true;
        }
        for (const lm_source::Mistake& mistake : document.Mistakes()) {
            if (mistake.kind != lm_source::MistakeKind::DuplicateKey) {
                return true;
            }
        }
        return false;
    }

    lm_tree::FileId id;
    const lm_tree::TreeFile& file;
    lm_source::Document document;
};

}  // namespace lm_check
