#include "lsp/actions/Offers.h"

#include <algorithm>
#include <utility>

#include "lsp/places.h"

namespace lm_lsp {

void Offers::Add(const std::string& title, const Json& diagnostic,
                 const std::vector<lm_source::Edit>& edits) {
    Json changes = Json::array();
    for (const lm_source::Edit& edit : edits) {
        changes.push_back(EditOf(target_.Document(), edit.range, edit.replacement));
    }
    AddIn(target_.Uri(), title, diagnostic, std::move(changes));
}

void Offers::AddIn(const std::string& uri, const std::string& title, const Json& diagnostic,
                   Json edits) {
    Json change = {{"changes", {{uri, std::move(edits)}}}};
    for (Json& action : actions_) {
        if (action["title"] == title && action["edit"] == change) {
            Json& known = action["diagnostics"];
            if (std::find(known.begin(), known.end(), diagnostic) == known.end()) {
                known.push_back(diagnostic);
            }
            return;
        }
    }
    actions_.push_back({{"title", title},
                        {"kind", "quickfix"},
                        {"diagnostics", Json::array({diagnostic})},
                        {"edit", std::move(change)}});
}

}  // namespace lm_lsp
