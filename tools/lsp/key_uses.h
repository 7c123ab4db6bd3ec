// Where a key stands and who refers to it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "lsp/Json.h"
#include "lsp/Target.h"

namespace lm_lsp {

/// A key of a scope, in all cultures and both trees.
struct KeyName {
    std::string scope;
    std::string key;         // as it is written at the place that was asked for
    lm_source::Range range;  // there
};

/// The key that stands at a place of a file of a tree, or that the reference there leads to.
std::optional<KeyName> KeyAt(const Target& target, std::uint32_t offset);

/// The text that a reference stands for, or, at a key, the reference culture's text of it.
Json DefinitionAt(const Target& target, std::uint32_t offset);

/// All references to a key, and the places where it stands if they are wanted.
Json ReferencesAt(const Target& target, std::uint32_t offset, bool withKeys);

/// The range that a new name would take the place of; null where no key is.
Json RenamePlaceAt(const Target& target, std::uint32_t offset);

/// The changes that give the key at a place another name, in the lock file, too.
/// @throws RequestError where no key is, std::exception with the reason when it must not be done.
Json RenameAt(const Target& target, std::uint32_t offset, const std::string& name);

}  // namespace lm_lsp
