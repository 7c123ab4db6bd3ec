// The code actions that an editor is offered.
#pragma once

#include <string>
#include <vector>

#include "lsp/Json.h"
#include "lsp/Target.h"
#include "source/edits.h"

namespace lm_lsp {

/// Each is whole: the editor makes its changes, and nothing else has to be done. What is offered for
/// several diagnostics is offered once.
class Offers {
public:
    /// @param target  whose file is changed; must outlive this.
    explicit Offers(const Target& target) : target_(target) {}

    /// @param diagnostic  that it mends.
    void Add(const std::string& title, const Json& diagnostic,
             const std::vector<lm_source::Edit>& edits);

    /// The same in any file.
    void AddIn(const std::string& uri, const std::string& title, const Json& diagnostic,
               Json edits);

    Json Take() { return std::move(actions_); }

private:
    const Target& target_;
    Json actions_ = Json::array();
};

}  // namespace lm_lsp
