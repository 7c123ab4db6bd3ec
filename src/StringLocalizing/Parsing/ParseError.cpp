#include "ParseError.h"

#include <boost/spirit/include/qi_operator.hpp>
#include <boost/spirit/include/qi_parse.hpp>
#include <cstddef>
#include <sstream>
#include <string_view>

#include "DuplicateKeyException.h"
#include "ParsingException.h"
#include "Utf8.h"

namespace LocalizationManager::StringLocalizing::Parsing {

namespace {

using ExpectationFailure = boost::spirit::qi::expectation_failure<const char16_t*>;

// What is expected after a key. It is missing there when a string before the key never ended.
constexpr std::string_view kKeyTermination = "\"=\"";

std::u16string ToText(int number) {
    return Text::FromUtf8(std::to_string(number));
}

/// The parsers run without positions, which are needed only now.
SourceIterator Locate(SourceIterator position, const char16_t* place) {
    while (position.base() != place) {
        ++position;
    }
    return position;
}

std::u16string FormatExpectation(const SourceIterator& first, const ExpectationFailure& failure) {
    std::ostringstream printed;
    printed << failure.what_;
    const std::string description = printed.str();

    std::u16string message = FormatParsePosition(Locate(first, failure.first));
    message.append(u" expecting ").append(Text::FromUtf8(description)).append(u" here");
    if (description == kKeyTermination) {
        message.append(u" or one of previous lines miss termination '(qoute)");
    }
    return message;
}

}  // namespace

std::u16string FormatParsePosition(const SourceIterator& position) {
    const SourcePosition& place = position.get_position();
    std::u16string text = u"parse error at file ";
    text.append(place.file);
    text.append(u" line ").append(ToText(place.line));
    text.append(u" column ").append(ToText(place.column));
    text.append(u"\n\"").append(position.get_currentline()).append(u"\"\n");
    text.append(static_cast<std::size_t>(place.column), u' ').append(u"^-");
    return text;
}

void TranslateParseError(const SourceIterator& first) {
    try {
        throw;
    } catch (const DuplicateKeyException& duplicate) {
        throw ParsingException(Text::FromUtf8(duplicate.what()));
    } catch (const ExpectationFailure& failure) {
        throw ParsingException(FormatExpectation(first, failure));
    }
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
