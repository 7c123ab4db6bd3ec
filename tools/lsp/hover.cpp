#include "lsp/hover.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "lsp/Engine.h"
#include "lsp/Spot.h"
#include "lsp/key_uses.h"
#include "lsp/places.h"
#include "plural/culture_rule.h"
#include "plural/number_ranges.h"

namespace lm_lsp {

using lm_source::Document;
using lm_source::Entry;
using lm_source::OperandKind;
using lm_tree::CultureName;
using lm_tree::FileId;

namespace {

constexpr std::size_t kMostUses = 30;

/// For each form a number that chooses it; one number where the rule is not known.
std::set<std::uint64_t> SampleNumbers(const lm_tree::Tree& tree, const CultureName& culture) {
    std::set<std::uint64_t> samples;
    try {
        const lm_plural::PluralRule rule = lm_plural::RuleOf(&tree, culture).rule;
        for (std::size_t form = 0; form < rule.FormCount(); ++form) {
            const auto numbers = NumbersOf(rule, form);
            if (!numbers.empty()) {
                // People count from one.
                samples.insert(numbers.front() == 0 && numbers.size() > 1 ? numbers[1]
                                                                          : numbers.front());
            }
        }
    } catch (const std::runtime_error&) {
        samples.clear();
    }
    return samples.empty() ? std::set<std::uint64_t>{1} : samples;
}

std::string Indented(const std::string& text) {
    std::string indented;
    for (const char unit : text) {
        indented += unit;
        indented += unit == '\n' ? "    " : "";
    }
    return indented;
}

/// The texts of a key in all cultures.
class FinalTexts {
public:
    FinalTexts(const Target& target, const KeyName& key)
        : target_(target), snapshot_(*target.InTree()), key_(key) {}

    std::string Describe() {
        for (const CultureName& culture : snapshot_.Cultures()) {
            Add(culture.name, HeadOf(culture), TextsOf(culture));
        }
        std::string all = key_.key + '\n';
        for (const auto& [cultures, file, texts] : groups_) {
            all.append("\n").append(cultures).append(file).append("\n").append(texts);
        }
        return all;
    }

private:
    /// Cultures that get the same are told of together.
    void Add(const std::string& culture, const std::string& file, const std::string& texts) {
        for (auto& [cultures, itsFile, itsTexts] : groups_) {
            if (itsFile == file && itsTexts == texts) {
                cultures += ", " + culture;
                return;
            }
        }
        groups_.emplace_back(culture, file, texts);
    }

    /// The files that a culture's text may come from, as far as there are any: own, then common.
    std::vector<FileId> FilesOf(const CultureName& culture) const {
        std::vector<FileId> files;
        for (const std::string& scope : {target_.TreeFile().scope, lm_tree::CommonScope()}) {
            if (const auto file = snapshot_.GetTree().Answer(culture, scope)) {
                files.push_back(*file);
            }
        }
        return files;
    }

    /// The file that answers.
    std::string HeadOf(const CultureName& culture) const {
        for (const FileId file : FilesOf(culture)) {
            const Document* const document = snapshot_.Get(file);
            if (document != nullptr && document->Find(key_.key) != nullptr) {
                const lm_tree::TreeFile& answering = snapshot_.GetTree().Files()[file];
                const bool isOther = answering.side == lm_tree::Side::Alternative;
                return " (" + answering.path + (isOther ? " of the alternative tree)" : ")");
            }
        }
        return {};
    }

    std::string TextsOf(const CultureName& culture) const {
        // The engine's words on a mistake are many, and the place is marked there.
        for (const FileId file : FilesOf(culture)) {
            const Document* const document = snapshot_.Get(file);
            if (document != nullptr && !document->Mistakes().empty()) {
                const auto place = document->PlaceOf(document->Mistakes().front().range.begin);
                return "  " + snapshot_.GetTree().Files()[file].path + " has a mistake in line " +
                       std::to_string(place.line) + '\n';
            }
        }
        try {
            Engine engine(snapshot_, culture, target_.TreeFile().scope);
            return AskAll(engine, SampleNumbers(snapshot_.GetTree(), culture));
        } catch (const std::exception& error) {
            return "  " + Indented(error.what()) + '\n';
        }
    }

    std::string AskAll(Engine& engine, const std::set<std::uint64_t>& numbers) const {
        std::string texts;
        for (const std::uint64_t number : numbers) {
            const Engine::Answer answer = engine.Ask(key_.key, number);
            const std::string head =
                answer.usesNumber && answer.isText ? std::to_string(number) + ": " : std::string();
            texts += "  " + head + Indented(answer.text) + '\n';
            if (!answer.usesNumber) {
                break;
            }
        }
        return texts;
    }

    const Target& target_;
    const Snapshot& snapshot_;
    const KeyName& key_;
    std::vector<std::tuple<std::string, std::string, std::string>> groups_;
};

/// The texts of a file, and of its neighbours in the directory, that use a parameter.
std::string UsesOf(const Target& target, const std::string& name) {
    const lm_tree::TreeFile& own = target.TreeFile();
    const Snapshot& snapshot = *target.InTree();
    std::string uses;
    std::size_t count = 0;
    for (const FileId file : snapshot.Texts()) {
        const lm_tree::TreeFile& other = snapshot.GetTree().Files()[file];
        const Document* const document = snapshot.Get(file);
        if (document == nullptr || other.side != own.side || other.directory != own.directory) {
            continue;
        }
        for (const Entry& entry : document->Entries()) {
            const auto operands = document->OperandsOf(entry);
            const bool isUsed =
                std::any_of(operands.begin(), operands.end(), [&](const auto& part) {
                    return (part.kind == OperandKind::Param ||
                            part.kind == OperandKind::PluralForm) &&
                           document->Name(part) == name;
                });
            if (isUsed && ++count <= kMostUses) {
                uses += "  " + other.scope + ": " + std::string(document->Key(entry)) + '\n';
            }
        }
    }
    return "$" + name + " is used by\n" + uses +
           (count > kMostUses ? "  and " + std::to_string(count - kMostUses) + " more\n" : "");
}

/// Which numbers choose the form around a place.
std::string FormText(const Target& target, const Spot& spot) {
    const auto& [pluralForm, form] = spot.forms.back();
    const std::string name(target.Document().Name(*pluralForm));
    const std::size_t count = FormsOf(*pluralForm).size();
    std::string text = "form " + std::to_string(form + 1) + " of " + std::to_string(count) +
                       ", by $" + name + '\n';
    for (const CultureName& culture : target.InTree()->CulturesOf(target.File())) {
        try {
            const auto rule = lm_plural::RuleOf(&target.InTree()->GetTree(), culture).rule;
            text += "  " + culture.name + ": " +
                    (form < rule.FormCount() ? lm_plural::RangesText(NumbersOf(rule, form))
                                             : "there is no such form") +
                    '\n';
        } catch (const std::runtime_error& mistake) {
            text += "  " + culture.name + ": " + mistake.what() + '\n';
        }
    }
    return text;
}

}  // namespace

Json HoverAt(const Target& target, std::uint32_t offset) {
    if (target.InTree() == nullptr) {
        return {};
    }
    const Spot spot = SpotAt(target.Document(), offset);
    std::string text;
    if (const auto key = KeyAt(target, offset)) {
        text = FinalTexts(target, *key).Describe();
    } else if (spot.operand != nullptr && spot.operand->kind != OperandKind::Text) {
        text = UsesOf(target, std::string(target.Document().Name(*spot.operand)));
    }
    if (!spot.forms.empty()) {
        text += (text.empty() ? "" : "\n") + FormText(target, spot);
    }
    if (text.empty()) {
        return {};
    }
    // Nothing in it is to be taken for a markup.
    return {{"contents", {{"kind", "plaintext"}, {"value", std::move(text)}}},
            {"range", RangeOf(target.Document(), spot.range)}};
}

}  // namespace lm_lsp
