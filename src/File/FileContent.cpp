#include "FileContent.h"

#include <boost/current_function.hpp>
#include <boost/numeric/conversion/cast.hpp>
#include <cstdint>
#include <memory>

#include "InputFile.h"
#include "qor/decode_utf8.h"
#include "qor/rtl/contracts/checks.h"
#include "qor/rtl/error_handling/result_from_platform_error.h"

namespace LocalizationManager::File {

namespace {

using boost::numeric_cast;
using qor::ResultFromPlatformError;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The places that messages print.
constexpr const char* kSource = "src\\file\\FileStream";
constexpr std::int32_t kOpenLine = 107;
constexpr std::int32_t kSizeLine = 110;
constexpr std::int32_t kReadLine = 121;

/// Piece by piece: to decode it all at once would touch twice the memory.
std::u16string Decode(std::string_view bytes) {
    constexpr std::size_t kPieceSize = 2048;
    char16_t piece[kPieceSize];
    std::u16string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::size_t size = qor::PlaceToCutUtf8(bytes, kPieceSize);
        text.append(piece, Platform::DecodeUtf8(bytes.substr(0, size), piece));
        bytes.remove_prefix(size);
    }
    return text;
}

}  // namespace

std::u16string DecodeFileContent(std::string_view bytes, std::size_t fileSize) {
    std::size_t skipped = 0;
    if (bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
        skipped = kByteOrderMark.size();
        bytes.remove_prefix(skipped);
    }
    if (bytes.empty()) {
        return {};
    }
    (void)numeric_cast<std::int32_t>(fileSize - skipped);
    std::u16string text = Decode(bytes);
    const std::size_t last = text.find_last_not_of(u'\0');
    text.resize(last != std::u16string::npos ? last + 1 : fileSize);
    return text;
}

std::u16string GetFileContent(const std::u16string& filename) {
    Platform::InputFile file;
    CheckCall(ResultFromPlatformError(file.Open(filename)), "Cannot open file",
              {"file.Create(qor::text::Cast<qor::string16_t>(filename).c_str(), "
               "qor::file_flags::ReadAccess | qor::file_flags::ShareRead, "
               "qor::file_flags::OpenExisting, 0)",
               BOOST_CURRENT_FUNCTION, kSource, kOpenLine});
    std::int64_t size = 0;
    CheckCall(ResultFromPlatformError(file.GetSize(size)), "Cannot get file size",
              {"file.GetSize(size)", BOOST_CURRENT_FUNCTION, kSource, kSizeLine});
    if (size == 0) {
        return {};
    }
    // A text has to be shorter than 2 GiB; a longer one is not read first to find that out.
    (void)numeric_cast<std::int32_t>(size - static_cast<std::int64_t>(kByteOrderMark.size()));
    const auto fileSize = numeric_cast<std::uint32_t>(size);
    const std::unique_ptr<char[]> buffer(new char[fileSize]);
    std::uint32_t bytesRead = 0;
    CheckCall(ResultFromPlatformError(file.Read(buffer.get(), fileSize, bytesRead)),
              "Cannot read from file",
              {"file.Read(&buff[0], numeric_cast<uint32_t>(size), bytesRead)",
               BOOST_CURRENT_FUNCTION, kSource, kReadLine});
    return DecodeFileContent({buffer.get(), bytesRead}, fileSize);
}

}  // namespace LocalizationManager::File
