// The comments of a file, and which entry each belongs to.
#pragma once

#include <cstddef>
#include <vector>

#include "source/Document.h"

namespace lm_source {

/// From the ";" to before the end of the line.
struct Comment {
    Range range;
    bool isOnOwnLine = false;  // else it stands after a value
};

/// All comments, in the order of the file; those in skipped parts are not known.
std::vector<Comment> CommentsOf(const Document& document);

/// The comments above an entry: lines of their own, the last of them directly above the line that
/// the entry begins, and no empty line between them.
/// @param entry  its number.
std::vector<Range> CommentsAbove(const Document& document, std::size_t entry);

/// The comment after an entry, on the line where it ends and before the next; empty when there is none.
Range CommentAfter(const Document& document, std::size_t entry);

}  // namespace lm_source
