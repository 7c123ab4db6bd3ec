#include "source/untranslated.h"

#include <algorithm>
#include <string_view>

#include "source/comments.h"

namespace lm_source {

namespace {

std::string_view WithoutSign(std::string_view comment) {
    comment.remove_prefix(std::min(comment.find_first_not_of("; \t"), comment.size()));
    return comment;
}

}  // namespace

std::optional<Range> UntranslatedMark(const Document& document, std::size_t entry) {
    static const std::string_view mark = WithoutSign(kUntranslatedComment);
    for (const Range comment : CommentsAbove(document, entry)) {
        if (WithoutSign(document.Bytes(comment)).substr(0, mark.size()) == mark) {
            return comment;
        }
    }
    return std::nullopt;
}

}  // namespace lm_source
