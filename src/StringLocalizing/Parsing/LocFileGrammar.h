// The syntax of localisation files. Slow to compile: for LocFileParser.cpp alone.
#pragma once

#include <boost/phoenix/bind.hpp>
#include <boost/phoenix/core.hpp>
#include <boost/phoenix/operator.hpp>
#include <boost/spirit/include/qi.hpp>
#include <string>

#include "LocFileActions.h"
#include "NestingGuard.h"
#include "max_forms.h"

namespace LocalizationManager::StringLocalizing::Parsing {

using std::string_literals::operator""s;  // a rule takes a plain literal for its definition

/// A rule that skips does so in its body and has no skipper type of its own. Its caller then passes
/// over whitespace before it, also when it fails, and errors point behind that whitespace.
///
/// An operand is written down as soon as nothing can fail any more but the whole parse.
class LocFileGrammar : public boost::spirit::qi::grammar<const char16_t*> {
public:
    explicit LocFileGrammar(LocFileActions& actions);

private:
    using Range = LocFileActions::Range;
    template <typename... Attribute>
    using Rule = boost::spirit::qi::rule<const char16_t*, Attribute...>;

    void DefineEntries();
    void DefineOperands();

    /// An action of the grammar, with what was read or without.
    template <class Class, class... Arguments>
    static auto Do(void (Class::*action)(Arguments...), Class& object) {
        if constexpr (sizeof...(Arguments) == 0) {
            return boost::phoenix::bind(action, &object);
        } else {
            return boost::phoenix::bind(action, &object, boost::spirit::qi::_1);
        }
    }

    Rule<> resourceDictionary_{"resourceDictionary_"s};
    Rule<> comment_{"comment_"s};
    Rule<> keyValueEntry_{"keyValueEntry_"s};
    Rule<Range()> key_{"key_"s};
    Rule<> expression_{"expression_"s};
    Rule<> operand_{"operand_"s};
    Rule<> string_{"string_"s};
    Rule<Range()> paramName_{"paramName_"s};
    Rule<Range()> param_{"param_"s};
    Rule<> keyRef_{"keyRef_"s};
    Rule<> pluralForm_{"pluralForm_"s};
    boost::spirit::qi::symbols<char16_t, char16_t> escapes_;
    LocFileActions& actions_;
    NestingGuard nesting_{"plural forms"};
};

inline LocFileGrammar::LocFileGrammar(LocFileActions& actions)
    : base_type(resourceDictionary_, "resourceDictionary_"), actions_(actions) {
    escapes_.add(std::u16string(u"\\n"), u'\n');
    escapes_.add(std::u16string(u"\\\\"), u'\\');
    escapes_.add(std::u16string(u"\\'"), u'\'');
    DefineEntries();
    DefineOperands();
}

inline void LocFileGrammar::DefineEntries() {
    using namespace boost::spirit::qi;
    using boost::spirit::standard_wide::char_;
    using boost::spirit::standard_wide::space;
    using Actions = LocFileActions;

    resourceDictionary_ =
        skip(space | comment_)[*keyValueEntry_[Do(&Actions::AddEntry, actions_)] > eoi];
    comment_ = L';' >> *(char_ - eol);
    keyValueEntry_ = skip(space)[key_[Do(&Actions::BeginEntry, actions_)] > L'=' > expression_];
    key_ =
        raw[boost::spirit::ascii::char_("a-zA-Z_") >> *boost::spirit::ascii::char_("a-zA-Z_0-9.")];
    expression_ = skip(space)[operand_ % L'+'];
}

inline void LocFileGrammar::DefineOperands() {
    using namespace boost::spirit::qi;
    using boost::spirit::standard_wide::char_;
    using boost::spirit::standard_wide::space;
    using Actions = LocFileActions;

    const auto beginForm = Do(&Actions::BeginForm, actions_);
    const auto endForm = Do(&Actions::EndForm, actions_);
    const auto addUnit = Do(&Actions::AddUnit, actions_);

    operand_ = string_ | keyRef_ | param_[Do(&Actions::AddParam, actions_)] | pluralForm_;
    string_ = (lit(L'\'')[Do(&Actions::BeginText, actions_)] >>
               *(raw[+(char_ - (lit(L'\'') | L'\\'))][Do(&Actions::AddRun, actions_)] |
                 escapes_[addUnit] | char_(L'\\')[addUnit])) > L'\'';
    keyRef_ = key_[Do(&Actions::AddKeyRef, actions_)];
    paramName_ = L'$' > key_;
    param_ = skip(space)[paramName_ >> !lit(L':')];
    // All recursion of the grammar goes through this rule.
    pluralForm_ =
        skip(space)[raw[lit(L'{')][Do(&NestingGuard::Enter, nesting_)] >
                    paramName_[Do(&Actions::BeginPluralForm, actions_)] > lit(L':')[beginForm] >
                    expression_[endForm] >
                    repeat(0, Model::kMaxForms - 1)[lit(L',')[beginForm] > expression_[endForm]] >
                    lit(L'}')[Do(&NestingGuard::Leave, nesting_)]
                             [Do(&Actions::EndPluralForm, actions_)]];
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
