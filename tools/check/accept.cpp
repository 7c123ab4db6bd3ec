#include "check/accept.h"

#include <algorithm>
#include <set>
#include <stdexcept>

#include "check/Plan.h"
#include "check/Reference.h"
#include "check/TextFile.h"

namespace lm_check {

namespace {

class Acceptance {
public:
    Acceptance(const Reference& reference, const std::vector<std::string>& keys,
               TranslationLock& lock)
        : reference_(reference), keys_(keys), lock_(lock) {}

    void Read(const TextFile& file, std::size_t scope) {
        const ReferenceView reference = reference_.Of(scope);
        const std::string source = file.file.directory + '/' + file.file.scope;
        sources_.insert(source);
        std::set<std::string> there;
        for (const lm_source::Entry& entry : file.document.Entries()) {
            const std::string key = file.document.LowerKey(entry);
            const ReferenceText* const text = reference.Find(file.document.Key(entry));
            if (text == nullptr) {
                continue;
            }
            there.insert(key);
            if (IsMeant(file.document, key)) {
                lock_.Set(source, key, text->hash);
                met_.insert(key);
                ++count_;
            }
        }
        if (keys_.empty()) {
            lock_.Prune(source, [&](const std::string& key) { return there.count(key) != 0; });
        }
    }

    /// Forgets translations that are no more, once all have been read.
    void Forget() { lock_.Retain(sources_); }

    std::size_t Count(const lm_source::KeyCase& keyCase) const {
        for (const std::string& key : keys_) {
            if (met_.count(keyCase.Lower(key)) == 0) {
                throw std::invalid_argument("no translation and reference text of key '" + key +
                                            "'");
            }
        }
        return count_;
    }

private:
    bool IsMeant(const lm_source::Document& document, const std::string& key) const {
        return keys_.empty() || std::any_of(keys_.begin(), keys_.end(), [&](const auto& name) {
                   return document.LowerKey(name) == key;
               });
    }

    const Reference& reference_;
    const std::vector<std::string>& keys_;
    TranslationLock& lock_;
    std::set<std::string> met_;
    std::set<std::string> sources_;
    std::size_t count_ = 0;
};

}  // namespace

std::size_t Accept(const lm_tree::Tree& tree, const CheckOptions& options,
                   const std::vector<std::string>& keys, TranslationLock& lock) {
    const Plan plan(tree, options);
    const Reference reference(plan);
    Acceptance acceptance(reference, keys, lock);
    std::set<lm_tree::FileId> read;
    for (std::size_t scope = 0; scope < plan.scopes.size(); ++scope) {
        const bool isAsked =
            options.scopes.empty() ||
            std::count(options.scopes.begin(), options.scopes.end(), plan.scopes[scope]) != 0;
        for (std::size_t culture = 0; isAsked && culture < plan.cultures.size(); ++culture) {
            const Plan::Answer answer = plan.AnswerOf(culture, scope);
            if (answer && answer != plan.ReferenceAnswer(scope) && read.insert(*answer).second) {
                acceptance.Read(TextFile(tree, *answer), scope);
            }
        }
    }
    if (keys.empty() && options.IsWhole()) {
        acceptance.Forget();
    }
    return acceptance.Count({});
}

}  // namespace lm_check
