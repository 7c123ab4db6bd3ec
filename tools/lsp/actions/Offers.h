// The code actions that an editor is offered.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "lsp/Json.h"
#include "lsp/Target.h"
#include "source/edits.h"

namespace lm_lsp {

/// Each is whole: the editor makes its changes, and nothing else has to be done. What is offered for several
/// diagnostics is offered once.
class Offers {
public:
    /// @param target  whose file is changed; must outlive this.
    explicit Offers(const Target& target) : target_(target) {}

    /// @param diagnostics  that it mends: one, or an array of them.
    void Add(const std::string& title, Json diagnostics, const std::vector<lm_source::Edit>& edits);

    /// The same in any file.
    void AddIn(const std::string& uri, const std::string& title, Json diagnostics, Json edits);

    Json Take() { return std::move(actions_); }

private:
    const Target& target_;
    Json actions_ = Json::array();
    std::map<std::string, std::size_t> known_;  // their numbers by title and edits
};

}  // namespace lm_lsp
