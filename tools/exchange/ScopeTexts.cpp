#include "exchange/ScopeTexts.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "check/ReferenceTexts.h"
#include "edit/read_document.h"
#include "localization_manager/tree_layout.h"
#include "plural/culture_rule.h"
#include "source/comments.h"
#include "source/untranslated.h"
#include "tree/path_text.h"

namespace lm_exchange {

using lm_source::Document;
using lm_source::Entry;

namespace {

constexpr std::size_t kFormsWithoutRule = 2;

void AddComments(const Document& document, std::size_t entry, std::vector<std::string>& comments) {
    constexpr std::string_view kRequest = "localize:";
    for (const lm_source::Range range : CommentsAbove(document, entry)) {
        std::string_view comment = document.Bytes(range);
        comment.remove_prefix(std::min(comment.find_first_not_of("; \t"), comment.size()));
        if (!comment.empty() && comment.substr(0, kRequest.size()) != kRequest &&
            std::find(comments.begin(), comments.end(), comment) == comments.end()) {
            comments.emplace_back(comment);
        }
    }
}

}  // namespace

std::string LessSpecificDirectory(const lm_tree::Tree& tree, const lm_tree::CultureName& culture,
                                  const std::string& scope) {
    const auto answer = tree.Answer(culture, scope);
    const std::string directory = answer ? tree.Files()[*answer].directory : std::string();
    const bool isNeutral =
        directory == lm_tree::Utf8Of(localization_manager::tree_layout::kNeutralDirectory);
    return isNeutral || directory == culture.directories.front() ? std::string() : directory;
}

ScopeTexts::ScopeTexts(const lm_tree::Tree& tree,
                       const std::optional<lm_tree::CultureName>& culture,
                       const lm_tree::CultureName& reference, const std::string& scope,
                       const lm_check::TranslationLock& lock)
    : scope_(scope), culture_(culture), reference_(reference), own_(std::string()) {
    const auto file = tree.Answer(reference, scope);
    if (!file) {
        throw std::invalid_argument("the reference '" + reference.name + "' has no scope '" +
                                    scope + "'");
    }
    referencePath_ = tree.Files()[*file].path;
    if (culture) {
        rule_ = lm_plural::RuleOf(&tree, *culture).rule;
        ReadOwn(tree, *culture, scope);
    }
    // The neutral texts are used under the rule of whoever asks.
    const auto referenceRule = reference.culture ? lm_plural::RuleOf(&tree, reference).rule : rule_;
    AddTexts(lm_edit::ReadDocument(tree, *file),
             referenceRule ? referenceRule->FormOf(1).value_or(0) : 0, lock);
}

std::size_t ScopeTexts::FormCount() const noexcept {
    return rule_ ? std::max<std::size_t>(rule_->FormCount(), 1) : kFormsWithoutRule;
}

void ScopeTexts::ReadOwn(const lm_tree::Tree& tree, const lm_tree::CultureName& culture,
                         const std::string& scope) {
    const std::string& directory = culture.directories.front();
    ownPath_ = tree.FullPath(lm_tree::Side::Root, lm_tree::TextsPath(directory, scope));
    const std::string other = LessSpecificDirectory(tree, culture, scope);
    if (!other.empty()) {
        throw std::invalid_argument("the texts of '" + scope + "' in " + culture.name +
                                    " are those of '" + other + "': name that culture");
    }
    const auto answer = tree.Answer(culture, scope);
    hasOwnFile_ = answer && tree.Files()[*answer].directory == directory;
    if (hasOwnFile_) {
        own_ = lm_edit::ReadDocument(tree, *answer);
    }
}

ScopeTexts::Progress ScopeTexts::ProgressOf(const Document& reference, const Entry& entry,
                                            std::size_t ownEntry,
                                            const lm_check::TranslationLock& lock) const {
    const auto accepted = lock.Find(culture_->directories.front() + '/' + scope_,
                                    own_.LowerKey(own_.Entries()[ownEntry]));
    if (!accepted) {
        return Progress::Translated;
    }
    return *accepted == lm_check::HashOf(reference, entry) ? Progress::Accepted : Progress::Stale;
}

void ScopeTexts::AddTexts(const Document& reference, std::size_t referenceOne,
                          const lm_check::TranslationLock& lock) {
    FormCounts counts{referenceOne, FormCount(), {}};
    for (std::size_t form = 0; rule_ && form < rule_->FormCount(); ++form) {
        counts.severalNumbers.set(form, rule_->UseOf(form) == lm_plural::Use::Several);
    }
    texts_.reserve(reference.Entries().size());
    for (std::size_t number = 0; number < reference.Entries().size(); ++number) {
        const Entry& entry = reference.Entries()[number];
        std::vector<std::string> comments;
        AddComments(reference, number, comments);
        std::optional<Message> message;
        std::optional<std::size_t> ownEntry;
        Progress progress = Progress::Missing;
        if (const Entry* const own = own_.Find(reference.Key(entry))) {
            ownEntry = static_cast<std::size_t>(own - own_.Entries().data());
            AddComments(own_, *ownEntry, comments);
            if (!UntranslatedMark(own_, *ownEntry)) {
                message = MessageOf(own_, *own);
                progress = ProgressOf(reference, entry, *ownEntry, lock);
            }
        }
        texts_.push_back({std::string(reference.Key(entry)), std::move(comments),
                          Exchange(MessageOf(reference, entry), std::move(message), counts),
                          ownEntry, progress});
    }
    for (const Entry& entry : own_.Entries()) {
        if (reference.Find(own_.Key(entry)) == nullptr) {
            surplus_.emplace_back(own_.Key(entry));
        }
    }
}

}  // namespace lm_exchange
