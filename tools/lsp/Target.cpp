#include "lsp/Target.h"

#include <algorithm>

#include "lsp/RequestError.h"
#include "lsp/members.h"
#include "lsp/places.h"
#include "lsp/uri.h"

namespace lm_lsp {

Target::Target(const Workspace& workspace, const Json& params)
    : workspace_(workspace), uri_(StringAt(params, "textDocument.uri")) {
    const auto path = PathOfUri(uri_);
    if (const auto tree = path ? workspace.TreeOf(*path) : std::nullopt) {
        snapshot_.emplace(workspace.Look(*tree));
        if (const auto file = snapshot_->FileAt(*path)) {
            file_ = *file;
            if (TreeFile().kind != lm_tree::FileKind::Texts) {
                return;
            }
            document_ = snapshot_->Get(file);
        } else {
            snapshot_.reset();
        }
    }
    const OpenText* const text = workspace.Find(uri_);
    if (document_ == nullptr && !snapshot_ && text != nullptr) {
        alone_ = std::make_unique<lm_source::Document>(text->Bytes());
        document_ = alone_.get();
    }
    if (document_ == nullptr) {
        throw RequestError(ErrorCode::RequestFailed, "no file with texts: " + uri_);
    }
}

std::uint32_t Target::OffsetOf(const Json& value, const std::string& path) const {
    return document_->Lines().OffsetOf(document_->Bytes(), ReadPlace(value, path));
}

lm_source::Range Target::RangeOf(const Json& value, const std::string& path) const {
    const auto [begin, end] =
        std::minmax({OffsetOf(value, path + ".start"), OffsetOf(value, path + ".end")});
    return {begin, end};
}

}  // namespace lm_lsp
