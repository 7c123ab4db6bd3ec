// Texts in HTML.
#pragma once

#include <string>
#include <string_view>

namespace lm_report {

/// A text as HTML shows it, on one line of the source and good for attributes as well: nothing of it is
/// markup. Control characters become the symbols that stand for them.
/// @param text  UTF-8; ill-formed parts become U+FFFD.
std::string Escaped(std::string_view text);

/// The same, with line breaks that are seen.
std::string EscapedLines(std::string_view text);

}  // namespace lm_report
