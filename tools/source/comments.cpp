#include "source/comments.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "source/Scanner.h"

namespace lm_source {

namespace {

/// Adds the comments that stand at a place between entries, up to anything else. A part that a mistake
/// skips may look like one; it ends where an entry begins, so that no comment follows it.
void AddComments(const Document& document, std::uint32_t at, std::vector<Comment>& comments) {
    const Scanner scanner(document.Bytes(), document.Content());
    const auto skipped = std::partition_point(document.Skipped().begin(), document.Skipped().end(),
                                              [at](Range range) { return range.end <= at; });
    bool isOnOwnLine = at == document.Content().begin;
    while (true) {
        const std::uint32_t begin = scanner.SkipSpace(at);
        if (scanner.At(begin) != ';' ||
            (skipped != document.Skipped().end() && skipped->begin <= begin)) {
            return;
        }
        isOnOwnLine = isOnOwnLine || scanner.HasLineBreak({at, begin});
        at = scanner.LineEnd(begin);
        comments.push_back({{begin, at}, isOnOwnLine});
    }
}

/// Where what stands before an entry begins.
std::uint32_t EndBefore(const Document& document, std::size_t entry) {
    return entry == 0 ? document.Content().begin : document.Entries()[entry - 1].end;
}

std::vector<Comment> CommentsBetween(const Document& document, std::size_t entry) {
    std::vector<Comment> comments;
    const std::uint32_t begin = EndBefore(document, entry);
    const std::uint32_t end = entry < document.Entries().size()
                                  ? document.Entries()[entry].key.begin
                                  : document.Content().end;
    if (document.Bytes({begin, end}).find(';') != std::string_view::npos) {  // seldom
        AddComments(document, begin, comments);
    }
    return comments;
}

}  // namespace

std::vector<Comment> CommentsOf(const Document& document) {
    std::vector<Comment> comments;
    for (std::size_t entry = 0; entry <= document.Entries().size(); ++entry) {
        AddComments(document, EndBefore(document, entry), comments);
    }
    return comments;
}

std::vector<Range> CommentsAbove(const Document& document, std::size_t entry) {
    std::vector<Range> above;
    const std::vector<Comment> comments = CommentsBetween(document, entry);
    std::uint32_t line = document.Lines().LineOf(document.Entries()[entry].key.begin);
    for (auto comment = comments.rbegin(); comment != comments.rend(); ++comment) {
        if (!comment->isOnOwnLine || document.Lines().LineOf(comment->range.begin) + 1 != line) {
            break;
        }
        above.push_back(comment->range);
        --line;
    }
    std::reverse(above.begin(), above.end());
    return above;
}

Range CommentAfter(const Document& document, std::size_t entry) {
    const std::vector<Comment> comments = CommentsBetween(document, entry + 1);
    const std::uint32_t end = document.Entries()[entry].end;
    return comments.empty() || comments[0].isOnOwnLine ? Range{end, end} : comments[0].range;
}

}  // namespace lm_source
