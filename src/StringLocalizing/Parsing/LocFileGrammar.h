// The syntax of localisation files. Slow to compile: for LocFileParser.cpp alone.
#pragma once

#include <boost/fusion/include/std_pair.hpp>
#include <boost/phoenix/bind.hpp>
#include <boost/phoenix/core.hpp>
#include <boost/phoenix/function.hpp>
#include <boost/phoenix/operator.hpp>
#include <boost/spirit/include/qi.hpp>
#include <string>
#include <utility>

#include "LocFileActions.h"
#include "NestingGuard.h"

namespace LocalizationManager::StringLocalizing::Parsing {

using std::string_literals::operator""s;  // a rule takes a plain literal for its definition

/// A rule that skips does so in its body and has no skipper type of its own. Its caller then passes
/// over whitespace before it, also when it fails, and errors point behind that whitespace.
class LocFileGrammar
    : public boost::spirit::qi::grammar<const char16_t*, Model::ResourceDictionary()> {
public:
    LocFileGrammar();

private:
    template <typename... Attribute>
    using Rule = boost::spirit::qi::rule<const char16_t*, Attribute...>;

    void DefineEntries();
    void DefineOperands();

    Rule<Model::ResourceDictionary()> resourceDictionary_{"resourceDictionary_"s};
    Rule<> comment_{"comment_"s};
    Rule<KeyValueEntry()> keyValueEntry_{"keyValueEntry_"s};
    Rule<std::u16string()> key_{"key_"s};
    Rule<Model::Value()> expression_{"expression_"s};
    Rule<Model::Operand()> operand_{"operand_"s};
    Rule<std::u16string()> string_{"string_"s};
    Rule<std::u16string()> paramName_{"paramName_"s};
    Rule<Model::Param()> param_{"param_"s};
    Rule<Model::KeyRef()> keyRef_{"keyRef_"s};
    Rule<Model::PluralForm()> pluralForm_{"pluralForm_"s};
    boost::spirit::qi::symbols<char16_t, char16_t> escapes_;
    Text::LowerCaseMapping lowerCase_;
    NestingGuard nesting_{"plural forms"};
};

inline LocFileGrammar::LocFileGrammar() : base_type(resourceDictionary_, "resourceDictionary_") {
    escapes_.add(std::u16string(u"\\n"), u'\n');
    escapes_.add(std::u16string(u"\\\\"), u'\\');
    escapes_.add(std::u16string(u"\\'"), u'\'');
    DefineEntries();
    DefineOperands();
}

inline void LocFileGrammar::DefineEntries() {
    using boost::phoenix::bind;
    using namespace boost::spirit::qi;
    using boost::spirit::standard_wide::char_;
    using boost::spirit::standard_wide::space;

    const boost::phoenix::function addEntry(
        [this](Model::ResourceDictionary& dictionary, KeyValueEntry& entry) {
            AddEntry(dictionary, entry, lowerCase_);
        });

    resourceDictionary_ = skip(space | comment_)[*keyValueEntry_[addEntry(_val, _1)] > eoi];
    comment_ = L';' >> *(char_ - eol);
    keyValueEntry_ = skip(space)[key_ > L'=' > expression_];
    key_ = raw[char_(L"a-zA-Z_") >> *char_(L"a-zA-Z_0-9.")];
    expression_ = skip(space)[operand_[bind(&AddOperand, _val, _1)] % L'+'];
}

inline void LocFileGrammar::DefineOperands() {
    using boost::phoenix::bind;
    using namespace boost::spirit::qi;
    using boost::spirit::standard_wide::char_;
    using boost::spirit::standard_wide::space;

    const boost::phoenix::function moveTo(
        [](Model::Operand& operand, auto& alternative) { operand = std::move(alternative); });
    const boost::phoenix::function append(
        [](std::u16string& text, const auto& run) { text.append(run.begin(), run.end()); });
    const boost::phoenix::function appendUnit(
        [](std::u16string& text, char16_t unit) { text.push_back(unit); });
    const boost::phoenix::function setKeyRef([this](Model::KeyRef& keyRef, std::u16string& name) {
        SetKeyRef(keyRef, name, lowerCase_);
    });
    const boost::phoenix::function setName(
        [](auto& target, std::u16string& name) { SetName(target, name); });

    operand_ = string_[moveTo(_val, _1)] | keyRef_[moveTo(_val, _1)] | param_[moveTo(_val, _1)] |
               pluralForm_[moveTo(_val, _1)];
    string_ =
        (L'\'' >> *(raw[+(char_ - (lit(L'\'') | L'\\'))][append(_val, _1)] |
                    escapes_[appendUnit(_val, _1)] | lit(L'\\')[appendUnit(_val, u'\\')])) > L'\'';
    keyRef_ = key_[setKeyRef(_val, _1)];
    paramName_ = L'$' > key_;
    param_ = skip(space)[paramName_[setName(_val, _1)] >> !lit(L':')];
    // All recursion of the grammar goes through this rule.
    pluralForm_ =
        skip(space)[raw[lit(L'{')][bind(&NestingGuard::Enter, &nesting_, _1)] >
                    paramName_[setName(_val, _1)] > L':' > expression_[bind(&AddForm, _val, _1)] >
                    repeat(0, 5)[L',' > expression_[bind(&AddForm, _val, _1)]] >
                    lit(L'}')[bind(&NestingGuard::Leave, &nesting_)]];
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
