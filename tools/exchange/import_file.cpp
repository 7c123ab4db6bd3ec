#include "exchange/import_file.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "exchange/breaks_off.h"
#include "exchange/languages.h"
#include "exchange/units.h"
#include "plural/plural_forms.h"

namespace lm_exchange {

using State = TranslatedUnit::State;

namespace {

/// Whether there is nothing where there was something, or where nothing was ever meant to be.
bool LacksForm(const std::vector<std::string>& texts, const std::vector<std::string>& before) {
    for (std::size_t form = 0; form < texts.size(); ++form) {
        if (texts[form].empty() && (form >= before.size() || !before[form].empty())) {
            return true;
        }
    }
    return false;
}

std::string Listed(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names) {
        list += '[' + name + ']';
    }
    return list;
}

class Importer {
public:
    Importer(const TranslatedFile& file, const Format& format, const ScopeTexts& texts)
        : file_(file), format_(format), texts_(texts), import_{TextChanges(texts), {}, {}} {}

    Import Run() {
        RequireLanguage();
        TakeUnits();
        RequireRule();
        RequireWholeEnd();
        RequireForms();
        RequireWhole();
        for (const ScopeTexts::Text& text : texts_.Texts()) {
            Take(text);
        }
        import_.counts.outdated += units_.size();  // that nobody asked for
        return std::move(import_);
    }

private:
    using Translations = std::vector<std::vector<std::string>>;

    void RequireLanguage() const {
        const std::string wanted = "'" + LanguageTag(*texts_.Culture()) + "'";
        if (file_.language.empty()) {
            throw std::runtime_error("it does not say of what language it is; " + wanted +
                                     " is wanted");
        }
        if (!IsNameOf(file_.language, *texts_.Culture())) {
            throw std::runtime_error("its language is '" + file_.language + "', not " + wanted);
        }
    }

    void TakeUnits() {
        const std::string start = texts_.Scope() + '|';
        units_.reserve(file_.units.size());
        for (const TranslatedUnit& unit : file_.units) {
            if (unit.state == State::Obsolete) {
                ++import_.counts.obsolete;
                obsolete_.insert(unit.id);
            } else if (unit.id.compare(0, start.size(), start) != 0) {
                throw std::runtime_error("'" + unit.id + "' is no text of the scope '" +
                                         texts_.Scope() + "'");
            } else if (!units_.emplace(unit.id, &unit).second) {
                throw std::runtime_error("'" + unit.id + "' stands in it twice");
            }
        }
    }

    void RequireRule() const {
        const bool hasPlurals = std::any_of(units_.begin(), units_.end(), [](const auto& named) {
            return !named.second->formNames.empty();
        });
        if (!hasPlurals || !file_.pluralForms) {
            return;
        }
        const std::string& field = *file_.pluralForms;
        const std::string wanted = lm_plural::PluralFormsOf(*texts_.Rule());
        std::optional<lm_plural::PluralForms> forms;
        try {
            forms.emplace(field);
        } catch (const std::invalid_argument&) {
            forms.reset();  // what it says is shown all the same
        }
        if (field != wanted && (!forms || !Agree(*forms, *texts_.Rule()))) {
            throw std::runtime_error("its plural rule is '" + field + "', that of " +
                                     texts_.Culture()->name + " is '" + wanted + "'");
        }
    }

    void RequireForms() const {
        const std::vector<std::string> wanted = format_.FormNames(texts_);
        for (const TranslatedUnit& unit : file_.units) {
            if (unit.state != State::Obsolete && !unit.formNames.empty() &&
                unit.formNames != wanted) {
                throw std::runtime_error("'" + unit.id + "' has the forms " +
                                         Listed(unit.formNames) + " instead of " + Listed(wanted));
            }
        }
    }

    /// What was translated when the file was written is in it, unless its end is lost.
    void RequireWhole() const {
        for (const ScopeTexts::Text& text : texts_.Texts()) {
            const std::string id = UnitId(texts_, text, text.exchange.Units().front());
            if (text.exchange.HasOwn() && units_.count(id) == 0 && obsolete_.count(id) == 0 &&
                CanHold(format_, text)) {
                throw std::runtime_error("'" + id +
                                         "', which is translated, is not in it: the file is not "
                                         "whole, or older: " +
                                         format_.GetWords().bringUpToDate);
            }
        }
    }

    /// The last text of a file may lack lines without a trace.
    void RequireWholeEnd() const {
        if (file_.end == TranslatedFile::End::PartOfLine) {
            throw std::runtime_error("it is not whole: its last line does not end");
        }
        if (file_.end == TranslatedFile::End::Sealed || file_.units.empty() ||
            file_.units.back().state == State::Obsolete) {
            return;
        }
        const TranslatedUnit& last = file_.units.back();
        const bool isFurtherLine = file_.end == TranslatedFile::End::FurtherLine;
        if (!isFurtherLine && !last.targets.back().empty()) {
            return;
        }
        for (const ScopeTexts::Text& text : texts_.Texts()) {
            for (const Unit& unit : text.exchange.Units()) {
                if (UnitId(texts_, text, unit) == last.id &&
                    BreaksOff(last.targets.back(), unit.own.empty() ? "" : unit.own.back(),
                              unit.reference.back(), isFurtherLine)) {
                    throw std::runtime_error("it is not whole: its last text, '" + last.id +
                                             "', breaks off (to shorten it so, change it in the "
                                             "tree)");
                }
            }
        }
    }

    /// The translations that a unit brings; empty when it is skipped, which is counted.
    const std::vector<std::string>* Brought(const ScopeTexts::Text& text, const Unit& unit) {
        const auto found = units_.find(UnitId(texts_, text, unit));
        if (found == units_.end()) {
            return nullptr;
        }
        const TranslatedUnit& brought = *found->second;
        units_.erase(found);
        const bool isSame = brought.targets == unit.own;
        // Tools that know no states leave ours, even where they change texts.
        const bool isOpen = brought.state == State::Open && (isSame || !IsOpen(text, unit));
        if (brought.sources != format_.SourcesOf(unit, texts_)) {
            ++import_.counts.outdated;
        } else if (brought.state == State::Unfinished || isOpen) {
            ++import_.counts.unfinished;
        } else if (isSame) {
            ++import_.counts.unchanged;
        } else if (LacksForm(brought.targets, unit.own)) {
            ++import_.counts.empty;
        } else {
            return &brought.targets;
        }
        return nullptr;
    }

    void Take(const ScopeTexts::Text& text) {
        Translations translations;
        std::size_t brought = 0;
        for (const Unit& unit : text.exchange.Units()) {
            const auto* const translation = Brought(text, unit);
            brought += translation != nullptr ? 1 : 0;
            translations.push_back(translation != nullptr ? *translation : unit.own);
        }
        if (brought == 0) {
            return;
        }
        const bool isComplete = std::none_of(translations.begin(), translations.end(),
                                             [](const auto& texts) { return texts.empty(); });
        if (!text.exchange.HasOwn() && !isComplete) {
            import_.counts.empty += brought;
            return;
        }
        try {
            import_.changes.Set(text, text.exchange.ValueWith(translations));
        } catch (const UnknownName& error) {
            AddError(text, std::string(error.what()) + ": " + format_.GetWords().unknownName);
        } catch (const Inexpressible& error) {
            AddError(text, error.what());
        }
    }

    void AddError(const ScopeTexts::Text& text, const std::string& what) {
        import_.errors.push_back(texts_.Scope() + '|' + text.key + ": " + what);
    }

    const TranslatedFile& file_;
    const Format& format_;
    const ScopeTexts& texts_;
    std::unordered_map<std::string_view, const TranslatedUnit*> units_;
    std::unordered_set<std::string_view> obsolete_;
    Import import_;
};

}  // namespace

bool CanHold(const Format& format, const ScopeTexts::Text& text) {
    const auto canHold = [&format](const std::string& part) { return format.CanHold(part); };
    const auto canHoldAll = [&canHold](const std::vector<std::string>& parts) {
        return std::all_of(parts.begin(), parts.end(), canHold);
    };
    const std::vector<Unit>& units = text.exchange.Units();
    return canHold(text.key) && canHoldAll(text.comments) &&
           std::all_of(units.begin(), units.end(), [&canHoldAll](const Unit& unit) {
               return canHoldAll(unit.reference) && canHoldAll(unit.own);
           });
}

Import ImportFile(const TranslatedFile& file, const Format& format, const ScopeTexts& texts) {
    return Importer(file, format, texts).Run();
}

}  // namespace lm_exchange
