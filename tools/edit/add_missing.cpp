#include "edit/add_missing.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <utility>

#include "TreeLayout.h"
#include "edit/append.h"
#include "edit/plural_forms.h"
#include "edit/read_document.h"
#include "plural/culture_rule.h"
#include "source/Document.h"
#include "source/edits.h"
#include "source/untranslated.h"
#include "tree/path_text.h"

namespace lm_edit {

namespace layout = LocalizationManager::File;
using lm_source::Document;
using lm_source::Entry;

namespace {

class Search {
public:
    Search(const lm_tree::Tree& tree, const lm_tree::CultureName& culture,
           const lm_tree::CultureName& reference, const std::vector<std::string>& keys)
        : tree_(tree),
          culture_(culture),
          reference_(reference),
          keys_(keys),
          forms_(lm_plural::RuleOf(&tree, culture).rule.FormCount()),
          common_(OwnTexts(lm_tree::CommonScope())),
          referenceCommon_(TextsOf(tree.Answer(reference, lm_tree::CommonScope()))) {}

    void Look(const std::string& scope) {
        const auto answer = tree_.Answer(culture_, scope);
        const auto reference = tree_.Answer(reference_, scope);
        if (!reference) {
            return;
        }
        const bool isOwn = answer && IsIn(*answer, culture_.directories.front());
        const bool isNeutral = answer && IsIn(*answer, kNeutral);
        if (answer && !isOwn && !isNeutral) {
            if (answer != reference &&
                !Lacking(scope, ReadDocument(tree_, *reference), ReadDocument(tree_, *answer))
                     .empty()) {
                found_.others.push_back(tree_.FullPath(*answer));
            }
            return;
        }
        const Document own = isOwn ? ReadDocument(tree_, *answer) : Document(std::string());
        const Document texts = ReadDocument(tree_, *reference);
        const auto lacking = Lacking(scope, texts, own);
        if (!lacking.empty() || !isOwn) {
            Add(isOwn ? tree_.FullPath(*answer) : PathOf(scope), own, texts, lacking, !isOwn);
        }
    }

    MissingKeys Take() { return std::move(found_); }

private:
    bool IsIn(lm_tree::FileId file, const std::string& directory) const {
        return tree_.Files()[file].directory == directory;
    }

    std::optional<Document> TextsOf(std::optional<lm_tree::FileId> file) const {
        return file ? std::optional<Document>(ReadDocument(tree_, *file)) : std::nullopt;
    }

    /// Those of the neutral texts are not the culture's.
    std::optional<Document> OwnTexts(const std::string& scope) const {
        const auto file = tree_.Answer(culture_, scope);
        return file && !IsIn(*file, kNeutral) ? TextsOf(file) : std::nullopt;
    }

    /// The entries of the reference that a file needs. One that the culture keeps among its common
    /// texts is there, unless the reference has it in both places.
    std::vector<const Entry*> Lacking(const std::string& scope, const Document& reference,
                                      const Document& own) const {
        std::vector<const Entry*> lacking;
        for (const Entry& entry : reference.Entries()) {
            const std::string_view key = reference.Key(entry);
            const bool isCommon = scope != lm_tree::CommonScope() && common_ &&
                                  common_->Find(key) != nullptr &&
                                  !(referenceCommon_ && referenceCommon_->Find(key) != nullptr);
            if (own.Find(key) == nullptr && !isCommon && IsAsked(reference, key)) {
                lacking.push_back(&entry);
            }
        }
        return lacking;
    }

    bool IsAsked(const Document& reference, std::string_view key) const {
        return keys_.empty() || std::any_of(keys_.begin(), keys_.end(), [&](const auto& asked) {
                   return reference.LowerKey(asked) == reference.LowerKey(key);
               });
    }

    void Add(std::filesystem::path path, const Document& own, const Document& reference,
             const std::vector<const Entry*>& lacking, bool isNew) {
        const std::string_view lineBreak = LineBreakOf(own);
        std::string entries;
        for (const Entry* const entry : lacking) {
            entries.append(lm_source::kUntranslatedComment).append(lineBreak);
            entries += EntryWithForms(reference, *entry, forms_, lineBreak);
        }
        std::string text = lm_source::Apply(own.Bytes(), {Appended(own, entries)});
        if (!Document(text).Mistakes().empty()) {
            throw std::logic_error("adding to the file would make it faulty");
        }
        found_.changes.push_back({std::move(path), std::move(text), lacking.size(), isNew});
    }

    /// Where a file goes that the culture does not have yet.
    std::filesystem::path PathOf(const std::string& scope) const {
        std::filesystem::path path =
            tree_.FullPath(lm_tree::Side::Root, culture_.directories.front()) /
            layout::kTextsDirectory / lm_tree::PathOf(scope);
        path += layout::kTextsExtension;
        return path;
    }

    const std::string kNeutral = lm_tree::Utf8Of(layout::kNeutralDirectory);
    const lm_tree::Tree& tree_;
    const lm_tree::CultureName& culture_;
    const lm_tree::CultureName& reference_;
    const std::vector<std::string>& keys_;
    const std::size_t forms_;
    const std::optional<Document> common_;
    const std::optional<Document> referenceCommon_;
    MissingKeys found_;
};

}  // namespace

MissingKeys AddMissing(const lm_tree::Tree& tree, const lm_tree::CultureName& culture,
                       const lm_tree::CultureName& reference,
                       const std::vector<std::string>& scopes,
                       const std::vector<std::string>& keys) {
    std::vector<std::string> known = tree.ScopesOf(reference);
    if (known.empty() && !tree.Answer(reference, lm_tree::CommonScope())) {
        throw std::invalid_argument("the reference '" + reference.name + "' has no texts");
    }
    known.insert(known.begin(), lm_tree::CommonScope());
    for (const std::string& scope : scopes) {
        if (std::find(known.begin(), known.end(), scope) == known.end()) {
            throw std::invalid_argument("the reference '" + reference.name + "' has no scope '" +
                                        scope + "'");
        }
    }
    Search search(tree, culture, reference, keys);
    for (const std::string& scope : known) {
        if (scopes.empty() || scope == lm_tree::CommonScope() ||
            std::find(scopes.begin(), scopes.end(), scope) != scopes.end()) {
            search.Look(scope);
        }
    }
    return search.Take();
}

}  // namespace lm_edit
