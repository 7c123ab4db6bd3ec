#include "lsp/key_uses.h"

#include "edit/rename.h"
#include "lsp/RequestError.h"
#include "lsp/Spot.h"
#include "lsp/places.h"

namespace lm_lsp {

using lm_source::Document;
using lm_source::Entry;
using lm_source::Operand;
using lm_source::OperandKind;
using lm_tree::FileId;

namespace {

const std::string& ScopeOf(const Snapshot& snapshot, FileId file) {
    return snapshot.GetTree().Files()[file].scope;
}

Json LocationOf(const Target& target, const Document& document, FileId file,
                lm_source::Range range) {
    return {{"uri", target.UriOf(file)}, {"range", RangeOf(document, range)}};
}

/// Whether a reference in a file leads to the key of the scope.
bool Leads(const Snapshot& snapshot, FileId file, const Document& document, const KeyName& key) {
    const bool isThere = document.Find(key.key) != nullptr;
    const std::string& scope = ScopeOf(snapshot, file);
    return scope == key.scope ? isThere || scope == lm_tree::CommonScope()
                              : key.scope == lm_tree::CommonScope() && !isThere;
}

}  // namespace

std::optional<KeyName> KeyAt(const Target& target, std::uint32_t offset) {
    const Document& document = target.Document();
    const Spot spot = SpotAt(document, offset);
    const bool isReference = spot.operand != nullptr && spot.operand->kind == OperandKind::KeyRef;
    if (target.InTree() == nullptr || (!spot.isKey && !isReference)) {
        return std::nullopt;
    }
    const std::string key(document.Bytes(spot.range));
    const bool isOwn = spot.isKey || document.Find(key) != nullptr;
    return KeyName{isOwn ? target.TreeFile().scope : lm_tree::CommonScope(), key, spot.range};
}

Json DefinitionAt(const Target& target, std::uint32_t offset) {
    const auto key = KeyAt(target, offset);
    if (!key) {
        return {};
    }
    const Snapshot& snapshot = *target.InTree();
    const bool isOwn = key->scope == target.TreeFile().scope;
    std::vector<FileId> files;
    if (!isOwn) {
        files = snapshot.CommonOf(target.File());
    } else if (SpotAt(target.Document(), offset).isKey) {
        if (const auto reference = snapshot.GetTree().Answer(snapshot.Reference(), key->scope)) {
            files.push_back(*reference);
        }
    } else {
        files.push_back(target.File());
    }
    Json locations = Json::array();
    for (const FileId file : files) {
        const Document* const document = snapshot.Get(file);
        const Entry* const entry = document != nullptr ? document->Find(key->key) : nullptr;
        if (entry != nullptr) {
            locations.push_back(LocationOf(target, *document, file, entry->key));
        }
    }
    return locations;
}

Json ReferencesAt(const Target& target, std::uint32_t offset, bool withKeys) {
    const auto key = KeyAt(target, offset);
    if (!key) {
        return {};
    }
    const Snapshot& snapshot = *target.InTree();
    Json locations = Json::array();
    for (const FileId file : snapshot.Texts()) {
        const Document* const document = snapshot.Get(file);
        if (document == nullptr) {
            continue;
        }
        const std::string lower = document->LowerKey(key->key);
        const bool leads = Leads(snapshot, file, *document, *key);
        const bool isOfScope = ScopeOf(snapshot, file) == key->scope;
        for (const Entry& entry : document->Entries()) {
            if (withKeys && isOfScope && document->LowerKey(entry) == lower) {
                locations.push_back(LocationOf(target, *document, file, entry.key));
            }
            for (const Operand& operand : document->OperandsOf(entry)) {
                if (leads && operand.kind == OperandKind::KeyRef &&
                    document->LowerKey(document->Name(operand)) == lower) {
                    locations.push_back(LocationOf(target, *document, file, operand.range));
                }
            }
        }
    }
    return locations;
}

Json RenamePlaceAt(const Target& target, std::uint32_t offset) {
    const auto key = KeyAt(target, offset);
    return key ? Json{{"range", RangeOf(target.Document(), key->range)}, {"placeholder", key->key}}
               : Json();
}

Json RenameAt(const Target& target, std::uint32_t offset, const std::string& name) {
    const auto key = KeyAt(target, offset);
    if (!key) {
        throw RequestError(ErrorCode::RequestFailed, "no key stands here");
    }
    const Snapshot& snapshot = *target.InTree();
    const std::string lockText = snapshot.LockText();
    lm_check::TranslationLock lock(lockText);
    const auto changes = lm_edit::Rename(snapshot.GetTree(), {key->scope, key->key, name},
                                         snapshot.Reference(), lock);
    Json edits = Json::object();
    for (const lm_edit::FileChange& change : changes) {
        const Document* const before = snapshot.Get(snapshot.FileAt(change.path));
        edits[target.GetWorkspace().UriOf(change.path)] =
            EditsBetween(before->Bytes(), change.bytes);
    }
    if (!lock.empty() && lock.Text() != lockText) {
        edits[target.GetWorkspace().UriOf(snapshot.LockPath())] =
            EditsBetween(lockText, lock.Text());
    }
    return {{"changes", std::move(edits)}};
}

}  // namespace lm_lsp
