// Which of translators' files belongs to which scope.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange_commands.h"
#include "tree/Tree.h"

namespace localize {

struct ScopeFiles {
    std::string scope;  // empty for all
    std::string path;

    struct File {
        std::string scope;
        std::string path;
    };

    /// Without a scope those of the reference. What a less specific culture answers is that one's: it
    /// is left out, and said so.
    /// @param culture  empty for a template.
    std::vector<File> Files(const lm_tree::Tree& tree,
                            const std::optional<lm_tree::CultureName>& culture,
                            const lm_tree::CultureName& reference,
                            const ExchangeProgram& program) const;

    /// Adds the options that fill it.
    void AddTo(CLI::App& command, const lm_exchange::Format& format);
};

}  // namespace localize
