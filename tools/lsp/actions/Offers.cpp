#include "lsp/actions/Offers.h"

#include <utility>

#include "lsp/places.h"

namespace lm_lsp {

void Offers::Add(const std::string& title, Json diagnostics,
                 const std::vector<lm_source::Edit>& edits) {
    Json changes = Json::array();
    for (const lm_source::Edit& edit : edits) {
        changes.push_back(EditOf(target_.Document(), edit.range, edit.replacement));
    }
    AddIn(target_.Uri(), title, std::move(diagnostics), std::move(changes));
}

void Offers::AddIn(const std::string& uri, const std::string& title, Json diagnostics, Json edits) {
    if (!diagnostics.is_array()) {
        diagnostics = Json::array({std::move(diagnostics)});
    }
    const std::string what = title + edits.dump(-1, ' ', false, Json::error_handler_t::replace);
    const auto [known, isNew] = known_.emplace(what, actions_.size());
    if (!isNew) {
        for (Json& diagnostic : diagnostics) {
            actions_[known->second]["diagnostics"].push_back(std::move(diagnostic));
        }
        return;
    }
    actions_.push_back({{"title", title},
                        {"kind", "quickfix"},
                        {"diagnostics", std::move(diagnostics)},
                        {"edit", {{"changes", {{uri, std::move(edits)}}}}}});
}

}  // namespace lm_lsp
