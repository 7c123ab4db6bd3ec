// Runs the language server over two streams.
#pragma once

#include <istream>
#include <ostream>
#include <string>

namespace lm_lsp {

/// Answers until the editor says `exit`, or its stream ends or is broken.
/// @return whether the editor ended as it should: with `shutdown` before.
bool Serve(std::istream& in, std::ostream& out, const std::string& version);

}  // namespace lm_lsp
