// Reading a whole text file.
#pragma once

#include <string>

namespace LocalizationManager::File {

/// The text of a file in UTF-8, with or without a byte-order mark; malformed parts become U+FFFD
/// and zeros at the end are dropped.
/// @throws QorCallFailedException when the file cannot be opened, sized or read;
///         boost::numeric::positive_overflow for 2 GiB and more; std::bad_alloc.
std::u16string GetFileContent(const std::u16string& filename);

}  // namespace LocalizationManager::File
