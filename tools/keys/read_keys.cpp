#include "keys/read_keys.h"

#include <algorithm>
#include <optional>
#include <set>
#include <stdexcept>

#include "check/Expansion.h"
#include "edit/read_document.h"
#include "localization_manager/host/DerivedParam.h"
#include "tree/path_text.h"

namespace lm_keys {

using lm_check::Expansion;
using lm_source::Document;
using lm_source::OperandKind;

namespace {

/// A file of the reference. Its expansion keeps its address.
struct Source {
    std::string path;
    Document document;
    Expansion expansion;

    Source(const lm_tree::Tree& tree, lm_tree::FileId file, const Expansion* common,
           lm_check::NameSets& names)
        : path(lm_tree::Utf8Of(tree.FullPath(file))),
          document(lm_edit::ReadDocument(tree, file)),
          expansion(document, common, nullptr, names) {
        if (!expansion.Problems().empty()) {
            const auto place = document.PlaceOf(expansion.Problems().front().range.begin);
            throw std::runtime_error(
                path + ':' + std::to_string(place.line) + ':' + std::to_string(place.column) +
                ": the references cannot be followed; 'localize check' says what is wrong");
        }
    }
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;
};

/// What a program supplies for a text.
std::vector<std::string> ParamsOf(const Expansion::Text& text, const lm_check::NameSets& names) {
    std::set<std::string> params;
    for (const lm_check::NameSets::Name name : names.MembersOf(text.params)) {
        params.emplace(localization_manager::host::SuppliedParam(names.TextOf(name)));
    }
    return {params.begin(), params.end()};
}

ScopeKeys KeysOf(const std::string& scope, const Source& source, const lm_check::NameSets& names) {
    ScopeKeys found{scope, {}};
    const Document& document = source.document;
    for (const lm_source::Entry& entry : document.Entries()) {
        Key key{std::string(document.Key(entry)),
                document.LowerKey(entry),
                source.path,
                document.PlaceOf(entry.key.begin),
                ParamsOf(source.expansion.Of(entry), names),
                {}};
        for (const lm_source::Operand& operand : document.OperandsOf(entry)) {
            if (operand.kind == OperandKind::KeyRef) {
                key.references.push_back(document.LowerKey(document.Name(operand)));
            }
        }
        found.keys.push_back(std::move(key));
    }
    std::sort(found.keys.begin(), found.keys.end(),
              [](const Key& left, const Key& right) { return left.lower < right.lower; });
    return found;
}

}  // namespace

std::vector<ScopeKeys> ReadKeys(const lm_tree::Tree& tree, const lm_tree::CultureName& reference) {
    lm_check::NameSets names;
    std::optional<Source> common;
    std::vector<ScopeKeys> all = {{lm_tree::CommonScope(), {}}};
    if (const auto file = tree.Answer(reference, lm_tree::CommonScope())) {
        common.emplace(tree, *file, nullptr, names);
        all.front() = KeysOf(lm_tree::CommonScope(), *common, names);
    }
    for (const std::string& scope : tree.ScopesOf(reference)) {
        const Source source(tree, tree.Answer(reference, scope).value(),
                            common ? &common->expansion : nullptr, names);
        all.push_back(KeysOf(scope, source, names));
    }
    if (!common && all.size() == 1) {
        throw std::runtime_error("the reference '" + reference.name + "' has no texts");
    }
    return all;
}

}  // namespace lm_keys
