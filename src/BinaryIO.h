// A read-only stream over a resource file.
#pragma once

#include <string>

#include "InputFile.h"
#include "qor/IIO.h"
#include "qor/InterfaceList.h"
#include "qor/rtl/object_model/ObjectRootEx.h"

namespace localization_manager {

/// Holds its file open until the last release. Before `Init` succeeded, every operation meets an
/// invalid handle.
class BinaryIO : public qor::IIO, public qor::ObjectRoot {
public:
    using Interfaces = qor::InterfaceList<qor::IIO>;
    using ObjectRoot::ObjectRoot;

    /// Called once, before the stream is handed out.
    /// @throws QorCallFailedException when the file cannot be opened.
    void Init(const std::u16string& filename);

    qor::result_t Read(void* destination, std::uint32_t wanted, std::uint32_t* read) override;
    qor::result_t Write(const void* source, std::uint32_t size, std::uint32_t* written) override;
    qor::result_t Seek(std::int32_t origin, std::int64_t offset, std::int64_t* position) override;
    qor::result_t GetPosition(std::int64_t* position) override;
    qor::result_t GetSize(std::int64_t* size) override;
    qor::result_t SetSize(std::int64_t size) override;
    qor::result_t Flush() override;

protected:
    ~BinaryIO() = default;

private:
    Platform::InputFile file_;
};

}  // namespace localization_manager
