// The files that a program is written in.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "keys/Language.h"

namespace localize {

/// @param named  files, which are read as C where the extension says nothing else, and directories, of which
///               the sources below them are taken; not those in hidden directories.
/// @return each once, in the order in which they are named, and of a directory in the order of their paths.
/// @throws std::runtime_error when a directory cannot be read, or all of them have no source.
std::vector<std::pair<std::string, lm_keys::Language>> ProgramSources(
    const std::vector<std::string>& named);

}  // namespace localize
