// A tree with everything that texts out of it need.
#pragma once

#include <algorithm>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "localization_manager/host/Conventions.h"
#include "localization_manager/host/ErrorListener.h"
#include "localization_manager/host/Module.h"
#include "localization_manager/host/Refreshed.h"
#include "localization_manager/host/ResultError.h"
#include "localization_manager/host/ServiceLocator.h"
#include "localization_manager/host/TreeSettings.h"
#include "localization_manager/host/detail/CallReport.h"
#include "localization_manager/host/detail/CallScope.h"
#include "localization_manager/host/detail/Current.h"
#include "localization_manager/host/detail/CurrentCall.h"
#include "localization_manager/host/detail/FileStamps.h"
#include "localization_manager/host/detail/Generation.h"
#include "localization_manager/host/detail/MissingTexts.h"
#include "localization_manager/host/detail/Selection.h"
#include "localization_manager/host/text.h"

namespace localization_manager::host::detail {

/// What `Tree` and all `Texts` of it share. May be used from several threads at once: those that read
/// wait for nobody, those that select and refresh take turns.
class OpenTree {
public:
    /// @throws as `Tree`.
    OpenTree(std::string root, TreeSettings settings)
        : root_(std::move(root)),
          settings_(std::move(settings)),
          module_(settings_.module),
          calls_(Make<CurrentCall>()),
          report_(CallReport(calls_, settings_.report)),
          services_(Make<ServiceLocator>(Make<Tracer>(report_, 0U, qor::trace_level::Error))),
          converter_(module_.CreateCultureConverter(*services_)),
          stamps_(root_, settings_.alternative),
          current_(std::make_unique<const Generation>()) {
        MakeManager();  // to hear now that there is no such tree
    }

    const TreeSettings& settings() const noexcept { return settings_; }
    CurrentCall& calls() const noexcept { return *calls_; }
    MissingTexts& missing() noexcept { return missing_; }

    Current<Generation>::Lease Read() noexcept { return Current<Generation>::Lease(current_); }

    /// @return the selection's place in `Generation::texts`; the same for equal selections.
    /// @throws as `Tree::Open`.
    std::size_t Select(std::string_view scope, const std::vector<std::string>& cultures) {
        std::vector<std::string> mistakes;
        const std::size_t place = Select(scope, cultures, mistakes);
        for (const std::string& mistake :
             mistakes) {  // outside of the lock: the host may ask for texts
            Tell(mistake);
        }
        return place;
    }

    /// As `Tree::Cultures`.
    std::vector<std::string> Cultures() const {
        std::set<std::string> cultures;
        for (const std::string& tree : {root_, settings_.alternative}) {
            if (!tree.empty()) {
                AddCultures(std::filesystem::path(ToUtf16(tree)), cultures);
            }
        }
        return {cultures.begin(), cultures.end()};
    }

    /// As `Tree::Refresh`.
    Refreshed Refresh() {
        Refreshed refreshed = LookAgain();
        Tell(refreshed.mistakes);
        return refreshed;
    }

    /// Gives a message to the host; an empty one is none.
    void Tell(std::string_view text) const {
        if (settings_.report && !text.empty()) {
            settings_.report(qor::trace_level::Error, text);
        }
    }

private:
    /// @param mistakes  receives those of the sources, when they are selected for the first time.
    std::size_t Select(std::string_view scope, const std::vector<std::string>& cultures,
                       std::vector<std::string>& mistakes) {
        const std::lock_guard<std::mutex> turn(turn_);
        const auto known =
            std::find_if(selections_.begin(), selections_.end(), [&](const Selection& selection) {
                return selection.scope == scope && selection.names == cultures;
            });
        const auto place = static_cast<std::size_t>(known - selections_.begin());
        if (known != selections_.end()) {
            return place;
        }
        Selection selection = MakeSelection(scope, cultures);
        FileStamps stamps = stamps_;
        stamps.Add(
            selection);  // before the files are read: who changes them meanwhile is noticed later
        auto next = std::make_unique<Generation>(*Read());
        AddTexts(*next, selection);
        for (const Generation::Source& source : next->texts.back()) {
            mistakes.push_back(source.mistake);
        }
        selections_.reserve(place + 1);  // what can fail comes before anything is changed
        current_.Replace(std::move(next));
        selections_.push_back(std::move(selection));
        stamps_ = std::move(stamps);
        return place;
    }

    /// A refresh without the report.
    Refreshed LookAgain() {
        const std::lock_guard<std::mutex> turn(turn_);
        FileStamps stamps = stamps_.Now();  // before the files are read, as above
        if (stamps == stamps_) {
            return {};
        }
        std::string mistakes;
        auto next = std::make_unique<Generation>();
        try {
            for (const Selection& selection : selections_) {
                AddTexts(*next, selection);
            }
            mistakes = NewMistakes(*Read(), *next);
        } catch (const ResultError& failure) {
            mistakes = failure.what();
        }
        if (mistakes.empty()) {
            current_.Replace(std::move(next));
        }
        stamps_ = std::move(stamps);  // of mistakes, too: they are told once
        return {mistakes.empty() ? Refreshed::Outcome::Replaced : Refreshed::Outcome::Kept,
                mistakes};
    }

    /// The code as an exception, with what the module reported about it.
    static void CheckReported(qor::result_t code, const Call& call, const std::string& otherwise) {
        if (qor::Failed(code)) {
            throw ResultError(code, call.report.empty() ? otherwise : call.report);
        }
    }

    void AddCultures(const std::filesystem::path& tree, std::set<std::string>& cultures) const {
        for (const auto& entry : std::filesystem::directory_iterator(tree)) {
            std::error_code ignored;
            if (std::filesystem::is_directory(entry.path() / tree_layout::kTextsDirectory,
                                              ignored)) {
                const std::filesystem::path file = entry.path().filename();
                const auto isAscii = [](auto unit) { return unit > 0 && unit < 0x80; };
                // No culture has another name, and another may not be convertible.
                if (std::all_of(file.native().begin(), file.native().end(), isAscii) &&
                    NamesCulture(file.string())) {
                    cultures.insert(file.string());
                }
            }
        }
    }

    /// Whether requests lead to a directory of this name: it begins with the language's name as it is.
    bool NamesCulture(const std::string& directory) const {
        Culture culture;
        qor::string8_t iso;
        return converter_->GetCultureByIsoName(qor::string8_t(directory), culture) == qor::rcOk &&
               converter_->GetLanguageIsoName(culture.language, iso) == qor::rcOk &&
               directory.compare(0, iso.size(), iso.view()) == 0;
    }

    qor::objptr_t<ILocalizationManager> MakeManager() const {
        auto manager = module_.CreateManager(*services_);
        Call call;
        const CallScope scope(*calls_, call);
        CheckReported(manager->InitEx(ToString16(root_), ToString16(settings_.alternative),
                                      Make<ErrorListener>(report_)),
                      call, "cannot open the localisation tree '" + root_ + "'");
        return manager;
    }

    Selection MakeSelection(std::string_view scope, const std::vector<std::string>& names) const {
        if (names.empty()) {
            throw ResultError(qor::rcInvalidArgument, "no culture is given");
        }
        Selection selection{std::string(scope), names, {}, {}};
        for (const std::string& name : names) {
            Culture culture;
            Check(converter_->GetCultureByIsoName(qor::string8_t(name), culture),
                  ("unknown culture '" + name + "'").c_str());
            qor::string8_t isoName;
            Check(converter_->GetLanguageIsoName(culture.language, isoName), name.c_str());
            selection.isoNames.emplace_back(isoName.view());
            selection.cultures.push_back(std::move(culture));
        }
        return selection;
    }

    /// Makes the localizers of a selection and has them read their sources.
    void AddTexts(Generation& generation, const Selection& selection) {
        std::vector<Generation::Source> sources;
        for (std::size_t i = 0; i < selection.names.size(); ++i) {
            auto& manager = generation.managers[selection.names[i]];
            if (!manager) {
                manager = MakeManager();
            }
            Generation::Source source;
            Call call;
            const CallScope scope(*calls_, call);
            CheckReported(
                manager->CreateLocalizer(ToString16(selection.scope), selection.cultures[i],
                                         calls_.get(), source.localizer.Ref()),
                call, "cannot use scope '" + selection.scope + "'");
            source.localizer->HasString(u"_");  // whatever the key: the sources are read for it
            source.mistake = std::move(call.report);
            source.conventions = ConventionsOf(selection.isoNames[i], selection.cultures[i]);
            sources.push_back(std::move(source));
        }
        generation.texts.push_back(std::move(sources));
    }

    /// A variant is the program's own, and no convention depends on it.
    std::shared_ptr<const Conventions> ConventionsOf(std::string tag, const Culture& culture) {
        if (!settings_.conventions) {
            return nullptr;
        }
        if (!culture.region.empty()) {
            tag.append("-").append(culture.region.view());
        }
        const auto known = conventions_.find(tag);
        return known != conventions_.end()
                   ? known->second
                   : conventions_.emplace(tag, settings_.conventions(tag)).first->second;
    }

    /// The mistakes of sources that had none before.
    static std::string NewMistakes(const Generation& before, const Generation& now) {
        std::string mistakes;
        for (std::size_t i = 0; i < now.texts.size(); ++i) {
            for (std::size_t j = 0; j < now.texts[i].size(); ++j) {
                const std::string& mistake = now.texts[i][j].mistake;
                if (!mistake.empty() && before.texts[i][j].mistake.empty() &&
                    mistakes.find(mistake) == std::string::npos) {
                    mistakes.append(mistakes.empty() ? "" : "\n").append(mistake);
                }
            }
        }
        return mistakes;
    }

    const std::string root_;
    const TreeSettings settings_;
    const Module module_;
    const qor::objptr_t<CurrentCall> calls_;
    const Report report_;
    const qor::objptr_t<ServiceLocator> services_;
    const qor::objptr_t<ICultureConverter> converter_;
    MissingTexts missing_;
    std::mutex turn_;  // for what follows, but for reading
    std::vector<Selection> selections_;
    FileStamps stamps_;
    std::map<std::string, std::shared_ptr<const Conventions>> conventions_;  // by language tag
    Current<Generation> current_;
};

}  // namespace localization_manager::host::detail
