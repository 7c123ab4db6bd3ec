// What the grammar of localisation files does with what it has read.
#pragma once

#include <boost/range/iterator_range_core.hpp>
#include <string>
#include <string_view>

#include "LowerCaseMapping.h"
#include "ResourceDictionary.h"

namespace LocalizationManager::StringLocalizing::Parsing {

/// Writes each entry down while it is read, and puts it into the dictionary when it is complete.
class LocFileActions {
public:
    using Range = boost::iterator_range<const char16_t*>;  // a part of the source

    explicit LocFileActions(Model::ResourceDictionary& dictionary) : dictionary_(dictionary) {}

    void BeginEntry(const Range& key);

    /// @throws DuplicateKeyException when the dictionary holds the key in any letter case.
    void AddEntry();

    /// A text comes in runs, between the escapes.
    void BeginText() { value_.AppendText({}); }
    void AddRun(const Range& run) { value_.ExtendText(ViewOf(run)); }
    void AddUnit(char16_t unit) { value_.ExtendText({&unit, 1}); }

    void AddKeyRef(const Range& key);
    void AddParam(const Range& name) { value_.AppendParam(ViewOf(name)); }

    void BeginPluralForm(const Range& paramName) { value_.BeginPluralForm(ViewOf(paramName)); }
    void BeginForm() { value_.BeginForm(); }
    void EndForm() { value_.EndForm(); }
    void EndPluralForm() { value_.EndPluralForm(); }

private:
    static std::u16string_view ViewOf(const Range& range) {
        return {range.begin(), static_cast<std::size_t>(range.size())};
    }

    /// @param lower  receives the key; keeps its room for the next one.
    void LowerCase(const Range& key, std::u16string& lower) const;

    Model::ResourceDictionary& dictionary_;
    Text::LowerCaseMapping lowerCase_;
    std::u16string key_;
    Model::Value value_;
    std::u16string referenced_;
};

}  // namespace LocalizationManager::StringLocalizing::Parsing
