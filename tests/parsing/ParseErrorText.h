// What the tests of both parsers expect of a faulty source.
#pragma once

#include <cstddef>
#include <string>

namespace lm_test {

struct ParseFault {
    const char16_t* source;
    int line;
    int column;
    const char* shownLine;
    const char* description;
};

inline std::string ParseErrorText(const std::string& sourceName, const ParseFault& fault) {
    std::string text = "parse error at file " + sourceName + " line " + std::to_string(fault.line) +
                       " column " + std::to_string(fault.column) + "\n\"" + fault.shownLine +
                       "\"\n" + std::string(static_cast<std::size_t>(fault.column), ' ') +
                       "^- expecting " + fault.description + " here";
    if (fault.description == std::string("\"=\"")) {
        text += " or one of previous lines miss termination '(qoute)";
    }
    return text;
}

}  // namespace lm_test
