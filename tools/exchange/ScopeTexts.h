// The texts of one culture and scope beside those of the reference.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "check/TranslationLock.h"
#include "exchange/Exchange.h"
#include "plural/PluralRule.h"
#include "source/Document.h"
#include "tree/Tree.h"

namespace lm_exchange {

/// The less specific directory that answers a culture for a scope; empty when it is the culture's own
/// one, that of the neutral texts, or none.
std::string LessSpecificDirectory(const lm_tree::Tree& tree, const lm_tree::CultureName& culture,
                                  const std::string& scope);

/// What stood in the files when it was made. The culture's texts are those of its own directory; where
/// only the neutral texts stand in for them, it has none.
class ScopeTexts {
public:
    enum class Progress : std::uint8_t {
        Missing,
        Stale,  // the reference was another one when it was accepted
        Translated,
        Accepted
    };

    struct Text {
        std::string key;                    // as the reference writes it
        std::vector<std::string> comments;  // above it, the reference's first; no requests to tools
        Exchange exchange;
        std::optional<std::size_t> ownEntry;  // its number, be it translated or not
        Progress progress;
    };

    /// @param culture  not the neutral texts; empty for none, so that nothing is translated.
    /// @param lock     what was accepted.
    /// @throws std::invalid_argument when the reference does not have the scope, or a less specific
    ///         culture answers for it.
    /// @throws std::runtime_error when a file cannot be read or has a mistake.
    ScopeTexts(const lm_tree::Tree& tree, const std::optional<lm_tree::CultureName>& culture,
               const lm_tree::CultureName& reference, const std::string& scope,
               const lm_check::TranslationLock& lock);

    const std::string& Scope() const noexcept { return scope_; }
    const std::optional<lm_tree::CultureName>& Culture() const noexcept { return culture_; }
    const lm_tree::CultureName& Reference() const noexcept { return reference_; }

    /// In the reference's order.
    const std::vector<Text>& Texts() const noexcept { return texts_; }

    /// The culture's file; without entries when there is none.
    const lm_source::Document& Own() const noexcept { return own_; }

    /// Where it stands, or has to.
    const std::filesystem::path& OwnPath() const noexcept { return ownPath_; }

    bool HasOwnFile() const noexcept { return hasOwnFile_; }

    /// The reference's file, below the tree.
    const std::string& ReferencePath() const noexcept { return referencePath_; }

    /// Keys that the culture has and the reference has not.
    const std::vector<std::string>& Surplus() const noexcept { return surplus_; }

    /// The culture's rule; empty without a culture.
    const std::optional<lm_plural::PluralRule>& Rule() const noexcept { return rule_; }

    /// How many forms its texts have: as many as the rule, but at least one.
    std::size_t FormCount() const noexcept;

private:
    void ReadOwn(const lm_tree::Tree& tree, const lm_tree::CultureName& culture,
                 const std::string& scope);
    void AddTexts(const lm_source::Document& reference, std::size_t referenceOne,
                  const lm_check::TranslationLock& lock);
    Progress ProgressOf(const lm_source::Document& reference, const lm_source::Entry& entry,
                        std::size_t ownEntry, const lm_check::TranslationLock& lock) const;

    const std::string scope_;
    const std::optional<lm_tree::CultureName> culture_;
    const lm_tree::CultureName reference_;
    lm_source::Document own_;
    std::filesystem::path ownPath_;
    bool hasOwnFile_ = false;
    std::string referencePath_;
    std::optional<lm_plural::PluralRule> rule_;
    std::vector<Text> texts_;
    std::vector<std::string> surplus_;
};

}  // namespace lm_exchange
