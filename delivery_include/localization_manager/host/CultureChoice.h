// Which of a tree's cultures serve a user best.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "localization_manager/host/LanguageTag.h"
#include "qor/platform/user_languages.h"

namespace localization_manager::host {

namespace detail {

// What users' systems say and trees are not named for. Sources: the IANA Language Subtag Registry
// (deprecated and macro languages), and of Unicode's CLDR the aliases (supplementalMetadata), the likely
// subtags (likelySubtags) and the parent locales (parentLocales).

/// A language that another one stands for, in a script if one is given.
struct LanguageAlias {
    std::string_view from;
    std::string_view language;
    std::string_view script;
};
inline constexpr LanguageAlias kLanguageAliases[] = {
    {"no", "nb", ""},      // the macrolanguage; its other written form is closest to it, too
    {"nn", "nb", ""},      //
    {"in", "id", ""},      // deprecated names
    {"mo", "ro", ""},      //
    {"sh", "sr", "Latn"},  //
    {"cmn", "zh", ""},     // named by themselves, written as their macrolanguage
    {"yue", "zh", "Hant"}, {"pes", "fa", ""}, {"als", "sq", ""},
    {"ekk", "et", ""},     {"lvs", "lv", ""},
};

/// The script of a language, in a region or, where that is empty, in all others.
struct LikelyScript {
    std::string_view language;
    std::string_view region;
    std::string_view script;
};
inline constexpr LikelyScript kLikelyScripts[] = {
    {"zh", "tw", "Hant"}, {"zh", "hk", "Hant"}, {"zh", "mo", "Hant"}, {"zh", "", "Hans"},
    {"sr", "me", "Latn"}, {"sr", "ro", "Latn"}, {"sr", "tr", "Latn"}, {"sr", "", "Cyrl"},
};

/// A region whose texts serve others better than those of the language as a whole. English and Spanish
/// as the shorthands of cultures have it: "anz", "sea", "la".
struct RegionParent {
    std::string_view language;
    std::string_view regions;  // each with a blank on both sides
    std::string_view parent;
};
inline constexpr RegionParent kRegionParents[] = {
    {"zh-Hant", " mo ", "hk"},
    {"en", " nz ", "au"},
    {"en", " bn id ph sg th vn ", "my"},
    {"es", " ar bo br bz cl co cr cu do ec gt hn mx ni pa pe pr py sv us uy ve ", "419"},
    {"es", " 419 ar bo br bz cl co cr cu do ec gt hn ni pa pe pr py sv us uy ve ", "mx"},
};

}  // namespace detail

/// Chooses among the cultures that a tree offers. Immutable.
class CultureChoice {
public:
    /// @param offered   names as `Tree::Cultures` gives them.
    /// @param standard  the culture for users whom no other serves; asked last for all of them.
    CultureChoice(std::vector<std::string> offered, std::string standard)
        : offered_(std::move(offered)), standard_(std::move(standard)) {}

    /// The cultures for a user, best first, each once, written as they are offered; for `Tree::Open` as they
    /// are. Of a language the user's region comes first, then what serves for the region, then
    /// the language for all, or else any of its regions. Languages of the user come before one written in another
    /// script than the user's, and that before the standard.
    /// @param wanted  what the user's system says, most wanted first: BCP 47 or names of POSIX locales.
    ///                "C" and "POSIX", and what is no language, stand for nothing.
    std::vector<std::string> For(const std::vector<std::string>& wanted) const {
        std::vector<std::string> chosen;
        std::vector<LanguageTag> tags;
        for (const std::string& text : wanted) {
            tags.push_back(Resolved(LanguageTag(text)));
            Choose(tags.back(), chosen);
        }
        for (const LanguageTag& tag : tags) {  // in whatever script
            AddFirst(
                [&](const LanguageTag& offered) {
                    return offered.language == tag.language && offered.script != tag.script;
                },
                chosen);
        }
        AddNew(standard_, chosen);
        return chosen;
    }

    /// For the user of this program, whom the system knows.
    std::vector<std::string> ForUser() const { return For(qor::platform::UserLanguages()); }

private:
    /// With the language and the script that trees have.
    static LanguageTag Resolved(LanguageTag tag) {
        for (const detail::LanguageAlias& alias : detail::kLanguageAliases) {
            if (tag.language == alias.from) {
                tag.language = alias.language;
                tag.script = tag.script.empty() ? alias.script : tag.script;
                break;
            }
        }
        bool hasScripts = false;
        for (const detail::LikelyScript& likely : detail::kLikelyScripts) {
            if (tag.language == likely.language) {
                hasScripts = true;
                if (tag.script.empty() && (likely.region.empty() || likely.region == tag.region)) {
                    tag.script = likely.script;
                }
            }
        }
        if (!hasScripts) {
            tag.script.clear();  // trees name scripts of those languages only
        }
        return tag;
    }

    void Choose(const LanguageTag& tag, std::vector<std::string>& chosen) const {
        const std::string language = tag.Language();
        const std::size_t before = chosen.size();
        AddOffered(language, tag.region, tag.variant, chosen);
        AddOffered(language, tag.region, "", chosen);
        for (const detail::RegionParent& parent : detail::kRegionParents) {
            if (parent.language == language && !tag.region.empty() &&
                parent.regions.find(' ' + tag.region + ' ') != std::string_view::npos) {
                AddOffered(language, parent.parent, "", chosen);
            }
        }
        AddOffered(language, "", "", chosen);
        if (chosen.size() == before) {
            AddFirst([&](const LanguageTag& offered) { return offered.Language() == language; },
                     chosen);
        }
    }

    void AddOffered(const std::string& language, std::string_view region, std::string_view variant,
                    std::vector<std::string>& chosen) const {
        AddFirst(
            [&](const LanguageTag& offered) {
                return offered.Language() == language && offered.region == region &&
                       offered.variant == variant;
            },
            chosen);
    }

    template <class Serves>
    void AddFirst(const Serves& serves, std::vector<std::string>& chosen) const {
        const auto found = std::find_if(offered_.begin(), offered_.end(), [&](const auto& name) {
            const LanguageTag tag(name);
            return !tag.language.empty() && serves(tag);
        });
        if (found != offered_.end()) {
            AddNew(*found, chosen);
        }
    }

    static void AddNew(const std::string& name, std::vector<std::string>& chosen) {
        if (std::find(chosen.begin(), chosen.end(), name) == chosen.end()) {
            chosen.push_back(name);
        }
    }

    std::vector<std::string> offered_;
    std::string standard_;
};

}  // namespace localization_manager::host
