#include "ParseError.h"

#include <boost/spirit/include/qi_operator.hpp>
#include <boost/spirit/include/qi_parse.hpp>
#include <cstddef>
#include <sstream>
#include <string_view>
#include <utility>

#include "DuplicateKeyException.h"
#include "MessageUtf8.h"
#include "NestingLimitExceeded.h"
#include "ParsingException.h"

namespace LocalizationManager::StringLocalizing::Parsing {

namespace {

using ExpectationFailure = boost::spirit::qi::expectation_failure<const char16_t*>;

// What is expected after a key. It is missing there when a string before the key never ended.
constexpr std::string_view kKeyTermination = "\"=\"";

/// The parsers run without positions, which are needed only now.
SourceIterator Locate(SourceIterator position, const char16_t* place) {
    while (position.base() != place) {
        ++position;
    }
    return position;
}

ParsingException Expectation(const SourceIterator& first, const char16_t* place,
                             const std::string& expected) {
    std::string expectation = " expecting " + expected + " here";
    if (expected == kKeyTermination) {
        expectation += " or one of previous lines miss termination '(qoute)";
    }
    std::string message = FormatParsePosition(Locate(first, place), expectation.size());
    message += expectation;
    return ParsingException(std::move(message), static_cast<std::size_t>(place - first.base()));
}

std::string ToText(const boost::spirit::info& description) {
    std::ostringstream printed;
    printed << description;
    return printed.str();
}

}  // namespace

std::string FormatParsePosition(const SourceIterator& position, std::size_t room) {
    const SourcePosition& place = position.get_position();
    const char16_t* const lineBegin = position.get_currentline_begin();
    const std::u16string_view line(
        lineBegin, static_cast<std::size_t>(position.get_currentline_end() - lineBegin));
    const auto column = static_cast<std::size_t>(place.column);
    std::string text = "parse error at file " + Text::ToUtf8(place.file) + " line " +
                       std::to_string(place.line) + " column " + std::to_string(place.column) +
                       "\n\"";
    constexpr std::string_view kLineEnd = "\"\n";
    constexpr std::string_view kCaret = "^-";
    text.reserve(text.size() + Text::Utf8Size(line) + kLineEnd.size() + column + kCaret.size() +
                 room);
    Text::AppendUtf8(text, line);
    text.append(kLineEnd).append(column, ' ').append(kCaret);
    return text;
}

void TranslateParseError(const SourceIterator& first) {
    try {
        throw;
    } catch (const DuplicateKeyException& duplicate) {
        throw ParsingException(duplicate.what());
    } catch (const ExpectationFailure& failure) {
        throw Expectation(first, failure.first, ToText(failure.what_));
    } catch (const NestingLimitExceeded& limit) {
        throw Expectation(first, limit.Place(), limit.what());
    }
}

}  // namespace LocalizationManager::StringLocalizing::Parsing
