#include "BinaryIO.h"

#include <boost/current_function.hpp>

#include "qor/rtl/contracts/checks.h"

namespace localization_manager {

void BinaryIO::Init(const std::u16string& filename) {
    // The place that messages print.
    constexpr const char* kSource = "src/BinaryIO";
    constexpr std::int32_t kOpenLine = 26;
    ::LocalizationManager::CheckCall(
        file_.Create(filename, qor::file_flags::ReadAccess | qor::file_flags::ShareRead,
                     qor::file_flags::OpenExisting, 0),
        "Cannot open file",
        {"file_.Create(qor::text::Cast<qor::string16_t>(filename).c_str(), "
         "qor::file_flags::ReadAccess | qor::file_flags::ShareRead, "
         "qor::file_flags::OpenExisting, 0)",
         BOOST_CURRENT_FUNCTION, kSource, kOpenLine});
}

qor::result_t BinaryIO::Read(void* destination, std::uint32_t wanted, std::uint32_t* read) {
    return file_.Read(destination, wanted, *read);
}

qor::result_t BinaryIO::Write(const void* /*source*/, std::uint32_t /*size*/,
                              std::uint32_t* /*written*/) {
    return qor::rcNotSupported;
}

qor::result_t BinaryIO::Seek(std::int32_t origin, std::int64_t offset, std::int64_t* position) {
    std::int64_t ignored = 0;
    return file_.Seek(origin, offset, position != nullptr ? *position : ignored);
}

qor::result_t BinaryIO::GetPosition(std::int64_t* position) {
    return file_.Seek(qor::seek_origin::Current, 0, *position);
}

qor::result_t BinaryIO::GetSize(std::int64_t* size) {
    return file_.GetSize(*size);
}

qor::result_t BinaryIO::SetSize(std::int64_t /*size*/) {
    return qor::rcNotSupported;
}

qor::result_t BinaryIO::Flush() {
    return qor::rcNotSupported;
}

}  // namespace localization_manager
