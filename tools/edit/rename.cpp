#include "edit/rename.h"

#include <algorithm>
#include <map>
#include <memory>
#include <stdexcept>
#include <utility>

#include "check/ReferenceTexts.h"
#include "edit/read_document.h"
#include "source/Document.h"
#include "source/edits.h"
#include "tree/path_text.h"

namespace lm_edit {

using lm_source::Document;
using lm_source::Edit;
using lm_source::Entry;
using lm_source::OperandKind;
using lm_tree::FileId;
using lm_tree::FileKind;

namespace {

class Renaming {
public:
    Renaming(const lm_tree::Tree& tree, const RenamedKey& key)
        : tree_(tree), key_(key), isCommon_(key.scope == lm_tree::CommonScope()) {
        for (FileId file = 0; file < tree.Files().size(); ++file) {
            const lm_tree::TreeFile& found = tree.Files()[file];
            const bool isConcerned =
                isCommon_ || found.scope == key.scope || found.scope == lm_tree::CommonScope();
            if (found.kind == FileKind::Texts && isConcerned) {
                documents_.emplace(file, ReadDocument(tree, file));
            }
        }
    }

    /// @throws std::invalid_argument
    void RequirePossible() const {
        const Document written(key_.after + " = ''");
        if (!written.Mistakes().empty() || written.Entries().size() != 1 ||
            written.Key(written.Entries().front()) != key_.after) {
            throw std::invalid_argument("'" + key_.after +
                                        "' is no key: it begins with a letter or '_' and goes on "
                                        "with letters, digits, '_' and '.'");
        }
        bool isThere = false;
        const bool isOtherKey = key_.before == key_.after ||
                                written.LowerKey(key_.before) != written.LowerKey(key_.after);
        for (const auto& [file, document] : documents_) {
            isThere = isThere || (IsOfScope(file) && Has(file, key_.before));
            if (isOtherKey && Has(file, key_.after)) {
                throw std::invalid_argument(PlaceOf(file, key_.after) + ": there is a key '" +
                                            key_.after + "' already");
            }
            if (isCommon_ && !IsOfScope(file) && Has(file, key_.before)) {
                throw std::invalid_argument(PlaceOf(file, key_.before) +
                                            ": stands before the common '" + key_.before +
                                            "': rename it there first");
            }
        }
        if (!isThere) {
            throw std::invalid_argument("no file of scope '" + key_.scope + "' has a key '" +
                                        key_.before + "'");
        }
        RequireOwnAnswers();
    }

    std::vector<FileChange> Changes() const {
        std::vector<FileChange> changes;
        for (const auto& [file, document] : documents_) {
            if (!IsConcerned(file)) {
                continue;
            }
            const std::vector<Edit> edits = EditsOf(document);
            if (!edits.empty()) {
                changes.push_back(
                    {tree_.FullPath(file), Apply(document.Bytes(), edits), edits.size()});
            }
        }
        return changes;
    }

    /// A file as it will be; null when it stays as it is.
    std::unique_ptr<Document> Changed(FileId file) const {
        const auto found = documents_.find(file);
        if (found == documents_.end() || !IsConcerned(file)) {
            return nullptr;
        }
        return std::make_unique<Document>(Apply(found->second.Bytes(), EditsOf(found->second)));
    }

    bool IsOfScope(FileId file) const { return tree_.Files()[file].scope == key_.scope; }

private:
    bool Has(FileId file, const std::string& key) const {
        return documents_.at(file).Find(key) != nullptr;
    }

    /// Whether a reference in the file reaches the key, or the key stands there.
    bool IsConcerned(FileId file) const {
        return isCommon_ ? !IsOfScope(file) || Has(file, key_.before)
                         : IsOfScope(file) && Has(file, key_.before);
    }

    std::string PlaceOf(FileId file, const std::string& key) const {
        const Document& document = documents_.at(file);
        return lm_tree::Utf8Of(tree_.FullPath(file)) + ':' +
               std::to_string(document.PlaceOf(document.Find(key)->key.begin).line);
    }

    /// A culture that keeps the key of a scope among its common texts would lose it.
    void RequireOwnAnswers() const {
        for (const lm_tree::CultureName& culture : tree_.Cultures()) {
            const auto own = tree_.Answer(culture, key_.scope);
            const auto common = tree_.Answer(culture, lm_tree::CommonScope());
            if (!isCommon_ && own && common && !Has(*own, key_.before) &&
                Has(*common, key_.before)) {
                throw std::invalid_argument(PlaceOf(*common, key_.before) + ": answers '" +
                                            key_.before + "' of scope '" + key_.scope + "' for " +
                                            culture.name + ": copy it to the scope first");
            }
        }
    }

    std::vector<Edit> EditsOf(const Document& document) const {
        const std::string before = document.LowerKey(key_.before);
        std::vector<Edit> edits;
        for (const Entry& entry : document.Entries()) {
            if (document.LowerKey(entry) == before) {
                edits.push_back({entry.key, key_.after});
            }
            for (const lm_source::Operand& operand : document.OperandsOf(entry)) {
                if (operand.kind == OperandKind::KeyRef &&
                    document.LowerKey(document.Name(operand)) == before) {
                    edits.push_back({operand.range, key_.after});
                }
            }
        }
        return edits;
    }

    const lm_tree::Tree& tree_;
    const RenamedKey& key_;
    const bool isCommon_;
    std::map<FileId, Document> documents_;
};

/// The texts of the reference for one scope, before and after.
class LockedTexts {
public:
    LockedTexts(const lm_tree::Tree& tree, const Renaming& renaming,
                const lm_tree::CultureName& reference, const std::string& scope) {
        for (const std::string& source : {scope, lm_tree::CommonScope()}) {
            if (const auto file = tree.Answer(reference, source)) {
                auto before = std::make_unique<Document>(ReadDocument(tree, *file));
                auto after = renaming.Changed(*file);
                sources_.emplace_back(std::move(before), std::move(after));
            }
        }
    }

    /// The hash of a key's text as it will be.
    std::uint64_t HashAfter(std::string_view key, std::uint64_t hash) const {
        for (const auto& [before, after] : sources_) {
            const Entry* const entry = before->Find(key);
            if (entry == nullptr) {
                continue;
            }
            const auto number = static_cast<std::size_t>(entry - before->Entries().data());
            const bool wasFresh = lm_check::HashOf(*before, *entry) == hash;
            return wasFresh && after ? lm_check::HashOf(*after, after->Entries()[number]) : hash;
        }
        return hash;
    }

private:
    std::vector<std::pair<std::unique_ptr<Document>, std::unique_ptr<Document>>> sources_;
};

void Follow(const lm_tree::Tree& tree, const Renaming& renaming, const RenamedKey& key,
            const lm_tree::CultureName& reference, lm_check::TranslationLock& lock) {
    for (FileId file = 0; file < tree.Files().size(); ++file) {
        const lm_tree::TreeFile& found = tree.Files()[file];
        if (found.kind != FileKind::Texts || found.side != lm_tree::Side::Root) {
            continue;
        }
        const std::string source = found.directory + '/' + found.scope;
        const LockedTexts texts(tree, renaming, reference, found.scope);
        const Document document(tree.Read(file));
        const std::string before = document.LowerKey(key.before);
        for (const Entry& entry : document.Entries()) {
            const std::string name = document.LowerKey(entry);
            const auto hash = lock.Find(source, name);
            if (!hash) {
                continue;
            }
            const bool isRenamed = renaming.IsOfScope(file) && name == before;
            if (isRenamed) {
                lock.Prune(source, [&](const std::string& kept) { return kept != before; });
            }
            lock.Set(source, isRenamed ? document.LowerKey(key.after) : name,
                     texts.HashAfter(name, *hash));
        }
    }
}

}  // namespace

std::vector<FileChange> Rename(const lm_tree::Tree& tree, const RenamedKey& key,
                               const lm_tree::CultureName& reference,
                               lm_check::TranslationLock& lock) {
    const Renaming renaming(tree, key);
    renaming.RequirePossible();
    if (!lock.empty()) {
        Follow(tree, renaming, key, reference, lock);
    }
    return renaming.Changes();
}

}  // namespace lm_edit
