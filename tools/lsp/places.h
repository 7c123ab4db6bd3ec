// Places as the protocol writes them: lines and UTF-16 columns from 0.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lsp/Json.h"
#include "source/Document.h"

namespace lm_lsp {

/// The position at the end of a path of members.
/// @throws RequestError for what is none. One out of the text is a matter of `OffsetOf`.
lm_source::Place ReadPlace(const Json& value, const std::string& path);

Json PositionOf(lm_source::Place place);
Json RangeOf(lm_source::Place begin, lm_source::Place end);
Json RangeOf(const lm_source::Document& document, lm_source::Range range);

/// A change of a text, as the client is to make it.
Json EditOf(const lm_source::Document& document, lm_source::Range range, std::string text);

/// The changes that make one text of another: each line that differs where both have as many lines,
/// else all between the first and the last.
Json EditsBetween(std::string_view before, std::string_view after);

}  // namespace lm_lsp
