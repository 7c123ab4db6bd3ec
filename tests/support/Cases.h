// What becomes of sources, from text files beside the tests.
#pragma once

#include <gtest/gtest.h>

#include <boost/algorithm/string/trim.hpp>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "FromUtf8.h"
#include "MessageUtf8.h"
#include "localization_manager/host/text.h"

namespace lm_test {

/// A field of a case without the blanks around it. U+2400 to U+2420, the symbols of control
/// characters and the blank, become what they show.
inline std::u16string ReadField(const std::string& field) {
    std::u16string text = LocalizationManager::Text::FromUtf8(
        boost::trim_copy_if(field, [](char unit) { return unit == ' '; }));
    for (char16_t& unit : text) {
        unit = static_cast<char16_t>(unit >= 0x2400 && unit <= 0x2420 ? unit - 0x2400 : unit);
    }
    return text;
}

/// The lines "source → expected" of a file; others are comments, which start with "#".
inline std::vector<std::pair<std::u16string, std::string>> ReadCases(const std::string& name) {
    const std::string arrow = "\u2192";
    std::vector<std::pair<std::u16string, std::string>> cases;
    std::ifstream file(CASES + name);
    for (std::string line; std::getline(file, line);) {
        const std::size_t at = line.find(arrow);
        if (at != std::string::npos) {
            cases.emplace_back(
                ReadField(line.substr(0, at)),
                localization_manager::host::ToUtf8(ReadField(line.substr(at + arrow.size()))));
        } else {
            EXPECT_EQ(line.substr(0, 1), "#") << line;
        }
    }
    EXPECT_FALSE(cases.empty()) << name;
    return cases;
}

/// A parser's message for "line:column [line of the source] what was expected"; every unit is encoded
/// by itself.
inline std::string FaultText(const std::string& sourceName, const std::string& fault) {
    const std::size_t colon = fault.find(':');
    const std::size_t open = fault.find(" [");
    const std::size_t close = fault.rfind("] ");
    const std::string column = fault.substr(colon + 1, open - colon - 1);
    using namespace LocalizationManager::Text;
    return ToUtf8(FromUtf8("parse error at file " + sourceName + " line " + fault.substr(0, colon) +
                           " column " + column + "\n\"" + fault.substr(open + 2, close - open - 2) +
                           "\"\n" + std::string(std::stoul(column), ' ') + "^- expecting " +
                           fault.substr(close + 2)));
}

}  // namespace lm_test
