#include "FileContent.h"

#include <boost/current_function.hpp>
#include <boost/numeric/conversion/cast.hpp>
#include <cstdint>
#include <memory>
#include <string_view>

#include "Platform.h"
#include "qor/rtl/contracts/checks.h"
#include "qor/rtl/filesystem/File.h"

namespace LocalizationManager::File {

namespace {

using boost::numeric_cast;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The places that messages print.
constexpr const char* kSource = "src\\file\\FileStream";
constexpr std::int32_t kOpenLine = 107;
constexpr std::int32_t kSizeLine = 110;
constexpr std::int32_t kReadLine = 121;

/// Decodes, and drops zeros at the end. A text of zeros only is as long as the file has bytes.
std::u16string Decode(std::string_view bytes, std::size_t fileSize) {
    // Not a string: it would first be filled with zeros.
    const std::unique_ptr<char16_t[]> buffer(new char16_t[fileSize]);
    const std::size_t size = Platform::DecodeUtf8(bytes, buffer.get());
    const std::u16string_view text(buffer.get(), size);
    const std::size_t last = text.find_last_not_of(u'\0');
    return last != std::u16string_view::npos ? std::u16string(text.substr(0, last + 1))
                                             : std::u16string(fileSize, u'\0');
}

}  // namespace

std::u16string GetFileContent(const std::u16string& filename) {
    qor::filesystem::File file;
    CheckCall(file.Create(filename, qor::file_flags::ReadAccess | qor::file_flags::ShareRead,
                          qor::file_flags::OpenExisting, 0),
              "Cannot open file",
              {"file.Create(qor::text::Cast<qor::string16_t>(filename).c_str(), "
               "qor::file_flags::ReadAccess | qor::file_flags::ShareRead, "
               "qor::file_flags::OpenExisting, 0)",
               BOOST_CURRENT_FUNCTION, kSource, kOpenLine});
    std::int64_t size = 0;
    CheckCall(file.GetSize(size), "Cannot get file size",
              {"file.GetSize(size)", BOOST_CURRENT_FUNCTION, kSource, kSizeLine});
    if (size == 0) {
        return {};
    }
    // A text has to be shorter than 2 GiB; a longer one is not read first to find that out.
    (void)numeric_cast<std::int32_t>(size - static_cast<std::int64_t>(kByteOrderMark.size()));
    const auto fileSize = numeric_cast<std::uint32_t>(size);
    const std::unique_ptr<char[]> buffer(new char[fileSize]);
    std::uint32_t bytesRead = 0;
    CheckCall(file.Read(buffer.get(), fileSize, bytesRead), "Cannot read from file",
              {"file.Read(&buff[0], numeric_cast<uint32_t>(size), bytesRead)",
               BOOST_CURRENT_FUNCTION, kSource, kReadLine});
    std::string_view bytes(buffer.get(), bytesRead);
    std::size_t skipped = 0;
    if (bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
        skipped = kByteOrderMark.size();
        bytes.remove_prefix(skipped);
    }
    (void)numeric_cast<std::int32_t>(fileSize - skipped);
    return bytes.empty() ? std::u16string() : Decode(bytes, fileSize);
}

}  // namespace LocalizationManager::File
