// Reads a text that is not part of a localisation tree.
#pragma once

#include <cstddef>
#include <limits>
#include <string>

namespace localize {

/// The name that stands for standard input.
inline constexpr const char* kStandardInput = "-";

/// How reports name a file.
inline std::string ShownName(const std::string& file) {
    return file == kStandardInput ? "(standard input)" : file;
}

/// @param file   "-" for standard input.
/// @param limit  of bytes.
/// @throws std::runtime_error, with the system's reason, when it cannot be read, or is longer.
std::string ReadBytes(const std::string& file,
                      std::size_t limit = std::numeric_limits<std::size_t>::max());

/// @param file  "-" for standard input.
/// @return the text in UTF-8, without a byte-order mark.
/// @throws std::runtime_error, with the system's reason, when it cannot be read.
std::string ReadText(const std::string& file);

}  // namespace localize
