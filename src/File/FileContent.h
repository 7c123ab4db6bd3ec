// Reading a whole text file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace LocalizationManager::File {

/// The text that bytes in UTF-8 hold, with or without a byte-order mark; malformed parts become U+FFFD
/// and zeros at the end are dropped. A text of zeros only is as long as the file has bytes.
/// @param bytes     what could be read of a file.
/// @param fileSize  what the file was said to have before.
/// @throws boost::numeric::positive_overflow for 2 GiB and more; std::bad_alloc.
std::u16string DecodeFileContent(std::string_view bytes, std::size_t fileSize);

/// The text of a file, as above.
/// @throws QorCallFailedException when the file cannot be opened, sized or read;
///         boost::numeric::positive_overflow for 2 GiB and more; std::bad_alloc.
std::u16string GetFileContent(const std::u16string& filename);

}  // namespace LocalizationManager::File
