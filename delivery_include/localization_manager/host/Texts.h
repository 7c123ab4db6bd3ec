// The texts of a program, as its code wants them.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "localization_manager/host/CultureList.h"
#include "localization_manager/host/Params.h"
#include "localization_manager/host/Refreshed.h"
#include "localization_manager/host/TextError.h"
#include "localization_manager/host/TextsState.h"
#include "localization_manager/host/TreeSettings.h"
#include "localization_manager/host/detail/OpenTree.h"
#include "localization_manager/host/detail/StackMemory.h"

namespace localization_manager::host {

/// One scope of a tree for one user: `texts("Photos", {{"count", 3}, {"album", name}})`. Takes and gives
/// UTF-8.
///
/// A handle: cheap to copy, and what it needs lives as long as one of the copies. All operations may be
/// called from several threads at once, through one handle or through several. Parameters belong to the
/// call and to nobody else's, so that calls may nest.
class Texts {
public:
    /// Opens a tree for one scope. A program with several scopes, or users, opens a `Tree`.
    /// @param root      directory of the localisation tree, UTF-8.
    /// @param scope     name of the scope's source, a file name without ".lt".
    /// @param cultures  "de", or {"de", "en"} to fall back on.
    /// @throws as `Tree` and `Tree::Open`.
    Texts(std::string root, std::string_view scope, const CultureList& cultures,
          TreeSettings settings = {})
        : Texts(std::make_shared<detail::OpenTree>(std::move(root), std::move(settings)), scope,
                cultures) {}

    /// The final text of a key, from the first culture that has one.
    /// @param key     letter case does not matter.
    /// @param params  what the text asks for with "$"; more of them do no harm.
    /// @return what `TreeSettings::whenMissing` gives when no culture has the key, or when the text of the
    ///         first that has it cannot be made: a parameter is missing, a plural form is wrong.
    /// @throws what `whenMissing` throws; std::bad_alloc.
    std::string operator()(std::string_view key, Params params = {}) const {
        return Get({key}, params);
    }

    /// The text for one of several cases that are no numbers, such as a person's gender: the text of
    /// "KEY._VARIANT" when the culture has it, else that of "KEY".
    /// @param variant  may be empty, for `key` alone.
    std::string Variant(std::string_view key, std::string_view variant, Params params = {}) const {
        if (variant.empty()) {
            return Get({key}, params);
        }
        const std::string full = std::string(key).append("._").append(variant);
        return Get({full, key}, params);
    }

    /// Whether a culture has the key.
    bool Has(std::string_view key) const {
        const auto generation = tree_->Read();
        detail::Call call;
        const detail::CallScope scope(tree_->calls(), call);
        const qor::string16_t key16 = ToString16(key);
        for (const auto& source : generation->texts[place_]) {
            if (source.localizer->HasString(key16) == qor::rcOk) {
                return true;
            }
        }
        return false;
    }

    /// The path of a resource file of the scope, that opens as it stands; from the first culture that
    /// finds one.
    /// @param file  a name below the scope's directory.
    /// @return empty when there is none.
    std::optional<std::string> Path(std::string_view file) const {
        const auto generation = tree_->Read();
        detail::Call call;
        const detail::CallScope scope(tree_->calls(), call);
        const qor::string16_t file16 = ToString16(file);
        for (const auto& source : generation->texts[place_]) {
            qor::string16_t path;
            if (source.localizer->GetPath(file16, path) == qor::rcOk) {
                return ToUtf8(path);
            }
        }
        if (!call.report.empty()) {
            tree_->Tell(call.report);
        }
        return std::nullopt;
    }

    /// Whether the sources of at least one culture could be read, and why those of the others could not:
    /// to be asked before anything is shown. With a mistake in the common source, what stands before it
    /// may still be answered.
    TextsState State() const {
        const auto generation = tree_->Read();
        TextsState state{false, {}};
        for (const auto& source : generation->texts[place_]) {
            state.isUsable = state.isUsable || source.mistake.empty();
            const bool isNext = !state.report.empty() && !source.mistake.empty();
            state.report.append(isNext ? "\n" : "").append(source.mistake);
        }
        return state;
    }

    /// As `Tree::Refresh`, for the whole tree.
    Refreshed Refresh() const { return tree_->Refresh(); }

    /// As `Tree::Missing`, for the whole tree.
    std::vector<MissingText> Missing() const { return tree_->missing().All(); }

    const std::string& scope() const noexcept { return *scope_; }
    const std::vector<std::string>& cultures() const noexcept { return *cultures_; }

private:
    friend class Tree;

    Texts(std::shared_ptr<detail::OpenTree> tree, std::string_view scope,
          const CultureList& cultures)
        : tree_(std::move(tree)),
          place_(tree_->Select(scope, cultures.names())),
          scope_(std::make_shared<const std::string>(scope)),
          cultures_(std::make_shared<const std::vector<std::string>>(cultures.names())) {}

    /// The text of the first key that a culture has, from the first culture that has one of them.
    /// @param keys  the last one is the key by which a text is missing.
    std::string Get(std::initializer_list<std::string_view> keys, const Params& params) const {
        std::optional<TextProblem> problem;
        {
            const auto generation = tree_->Read();
            detail::Call call{params, nullptr, {}, {}};
            const detail::CallScope scope(tree_->calls(), call);
            detail::StackMemory memory;
            qor::string16_t text(memory.Allocator());
            problem = Find(keys, generation->texts[place_], call, memory, text);
            if (!problem) {
                return ToUtf8(text);
            }
        }
        return tree_->settings().whenMissing(*problem);
    }

    /// @param text  receives the text.
    /// @return why there is none; nothing when there is one.
    std::optional<TextProblem> Find(std::initializer_list<std::string_view> keys,
                                    const std::vector<detail::Generation::Source>& sources,
                                    detail::Call& call, detail::StackMemory& memory,
                                    qor::string16_t& text) const {
        for (std::size_t i = 0; i < sources.size(); ++i) {
            ILocalizer& localizer = *sources[i].localizer;
            call.conventions = sources[i].conventions.get();
            for (const std::string_view key : keys) {
                const qor::string16_t key16(detail::SmallText(key).view(), memory.Allocator());
                // Where the text is likely to be found, it is asked for right away.
                const bool isLikely = i == 0 && keys.size() == 1;
                const bool isAsked = isLikely || localizer.HasString(key16) == qor::rcOk;
                if (isAsked && localizer.GetString(key16, text) == qor::rcOk) {
                    return std::nullopt;
                }
                if (isAsked && (!isLikely || HasSilently(localizer, key16, call))) {
                    const TextProblem problem{*scope_, (*cultures_)[i], std::string(key),
                                              WhatIsWrong(call, key, i)};
                    tree_->Tell(problem.message);
                    return problem;
                }
            }
            NoteMissing(*(keys.end() - 1), i, sources[i].mistake.empty());
        }
        const std::string key(*(keys.end() - 1));
        const std::string& mistake = sources.front().mistake;
        return TextProblem{
            *scope_, cultures_->front(), key,
            Place(key, 0) + ": " + (mistake.empty() ? "there is no such text" : mistake)};
    }

    /// Keeps the report of the request before.
    static bool HasSilently(ILocalizer& localizer, const qor::string16_t& key, detail::Call& call) {
        std::string kept = std::move(call.report);
        const bool has = localizer.HasString(key) == qor::rcOk;
        call.report = std::move(kept);
        return has;
    }

    /// @param tell  whether it is news: of a source that cannot be used at all, the host knows.
    void NoteMissing(std::string_view key, std::size_t culture, bool tell) const {
        if (tree_->missing().Add(*scope_, (*cultures_)[culture], key) && tell) {
            tree_->Tell(Place(key, culture) + ": there is no such text");
        }
    }

    std::string WhatIsWrong(const detail::Call& call, std::string_view key,
                            std::size_t culture) const {
        return call.paramProblem.empty() ? call.report
                                         : Place(key, culture) + ": " + call.paramProblem;
    }

    /// The beginning of a message.
    std::string Place(std::string_view key, std::size_t culture) const {
        return "text '" + std::string(key) + "' of scope '" + *scope_ + "' in culture '" +
               (*cultures_)[culture] + "'";
    }

    std::shared_ptr<detail::OpenTree> tree_;
    std::size_t place_;
    std::shared_ptr<const std::string> scope_;
    std::shared_ptr<const std::vector<std::string>> cultures_;
};

}  // namespace localization_manager::host
