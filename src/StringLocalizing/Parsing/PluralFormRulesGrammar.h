// The syntax of plural rule files. Slow to compile: for one source file per kind of actions.
#pragma once

#include <boost/phoenix/bind.hpp>
#include <boost/phoenix/core.hpp>
#include <boost/phoenix/operator.hpp>
#include <boost/phoenix/stl/container.hpp>
#include <boost/spirit/include/qi.hpp>
#include <cstdint>
#include <string>
#include <vector>

#include "CompareOperator.h"
#include "NestingGuard.h"

namespace LocalizationManager::StringLocalizing::Parsing {

using std::string_literals::operator""s;  // a rule takes a plain literal for its definition

/// Rules without a name print as "unnamed-rule" in error texts. No rule has a skipper type of its
/// own, for the reason that the grammar of localisation files gives.
/// @tparam Actions  what becomes of the conditions, see `PluralFormRulesActions`.
template <typename Iterator, class Actions>
class PluralFormRulesGrammar
    : public boost::spirit::qi::grammar<Iterator, std::vector<typename Actions::Condition>()> {
public:
    using Operator = CompareOperator;
    using Condition = typename Actions::Condition;
    using Term = typename Actions::Term;

    PluralFormRulesGrammar();

private:
    template <typename... Attribute>
    using Rule = boost::spirit::qi::rule<Iterator, Attribute...>;

    void DefineConditions();
    void DefineTerms();
    void DefineOperators();

    Rule<std::vector<Condition>()> pluralFormRules_{"pluralFormRules_"s};
    Rule<Condition()> orExpression_{"orExpression_"s};
    Rule<Condition()> andExpression_{"andExpression_"s};
    Rule<Condition()> primary_;
    Rule<Condition()> compareExpression_{"compareExpression_"s};
    Rule<Term()> numberTerm_;
    Rule<Term()> parameter_{"parameter_"s};
    Rule<Term()> moduloExpression_{"moduloExpression_"s};
    Rule<std::uint32_t()> divisor_{"unsigned-integer"s};  // as errors call other numbers
    Rule<Operator()> compareOperator_;
    Rule<Operator()> equal_{"equal_"s};
    Rule<Operator()> notEqual_{"notEqual_"s};
    Rule<Operator()> less_{"less_"s};
    Rule<Operator()> greater_{"greater_"s};
    Rule<Operator()> lessOrEqual_{"lessOrEqual_"s};
    Rule<Operator()> greaterOrEqual_{"greaterOrEqual_"s};
    Rule<> andToken_;
    Rule<> orToken_;
    NestingGuard nesting_{"parentheses"};
};

template <typename Iterator, class Actions>
PluralFormRulesGrammar<Iterator, Actions>::PluralFormRulesGrammar()
    : PluralFormRulesGrammar::base_type(pluralFormRules_, "pluralFormRules_") {
    DefineConditions();
    DefineTerms();
    DefineOperators();
}

template <typename Iterator, class Actions>
void PluralFormRulesGrammar<Iterator, Actions>::DefineConditions() {
    using boost::phoenix::bind;
    using boost::phoenix::push_back;
    using namespace boost::spirit::qi;
    using boost::spirit::standard_wide::space;

    pluralFormRules_ = skip(space)[repeat(0, 5)[orExpression_[push_back(_val, _1)] > L';'] > eoi];
    orExpression_ = skip(space)[(
        andExpression_ > *(orToken_ > andExpression_))[bind(&Actions::MakeOr, _val, _1, _2)]];
    andExpression_ =
        skip(space)[(primary_ > *(andToken_ > primary_))[bind(&Actions::MakeAnd, _val, _1, _2)]];
    // All recursion of the grammar goes through this rule.
    // With an action inside, the condition is passed up by `%=` only.
    primary_ %=
        compareExpression_ | (omit[raw[lit(L'(')][bind(&NestingGuard::Enter, &nesting_, _1)]] >
                              orExpression_ > lit(L')')[bind(&NestingGuard::Leave, &nesting_)]);
    andToken_ = lit(L"&&");
    orToken_ = lit(L"||");
}

template <typename Iterator, class Actions>
void PluralFormRulesGrammar<Iterator, Actions>::DefineTerms() {
    using boost::phoenix::bind;
    using namespace boost::spirit::qi;
    using boost::spirit::standard_wide::space;

    compareExpression_ = skip(space)[(numberTerm_ > compareOperator_ >
                                      uint_)[bind(&Actions::MakeComparison, _val, _1, _2, _3)]];
    numberTerm_ = parameter_ | moduloExpression_;
    parameter_ = skip(space)[(lit(L'n') >> !lit(L'%'))[bind(&Actions::MakeParameter, _val)]];
    moduloExpression_ =
        skip(space)[(lit(L'n') > L'%' > divisor_)[bind(&Actions::MakeModulo, _val, _1)]];
    divisor_ = uint_[_pass = _1 != 0U, _val = _1];
}

template <typename Iterator, class Actions>
void PluralFormRulesGrammar<Iterator, Actions>::DefineOperators() {
    using namespace boost::spirit::qi;

    compareOperator_ = equal_ | notEqual_ | less_ | greater_ | lessOrEqual_ | greaterOrEqual_;
    equal_ = L"==" >> attr(Operator::Equal);
    notEqual_ = L"!=" >> attr(Operator::NotEqual);
    less_ = L'<' >> !lit(L'=') >> attr(Operator::Less);
    greater_ = L'>' >> !lit(L'=') >> attr(Operator::Greater);
    lessOrEqual_ = L"<=" >> attr(Operator::LessOrEqual);
    greaterOrEqual_ = L">=" >> attr(Operator::GreaterOrEqual);
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
