#include "read_text.h"

#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>

namespace localize {

namespace {

std::string ReadAll(std::istream& stream, const std::string& file) {
    std::ostringstream text;
    // Inserting an empty stream's buffer sets a failure bit, so the input is asked instead.
    if (stream && stream.peek() != std::istream::traits_type::eof()) {
        text << stream.rdbuf();
    }
    if (stream.bad() || (stream.fail() && !stream.eof())) {
        throw std::runtime_error("cannot read '" + file + "'");
    }
    return text.str();
}

}  // namespace

std::string ReadText(const std::string& file) {
    std::string text;
    if (file == kStandardInput) {
        text = ReadAll(std::cin, file);
    } else {
        std::ifstream stream(file, std::ios::binary);
        text = ReadAll(stream, file);
    }
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (text.compare(0, kByteOrderMark.size(), kByteOrderMark) == 0) {
        text.erase(0, kByteOrderMark.size());
    }
    return text;
}

}  // namespace localize
