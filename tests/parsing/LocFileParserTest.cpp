// Localisation files: what valid texts hold, and the message of every fault.
#include "LocFileParser.h"

#include <gtest/gtest.h>

#include <boost/variant/apply_visitor.hpp>
#include <boost/variant/static_visitor.hpp>
#include <new>
#include <string>
#include <string_view>

#include "GlobalLocale.h"
#include "ParseError.h"
#include "ParseErrorText.h"
#include "ParsingException.h"
#include "Utf8.h"

namespace {

using namespace LocalizationManager;
using namespace StringLocalizing::Model;
using namespace StringLocalizing::Parsing;
using lm_test::ParseErrorText;
using lm_test::ParseFault;

void Parse(std::u16string_view source, ResourceDictionary& dictionary) {
    const auto [first, last] = MakeSourceRange(source, u"app.lt");
    ParseResourceDictionary(first, last, dictionary);
}

// "text" + key + $param + {$param: value, value}
std::string Print(const Value& value);

struct OperandPrinter : boost::static_visitor<std::string> {
    std::string operator()(const std::u16string& text) const {
        return '"' + Text::ToUtf8(text) + '"';
    }
    std::string operator()(const KeyRef& keyRef) const { return Text::ToUtf8(keyRef.key); }
    std::string operator()(const Param& param) const { return '$' + Text::ToUtf8(param.name); }
    std::string operator()(const PluralForm& pluralForm) const {
        std::string text = "{$" + Text::ToUtf8(pluralForm.paramName);
        for (const Value& form : pluralForm.forms) {
            text += (&form == &pluralForm.forms.front() ? ": " : ", ") + Print(form);
        }
        return text + '}';
    }
};

std::string Print(const Value& value) {
    std::string text;
    for (const Operand& operand : value.operands) {
        text += (text.empty() ? "" : " + ") + boost::apply_visitor(OperandPrinter(), operand);
    }
    return text;
}

std::string Print(const ResourceDictionary& dictionary) {
    std::string text;
    for (const auto& [key, value] : dictionary) {
        text += Text::ToUtf8(key) + " = " + Print(value) + "; ";
    }
    return text;
}

std::string ErrorOf(std::u16string_view source) {
    try {
        ResourceDictionary dictionary;
        Parse(source, dictionary);
        return "none, but the dictionary " + Print(dictionary);
    } catch (const ParsingException& caught) {
        EXPECT_EQ(Text::ToUtf8(caught.Message()), caught.what());
        return caught.what();
    }
}

TEST(LocFileParserTest, ValidTextsFillTheDictionary) {
    const struct {
        const char16_t* source;
        const char* dictionary;
    } cases[] = {
        // Nothing but whitespace and comments.
        {u"", ""},
        {u" \t\n\v\f\r", ""},
        {u"; comment", ""},
        {u";\r;;x = 'y'\r\n ; $ ' { \n", ""},
        // Entries and what separates them.
        {u"a='x' b='y'", R"(a = "x"; b = "y"; )"},
        {u"a='x'b='y'c=a d=b", R"(a = "x"; b = "y"; c = a; d = b; )"},
        {u"Main.Status_Text='x'_='y'Z9.='z'", R"(_ = "y"; main.status_text = "x"; z9. = "z"; )"},
        {u";c\ra='x';c\r\nb='y' ;c\n;c\n c='z' ;", R"(a = "x"; b = "y"; c = "z"; )"},
        {u"a\r\n=\r\n'x'\r\n", R"(a = "x"; )"},
        // Operands.
        {u"Hello = 'Hello, ' + $UserName + '!'", R"(hello = "Hello, " + $UserName + "!"; )"},
        {u"Title = Hello + ' (' + App.NAME + ')' ; shown in caption",
         "title = hello + \" (\" + app.name + \")\"; "},
        {u"a = 'x' +\n'y'\n+ b+c", R"(a = "x" + "y" + b + c; )"},
        {u"a=$A_b.C9+$d b=$c ", R"(a = $A_b.C9 + $d; b = $c; )"},
        // Strings. The units U+0127 and U+015C end in the bytes of a quote and a backslash.
        {u"a=''", R"(a = ""; )"},
        {uR"(a='It\'s a \\ path\nnext')", "a = \"It's a \\ path\nnext\"; "},
        {uR"(a='a\tb')", R"(a = "a\tb"; )"},
        {uR"(a='\\\'\"\N\\n')", R"(a = "\'\"\N\n"; )"},
        {u"a='; no {comment} + $x = y\r\n \"next\" line'",
         "a = \"; no {comment} + $x = y\r\n \"next\" line\"; "},
        {u"a='\U0001D11E\u0127\u015C\uFFFF'",
         "a = \"\xED\xA0\xB4\xED\xB4\x9E\u0127\u015C\uFFFF\"; "},
        // Plural forms.
        {u"Files = {$count: 'one file', $count + ' files'}",
         R"(files = {$count: "one file", $count + " files"}; )"},
        {u"Files={\n$count\r:\n'one file',\r\n$count\n+ ' files' }",
         R"(files = {$count: "one file", $count + " files"}; )"},
        {u"a={$N:b}+{$n:'1','2','3','4','5','6'}",
         R"(a = {$N: b} + {$n: "1", "2", "3", "4", "5", "6"}; )"},
        {u"a={$n:{$m:'x',{$k:'y'}+B},'z'}", R"(a = {$n: {$m: "x", {$k: "y"} + b}, "z"}; )"},
    };
    for (const auto& expected : cases) {
        ResourceDictionary dictionary;
        EXPECT_NO_THROW(Parse(expected.source, dictionary)) << Text::ToUtf8(expected.source);
        EXPECT_EQ(Print(dictionary), expected.dictionary);
    }
}

TEST(LocFileParserTest, AFaultIsReportedWithItsPlaceItsLineAndACaret) {
    EXPECT_EQ(ErrorOf(u"Key 'value'"),
              "parse error at file app.lt line 1 column 5\n"
              "\"Key 'value'\"\n"
              "     ^- expecting \"=\" here or one of previous lines miss termination '(qoute)");
}

TEST(LocFileParserTest, EveryFaultNamesWhatWasExpected) {
    const ParseFault faults[] = {
        // After a key.
        {u"a", 1, 2, "a", "\"=\""},
        {u"a ;c\n='x'", 1, 3, "a ;c", "\"=\""},
        {u"a-b='x'", 1, 2, "a-b='x'", "\"=\""},
        {u"a\uFF1D'x'", 1, 2, "a\uFF1D'x'", "\"=\""},
        {u"a = 'unterminated\nbb\nb = 'c'", 3, 7, "b = 'c'", "\"=\""},
        // After the "=".
        {u"a=", 1, 3, "a=", "<expression_>"},
        {u"a = ;c\n'x'", 1, 5, "a = ;c", "<expression_>"},
        {u"a = $n: 'x'", 1, 5, "a = $n: 'x'", "<expression_>"},
        {u"a = $n\n : 'x'", 1, 5, "a = $n", "<expression_>"},
        // Between entries.
        {u"+", 1, 1, "+", "<eoi>"},
        {u"9a='x'", 1, 1, "9a='x'", "<eoi>"},
        {u".a='x'", 1, 1, ".a='x'", "<eoi>"},
        {u"\u0141='x'", 1, 1, "\u0141='x'", "<eoi>"},  // ends in the byte of an "A"
        {u"a = 'x' +", 1, 9, "a = 'x' +", "<eoi>"},
        {u"a='x'+$n:b", 1, 6, "a='x'+$n:b", "<eoi>"},
        {u"a = 'x'\n; c\n+ 'y'", 3, 1, "+ 'y'", "<eoi>"},
        // In a string.
        {u"a = 'x", 1, 7, "a = 'x", "\"'\""},
        {u"a = '", 1, 6, "a = '", "\"'\""},
        {u"a='x\\", 1, 6, "a='x\\", "\"'\""},
        {u"a='x\\'", 1, 7, "a='x\\'", "\"'\""},
        // In a parameter.
        {u"a=$", 1, 4, "a=$", "<key_>"},
        {u"a=$ n", 1, 4, "a=$ n", "<key_>"},
        {u"a=$9", 1, 4, "a=$9", "<key_>"},
        {u"a={$", 1, 5, "a={$", "<key_>"},
        // In a plural form.
        {u"a={", 1, 4, "a={", "<paramName_>"},
        {u"a={ n:'x'}", 1, 5, "a={ n:'x'}", "<paramName_>"},
        {u"a={$n", 1, 6, "a={$n", "\":\""},
        {u"a={$n 'x'}", 1, 7, "a={$n 'x'}", "\":\""},
        {u"a={$n:}", 1, 7, "a={$n:}", "<expression_>"},
        {u"a={$n:$m:'x'}", 1, 7, "a={$n:$m:'x'}", "<expression_>"},
        {u"a={$n:'x', }", 1, 12, "a={$n:'x', }", "<expression_>"},
        {u"a={$n:'x'", 1, 10, "a={$n:'x'", "\"}\""},
        {u"a={$n:'x' 'y'}", 1, 11, "a={$n:'x' 'y'}", "\"}\""},
        {u"a={$n:'x';c\n}", 1, 10, "a={$n:'x';c", "\"}\""},
        {u"a={$n:b,b,b,b,b,b ,b}", 1, 19, "a={$n:b,b,b,b,b,b ,b}", "\"}\""},
    };
    for (const ParseFault& fault : faults) {
        EXPECT_EQ(ErrorOf(fault.source), ParseErrorText("app.lt", fault));
    }
}

TEST(LocFileParserTest, PlacesCountLinesTabsAndUnits) {
    const ParseFault faults[] = {
        {u"a='x'\rb='y'\r\nc='z'\n?", 4, 1, "?", "<eoi>"},
        {u"\r\r\n\n\r?", 5, 1, "?", "<eoi>"},
        {u"; c\n  ? b\rc='x'", 2, 3, "  ? b", "<eoi>"},
        {u"\n? b\r\nc='x'", 2, 1, "? b", "<eoi>"},
        {u"a='x\n y' ?", 2, 5, " y' ?", "<eoi>"},
        {u"a=\r\n", 2, 1, "", "<expression_>"},
        {u"a='x\r", 2, 1, "", "\"'\""},
        {u"a={$\r\nn:b}", 1, 5, "a={$", "<key_>"},
        {u"\ta\t?", 1, 9, "\ta\t?", "\"=\""},
        {u"   \t?", 1, 5, "   \t?", "<eoi>"},
        {u"a='\U0001D11E' ?", 1, 8, "a='\xED\xA0\xB4\xED\xB4\x9E' ?", "<eoi>"},
    };
    for (const ParseFault& fault : faults) {
        EXPECT_EQ(ErrorOf(fault.source), ParseErrorText("app.lt", fault));
    }
}

TEST(LocFileParserTest, ADuplicateKeyIsReportedWithoutAPlaceAndKeepsWhatCameBefore) {
    const char* const message = "duplicate key found (keys are case insensitive): 'a.b'";
    EXPECT_EQ(ErrorOf(u"A.b='2'\na.B='3'"), message);

    ResourceDictionary dictionary;
    EXPECT_THROW(Parse(u"a='1' A.b='2' a.B='3' c='4'", dictionary), ParsingException);
    EXPECT_THROW(Parse(u"d='5' a.b='6'", dictionary), ParsingException);
    EXPECT_THROW(Parse(u"e='7' f=", dictionary), ParsingException);
    EXPECT_EQ(Print(dictionary), R"(a = "1"; a.b = "2"; d = "5"; e = "7"; )");
}

TEST(LocFileParserTest, TheGlobalLocaleDecidesWhatIsWhitespaceButNotHowNumbersPrint) {
    const lm_test::GlobalLocale english("en_US.UTF-8");
    ResourceDictionary dictionary;
    Parse(u"\u2003A\u3000=\u2003'x'\u3000+\u2003B\u3000", dictionary);
    EXPECT_EQ(Print(dictionary), R"(a = "x" + b; )");

    const std::u16string source = std::u16string(1233, u'\n') + std::u16string(1233, u' ') + u'?';
    const std::string shownLine = Text::ToUtf8(source.substr(1233));
    EXPECT_EQ(ErrorOf(source),
              ParseErrorText("app.lt", {nullptr, 1234, 1234, shownLine.c_str(), "<eoi>"}));
}

TEST(LocFileParserTest, OtherFailuresPassUnchanged) {
    try {
        throw std::bad_alloc();
    } catch (...) {
        EXPECT_THROW(TranslateParseError(SourceIterator()), std::bad_alloc);
    }
}

}  // namespace
