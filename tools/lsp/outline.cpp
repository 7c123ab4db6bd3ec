#include "lsp/outline.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "lsp/places.h"
#include "source/comments.h"
#include "tree/ascii_case.h"

namespace lm_lsp {

using lm_source::Document;
using lm_source::Entry;

namespace {

constexpr int kConstant = 14;            // a kind of symbol
constexpr std::size_t kMostFound = 500;  // in a workspace

Json SymbolOf(const Document& document, const Entry& entry, const std::string& uri,
              const std::string& container) {
    const lm_source::Range range = {entry.key.begin, std::max(entry.key.end, entry.end)};
    return {{"name", document.Key(entry)},
            {"kind", kConstant},
            {"containerName", container},
            {"location", {{"uri", uri}, {"range", RangeOf(document, range)}}}};
}

std::string LabelOf(const Target& target) {
    return target.InTree() != nullptr ? target.TreeFile().path : std::string();
}

}  // namespace

Json DocumentSymbols(const Target& target) {
    Json symbols = Json::array();
    for (const Entry& entry : target.Document().Entries()) {
        symbols.push_back(SymbolOf(target.Document(), entry, target.Uri(), LabelOf(target)));
    }
    return symbols;
}

Json WorkspaceSymbols(const Workspace& workspace, const std::string& query) {
    const std::string wanted = lm_tree::LowerAscii(query);
    Json symbols = Json::array();
    for (const TreePlace& place : workspace.Trees()) {
        const Snapshot snapshot = workspace.Look(place);
        for (const lm_tree::FileId file : snapshot.Texts()) {
            const Document* const document = snapshot.Get(file);
            if (document == nullptr) {
                continue;
            }
            const std::string uri = workspace.UriOf(snapshot.GetTree().FullPath(file));
            for (const Entry& entry : document->Entries()) {
                if (lm_tree::LowerAscii(document->Key(entry)).find(wanted) == std::string::npos) {
                    continue;
                }
                if (symbols.size() == kMostFound) {
                    return symbols;
                }
                symbols.push_back(
                    SymbolOf(*document, entry, uri, snapshot.GetTree().Files()[file].path));
            }
        }
    }
    return symbols;
}

Json FoldingRanges(const Target& target) {
    const Document& document = target.Document();
    Json folds = Json::array();
    const auto add = [&](std::uint32_t first, std::uint32_t last, const char* kind) {
        if (first < last) {  // both are 0 before the first comment
            folds.push_back({{"startLine", first - 1}, {"endLine", last - 1}, {"kind", kind}});
        }
    };
    for (const Entry& entry : document.Entries()) {
        add(document.PlaceOf(entry.key.begin).line,
            document.PlaceOf(std::max(entry.key.end, entry.end)).line, "region");
    }
    std::uint32_t first = 0;
    std::uint32_t last = 0;
    for (const lm_source::Comment& comment : CommentsOf(document)) {
        if (!comment.isOnOwnLine) {
            continue;
        }
        const std::uint32_t line = document.PlaceOf(comment.range.begin).line;
        if (first == 0 || line != last + 1) {
            add(first, last, "comment");
            first = line;
        }
        last = line;
    }
    add(first, last, "comment");
    return folds;
}

}  // namespace lm_lsp
