#include "report/html.h"

#include "source/Encoding.h"

namespace lm_report {

namespace {

std::string Escape(std::string_view text, std::string_view lineBreak) {
    std::string escaped;
    while (!text.empty()) {
        const lm_source::Character character = lm_source::FirstCharacter(text);
        const std::string_view bytes = text.substr(0, character.bytes);
        const auto unit = static_cast<unsigned>(character.firstUnit);
        if (character.isIllFormed) {
            escaped += "\uFFFD";
        } else if (bytes == "&") {
            escaped += "&amp;";
        } else if (bytes == "<") {
            escaped += "&lt;";
        } else if (bytes == ">") {
            escaped += "&gt;";
        } else if (bytes == "\"") {
            escaped += "&quot;";
        } else if (bytes == "'") {
            escaped += "&#39;";
        } else if (bytes == "\n") {
            escaped += lineBreak;
        } else if (bytes == "\t") {
            escaped += "&#9;";
        } else if (unit < 0x20) {
            escaped += "\xE2\x90";  // U+2400 and on
            escaped += static_cast<char>(0x80U + unit);
        } else {
            escaped += bytes;
        }
        text.remove_prefix(character.bytes);
    }
    return escaped;
}

}  // namespace

std::string Escaped(std::string_view text) {
    return Escape(text, "&#10;");
}

std::string EscapedLines(std::string_view text) {
    return Escape(text, "<br>");
}

}  // namespace lm_report
