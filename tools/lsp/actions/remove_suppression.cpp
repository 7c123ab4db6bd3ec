#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "lsp/actions/actions.h"
#include "lsp/members.h"
#include "source/comments.h"

namespace lm_lsp {

using lm_source::Document;
using lm_source::Range;

namespace {

constexpr std::string_view kBlanks = " \t";

/// A range with the blanks on its left and right.
Range WithBlanks(const Document& document, Range range) {
    const std::string_view bytes = document.Bytes();
    while (range.begin != 0 && kBlanks.find(bytes[range.begin - 1]) != std::string_view::npos) {
        --range.begin;
    }
    while (range.end != bytes.size() && kBlanks.find(bytes[range.end]) != std::string_view::npos) {
        ++range.end;
    }
    return range;
}

/// A comment with the blanks before it, and with its line if it has one of its own.
Range WholeOf(const Document& document, const lm_source::Comment& comment) {
    const auto& lines = document.Lines();
    const std::uint32_t begin =
        WithBlanks(document, {comment.range.begin, comment.range.begin}).begin;
    const std::uint32_t line = lines.LineOf(comment.range.begin);
    const bool hasNext = comment.isOnOwnLine && line < lines.Count();
    return {begin, hasNext ? lines.RangeOf(document.Bytes(), line + 1).begin : comment.range.end};
}

void Remove(const Document& document, Range name, const Json& diagnostic, Offers& offers) {
    const auto comments = CommentsOf(document);
    const auto found =
        std::find_if(comments.begin(), comments.end(), [name](const lm_source::Comment& comment) {
            return comment.range.begin < name.begin && name.end <= comment.range.end;
        });
    const bool isThere =
        found != comments.end() &&
        document.Bytes({found->range.begin, name.begin}).find("localize: ignore") !=
            std::string_view::npos;
    if (!isThere) {
        return;  // the text has changed since
    }
    const Range around = WithBlanks(document, name);
    const std::string_view before = document.Bytes({found->range.begin, around.begin});
    const std::string_view after = document.Bytes({around.end, found->range.end});
    const std::string title = "Remove " + std::string(document.Bytes(name)) + " from the comment";
    if (!before.empty() && before.back() == ',') {
        offers.Add(title, diagnostic, {{{around.begin - 1, name.end}, ""}});
    } else if (!after.empty() && after.front() == ',') {
        const Range comma = WithBlanks(document, {around.end + 1, around.end + 1});
        offers.Add(title, diagnostic, {{{name.begin, comma.end}, ""}});
    } else {
        offers.Add("Remove the comment", diagnostic, {{WholeOf(document, *found), ""}});
    }
}

}  // namespace

void RemoveSuppression(const Scene& scene, Offers& offers) {
    constexpr auto kRule = lm_check::Rule::UnusedSuppression;
    std::vector<Json> diagnostics = scene.Told(kRule);
    for (const lm_check::Finding* const finding : scene.Here(kRule)) {
        const Json diagnostic = scene.DiagnosticOf(*finding);
        const bool isTold = std::any_of(
            diagnostics.begin(), diagnostics.end(),
            [&](const Json& told) { return Find(told, "range") == Find(diagnostic, "range"); });
        if (!isTold) {
            diagnostics.push_back(diagnostic);
        }
    }
    for (const Json& diagnostic : diagnostics) {
        Remove(scene.Document(), scene.GetTarget().RangeOf(diagnostic, "range"), diagnostic,
               offers);
    }
}

}  // namespace lm_lsp
