#include "lsp/Target.h"

#include "lsp/RequestError.h"
#include "lsp/places.h"
#include "lsp/uri.h"

namespace lm_lsp {

Target::Target(const Workspace& workspace, const Json& params)
    : workspace_(workspace), uri_(params.at("textDocument").at("uri").get<std::string>()) {
    const auto path = PathOfUri(uri_);
    if (const auto tree = path ? workspace.TreeOf(*path) : std::nullopt) {
        snapshot_.emplace(workspace.Look(*tree));
        if (const auto file = snapshot_->FileAt(*path)) {
            file_ = *file;
            if (TreeFile().kind == lm_tree::FileKind::Texts) {
                document_ = snapshot_->Get(file);
            }
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

std::uint32_t Target::OffsetOf(const Json& position) const {
    return document_->Lines().OffsetOf(document_->Bytes(), ReadPlace(position));
}

}  // namespace lm_lsp
