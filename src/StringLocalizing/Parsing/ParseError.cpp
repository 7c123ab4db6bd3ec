#include "ParseError.h"

#include <boost/spirit/include/qi_operator.hpp>
#include <boost/spirit/include/qi_parse.hpp>
#include <cstddef>
#include <sstream>
#include <string_view>

#include "DuplicateKeyException.h"
#include "NestingGuard.h"
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

std::u16string FormatExpectation(const SourceIterator& position, const std::string& expected) {
    std::u16string message = FormatParsePosition(position);
    message.append(u" expecting ").append(Text::FromUtf8(expected)).append(u" here");
    if (expected == kKeyTermination) {
        message.append(u" or one of previous lines miss termination '(qoute)");
    }
    return message;
}

std::string ToText(const boost::spirit::info& description) {
    std::ostringstream printed;
    printed << description;
    return printed.str();
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
        throw ParsingException(
            FormatExpectation(Locate(first, failure.first), ToText(failure.what_)));
    } catch (const NestingLimitExceeded& limit) {
        throw ParsingException(
            FormatExpectation(Locate(first, limit.place),
                              "at most " + std::to_string(kMaxNesting) + " nested " + limit.what));
    }
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
