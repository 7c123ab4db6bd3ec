#include "BinaryIO.h"

#include <boost/current_function.hpp>

#include "qor/rtl/contracts/checks.h"
#include "qor/rtl/error_handling/result_from_platform_error.h"

namespace localization_manager {

using qor::ResultFromPlatformError;

namespace {

Platform::InputFile::Origin ToOrigin(std::int32_t origin) noexcept {
    switch (origin) {
        case qor::seek_origin::Current:
            return Platform::InputFile::Origin::Current;
        case qor::seek_origin::End:
            return Platform::InputFile::Origin::End;
        default:
            return Platform::InputFile::Origin::Start;
    }
}

}  // namespace

void BinaryIO::Init(const std::u16string& filename) {
    // The place that messages print.
    constexpr const char* kSource = "src/BinaryIO";
    constexpr std::int32_t kOpenLine = 26;
    ::LocalizationManager::CheckCall(
        ResultFromPlatformError(file_.Open(filename)), "Cannot open file",
        {"file_.Create(qor::text::Cast<qor::string16_t>(filename).c_str(), "
         "qor::file_flags::ReadAccess | qor::file_flags::ShareRead, "
         "qor::file_flags::OpenExisting, 0)",
         BOOST_CURRENT_FUNCTION, kSource, kOpenLine});
}

qor::result_t BinaryIO::Read(void* destination, std::uint32_t wanted, std::uint32_t* read) {
    if (read == nullptr) {
        return qor::rcInvalidArgument;
    }
    return ResultFromPlatformError(file_.Read(destination, wanted, *read));
}

qor::result_t BinaryIO::Write(const void* /*source*/, std::uint32_t /*size*/,
                              std::uint32_t* /*written*/) {
    return qor::rcNotSupported;
}

qor::result_t BinaryIO::Seek(std::int32_t origin, std::int64_t offset, std::int64_t* position) {
    std::int64_t ignored = 0;
    return ResultFromPlatformError(
        file_.Seek(ToOrigin(origin), offset, position != nullptr ? *position : ignored));
}

qor::result_t BinaryIO::GetPosition(std::int64_t* position) {
    return position != nullptr ? Seek(qor::seek_origin::Current, 0, position)
                               : qor::rcInvalidArgument;
}

qor::result_t BinaryIO::GetSize(std::int64_t* size) {
    return size != nullptr ? ResultFromPlatformError(file_.GetSize(*size)) : qor::rcInvalidArgument;
}

qor::result_t BinaryIO::SetSize(std::int64_t /*size*/) {
    return qor::rcNotSupported;
}

qor::result_t BinaryIO::Flush() {
    return qor::rcNotSupported;
}

}  // namespace localization_manager
